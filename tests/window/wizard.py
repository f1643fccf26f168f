# SPDX-License-Identifier: GPL-3.0-or-later
# A new class of three students: the first by the wizard, two more by the Add Student Portal.
from gi.repository import Atspi
from support import story
from support.program import dump, expect
from support.steps import pass_greeting

WIZARD = "Start a New Class Wizard"


def next_page(program, heading):
    program.keys("alt+n")
    program.await_label(heading)


def tell_wizard(program):
    program.window(WIZARD)
    program.await_label("Welcome")
    next_page(program, "Class Information (Optional)")
    program.await_focus(Atspi.Role.TEXT, "Description")
    program.fill("Math 201 - Programming")
    program.keys("alt+n")
    program.await_focus(Atspi.Role.TEXT, "School")
    program.fill("Riverside", "12")
    next_page(program, "Student Information (Required)")
    program.await_focus(Atspi.Role.TEXT, "Last name")
    program.fill("Young", "Carla", "777")
    program.await_text("ID", "777")
    next_page(program, "Optional Information")
    program.keys("alt+s")
    program.await_label("Finished")
    program.keys("alt+o")


def add_student(program, last, first, identity, leave):
    program.await_focus(Atspi.Role.TEXT, "Last name")
    program.fill(last, first, identity)
    program.await_text("ID", identity)
    program.keys(leave)


def tell(this):
    path = this.path("NEW.TYR")
    program = this.start()
    pass_greeting(program)
    program.keys("alt+f", "n", "w")
    tell_wizard(program)
    program.window("Add Student Portal")
    add_student(program, "Abbott", "Ben", "555", "alt+n")
    program.await_text("ID", "")
    add_student(program, "Moore", "Dora", "666", "alt+x")
    program.choose_file("Save As", path)
    program.frame("NEW.TYR")
    expect("names on the grid", program.column(0, 3),
           ["1 Abbott, Ben", "2 Moore, Dora", "3 Young, Carla"])
    expect("IDs on the grid", program.column(1, 3), ["555", "666", "777"])
    program.keys("ctrl+q")
    program.ended()

    made = dump(path)
    expect("mark", made["Magic"], "ty8")
    expect("students", [(s["lastname"].strip(), s["firstname"].strip(), s["id"].strip())
                        for s in made["Students"]],
           [("Abbott", "Ben", "555"), ("Moore", "Dora", "666"), ("Young", "Carla", "777")])
    expect("grades", made["Instruments"], [])
    expect("days", made["AttendanceDays"], [])
    expect("description", made["description"].strip(), "Math 201 - Programming")
    expect("school", made["school"], "Riverside")
    expect("room", made["room"], "12")
    expect("widest names", (made["LastNameWidth"], made["FirstNameWidth"]), (6, 5))


story.run(tell)
