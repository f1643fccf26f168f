# SPDX-License-Identifier: GPL-3.0-or-later
# In a class of 200, Enter or a double click on a mark opens that student's mark: what is typed next
# replaces it and no other.
from gi.repository import Atspi
from support import story
from support.program import build, dump, expect, stands_within

STUDENTS = 200


def tell(this):
    path = this.path("BIG.TYR")
    build(path, {
        "Instruments": [{"title": "Quiz", "code": "Q1", "mvalue": 100, "typecode": "Q ",
                         "dropyn": "N", "lowpass": "65", "testdate": "9/1/2026"}],
        "Students": [{"lastname": f"Last{i:03}", "firstname": "A", "id": str(i),
                      "Marks": ["", "80"]} for i in range(1, STUDENTS + 1)]})
    program = this.start(path)
    program.frame("BIG.TYR")

    def shown_in_portal(student):
        """His mark is in sight: the accessible cell stands within its table."""
        program.window("Edit Grades by Title Portal")
        table = next(node for node in program.tables() if node.get_name() != "Students and grades")
        cell = Atspi.Table.get_accessible_at(table, student, 2)
        expect("the row in sight", stands_within(cell, table), True)

    program.keys("ctrl+Down", "Return")
    shown_in_portal(STUDENTS)
    program.keys("5", "5", "alt+x")
    program.gone("Edit Grades by Title Portal")
    program.frame("BIG.TYR")

    for _ in range(4):
        program.keys("Prior")
    row = next(row for row in range(STUDENTS + 1, 1, -1) if program.in_sight(row, 2))
    program.click(program.cell(row, 2), times=2)
    shown_in_portal(row - 1)
    program.keys("6", "6", "alt+x")
    program.gone("Edit Grades by Title Portal")
    program.frame("BIG.TYR")
    program.keys("ctrl+s", "ctrl+q")
    program.ended()

    marks = [student["Marks"][1] for student in dump(path, "--opened")["Students"]]
    wanted = ["80"] * STUDENTS
    wanted[STUDENTS - 1] = "55"
    wanted[row - 2] = "66"
    expect("the marks", marks, wanted)


story.run(tell)
