# SPDX-License-Identifier: GPL-3.0-or-later
# A file of Canvas with three problems: someone whom the class does not know by that name, a cell that is no
# mark, and a student on two lines. The first is settled by a choice, the others are left out. All by keys.
from gi.repository import Atspi
from support import story
from support.program import build, dump, expect, wait_for

TITLE = "School Systems Portal"
CANVAS = ("Student,ID,SIS User ID,Section,Essay (4711),Quiz (12)\r\n"
          "    Points Possible,,,,20,10\r\n"
          "\"Abel, Robert\",901,,A,17.50,8\r\n"
          "\"Cho, Di\",902,2,A,x9,5\r\n"
          "\"Ems, Flo\",903,3,A,11,6\r\n"
          "\"Ems, Flo\",903,3,A,12,6\r\n")
CLASS = {
    "Instruments": [{"title": "Essay", "mvalue": 20, "typecode": "E ", "testdate": "9/1/2026", "lowpass": "13"}],
    "Students": [{"lastname": "Abel", "firstname": "Bo", "id": "1", "Marks": ["", "18"]},
                 {"lastname": "Cho", "firstname": "Di", "id": "2", "Marks": ["", "NEW"]},
                 {"lastname": "Ems", "firstname": "Flo", "id": "3", "Marks": ["", "9"]}]}


def cell(program, row, col):
    table = program.widget(Atspi.Role.TABLE, "What would happen")
    return Atspi.Table.get_accessible_at(table, row, col).get_name().strip()


def await_cell(program, row, col, text):
    wait_for(f"{text!r} in row {row}", lambda: cell(program, row, col) == text)


def tell(this):
    path, canvas = this.path("MATH.TYR"), this.path("canvas.csv")
    build(path, CLASS)
    with open(canvas, "w", encoding="utf-8-sig", newline="") as file:
        file.write(CANVAS)
    program = this.start(path)
    program.frame("MATH.TYR")
    program.keys("alt+f", "l", "s")
    program.window(TITLE)
    program.keys("alt+f")
    program.choose_file("Open", canvas)
    program.window(TITLE)
    program.await_label("canvas.csv: 2 lines ticked, 4 problems, 0 with nothing to do")
    await_cell(program, 1, 2, "new grade")
    await_cell(program, 2, 2, "unknown student")
    program.await_focus(Atspi.Role.TABLE, "What would happen")
    program.keys("Down", "alt+b", "Down")  # the unknown line, and the first guess
    program.await_label("canvas.csv: 4 lines ticked, 3 problems, 0 with nothing to do")
    program.keys("alt+l", "alt+k")
    program.gone(TITLE)
    program.frame("MATH.TYR", changed=True)
    program.keys("ctrl+s")
    program.frame("MATH.TYR", changed=False)
    students = dump(path)["Students"]
    expect("the marks", [student["Marks"][1:] for student in students], [["17.5", "8"], ["NEW", "5"], ["9", "NEW"]])
    program.keys("ctrl+z")  # all that was taken is one step
    program.frame("MATH.TYR", changed=True)
    program.keys("ctrl+s")
    program.frame("MATH.TYR", changed=False)
    program.keys("ctrl+q")
    program.ended()
    expect("the class undone", [(s["lastname"], s["Marks"][1:]) for s in dump(path)["Students"]],
           [("Abel", ["18"]), ("Cho", ["NEW"]), ("Ems", ["9"])])


story.run(tell)
