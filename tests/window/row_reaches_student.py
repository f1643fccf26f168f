# SPDX-License-Identifier: GPL-3.0-or-later
# Renamed, previewed, added by Next and Cancel, sorted by ID: a double click on a row always opens the
# student who stands in it, and no mark changes hands.
from gi.repository import Atspi
from support import story
from support.program import build, dump, expect, text_of, wait_for

STUDENTS = 22  # all rows in view


def record():
    return {"AverageSettings": "2,0,0,0,0",
            "Instruments": [{"title": "Quiz", "code": "Q1", "typecode": "Q ", "mvalue": 100}],
            "Students": [{"lastname": f"Pupil{i:02}", "firstname": "Ada", "id": str(500 - i),
                          "Marks": ["", str(50 + i)]} for i in range(STUDENTS)]}


def open_row(program, row):
    program.click(program.cell(row, 0), times=2)
    program.window("Edit Portal")


def leave(program, key="alt+x"):
    program.keys(key)
    program.gone("Edit Portal")
    program.frame("ROLL.TYR")


def edit(program, row, key, name, text):
    open_row(program, row)
    program.keys(key)
    program.fill(text)
    program.await_text(name, text)
    leave(program)


def reaches(program, row, student):
    """The row shows this student and opens him."""
    wait_for(f"{student['lastname']} in row {row}",
             lambda: student["lastname"] in program.cell_text(row, 0) + program.cell_text(row, 1))
    expect("his mark", program.cell_text(row, 2), student["Marks"][1])
    open_row(program, row)
    expect("who is opened", (text_of(program.field("Last name")), text_of(program.field("ID"))),
           (student["lastname"], student["id"]))
    leave(program, "alt+c")


def preview_roster(program):
    program.keys("alt+p", "r")
    program.window("Printer Portal")
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Preview"))
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.window("Print Preview Portal")
    program.keys("Escape")
    program.window("Printer Portal")
    program.keys("Escape")
    program.frame("ROLL.TYR")


def add_by_next_and_cancel(program, last, first, id):
    program.keys("ctrl+Insert")
    program.window("Add Student Portal")
    program.fill(last, first, id)
    program.await_text("ID", id)
    program.keys("alt+n")
    program.await_text("ID", "")
    program.keys("alt+c")
    program.gone("Add Student Portal")
    program.frame("ROLL.TYR")


def tell(this):
    path = this.path("ROLL.TYR")
    students = record()["Students"]
    build(path, record())
    program = this.start(path)
    program.frame("ROLL.TYR")

    edit(program, 2, "alt+l", "Last name", "Zuk")  # 1 Pupil00 becomes the last
    students[0]["lastname"] = "Zuk"
    students.sort(key=lambda each: each["lastname"])
    preview_roster(program)
    for row in (2, 15, STUDENTS + 1):
        reaches(program, row, students[row - 2])

    add_by_next_and_cancel(program, "Adler", "Jo", "900")
    students.insert(0, {"lastname": "Adler", "id": "900", "Marks": ["", "NEW"]})
    for row in (2, 3, STUDENTS + 2):
        reaches(program, row, students[row - 2])

    program.keys("alt+d", "i", "n")  # by ID, with the name
    students.sort(key=lambda each: each["id"])
    reaches(program, 2, students[0])
    edit(program, 2, "alt+d", "ID", "899")
    students[0]["id"] = "899"
    students.sort(key=lambda each: each["id"])
    preview_roster(program)
    for row in (2, STUDENTS + 1, STUDENTS + 2):
        reaches(program, row, students[row - 2])

    program.keys("ctrl+s", "ctrl+q")
    program.ended()
    expect("the marks in the file",
           {each["id"]: each["Marks"][1] for each in dump(path)["Students"]},
           {each["id"]: each["Marks"][1] for each in students})


story.run(tell)
