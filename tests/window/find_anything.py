# SPDX-License-Identifier: GPL-3.0-or-later
# By Ctrl+F to a student far down and to a grade far right, by Ctrl+K to a command, all by its name with
# a slip; a command that cannot be given says why and does nothing; the one used last stands on top.
from gi.repository import Atspi
from support import story
from support.program import build, expect, wait_for

STUDENTS, GRADES = 120, 40


def record():
    return {"Instruments": [{"title": f"Quiz {j}", "code": f"Q{j}", "typecode": "Q ", "mvalue": 100}
                            for j in range(1, GRADES + 1)],
            "Students": [{"lastname": f"Pupil{i:03}", "firstname": "Ada", "id": str(500 + i),
                          "Marks": ["", *(str(50 + j) for j in range(GRADES))]} for i in range(STUDENTS)]}


def lines(program):
    shown = program.widget(Atspi.Role.LIST, "What was found")
    return [shown.get_child_at_index(i).get_name() for i in range(shown.get_child_count())]


def find(program, key, text, first):
    program.keys(key)
    program.window("Find", "Command")
    program.type(text)
    wait_for(f"{first} on top", lambda: lines(program)[:1] and first in lines(program)[0])


def tell(this):
    path = this.path("ROLL.TYR")
    build(path, record())
    program = this.start(path)
    program.frame("ROLL.TYR")

    find(program, "ctrl+f", "pupil103", "Pupil103")
    program.keys("Return")
    program.gone("Find")
    wait_for("the row in sight", lambda: program.in_sight(105, 2))
    find(program, "ctrl+f", "quiz 37", "Quiz 37")
    program.keys("Return")
    program.gone("Find")
    wait_for("the column in sight", lambda: program.in_sight(105, 38))
    program.keys("Return")  # what a double click does: the mark of that student
    program.window("Edit Grades by Title Portal")
    program.keys("Escape")
    program.frame("ROLL.TYR")

    find(program, "ctrl+k", "seatnig", "Seating Chart")
    program.keys("Escape")
    program.gone("Command")
    find(program, "ctrl+k", "margins", "Printer Margins")
    program.keys("Return")
    program.window("Printer Margins Portal")
    program.keys("Escape")
    program.frame("ROLL.TYR")
    find(program, "ctrl+k", "", "Printer Margins")
    program.type("summary att edit")
    program.keys("Return")
    expect("it stays", program.window("Command") is not None, True)
    program.keys("Escape")
    program.gone("Command")


story.run(tell)
