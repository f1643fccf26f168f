# SPDX-License-Identifier: GPL-3.0-or-later
# A class gets its months of attendance, and a month is taken for thirty students by keys alone. The
# totals on the screen are those that the command line counts in the saved and reopened class.
import json

from gi.repository import Atspi
from support import story
from support.program import build, command_line, dump, expect, wait_for

STUDENTS = 30
CODES = "ACESNL"
FIRST_DAY_COLUMN, OCTOBER = 2, 31
CAPTION = "Enter Attendance Portal"


def code(student, day):
    """Every seventh stays without a mark."""
    place = (student + 2 * day) % 7
    return CODES[place] if place < len(CODES) else ""


def enter_month(program):
    """One day down the class and the next one up again."""
    program.keys("Down", "Home")
    for day in range(OCTOBER):
        down = day % 2 == 0
        strokes = []
        for student in range(STUDENTS) if down else reversed(range(STUDENTS)):
            strokes += [*code(student, day).lower(), "Down" if down else "Up"]
        program.strokes([*strokes[:-1], "Right"])


def totals(program, students=STUDENTS, days=OCTOBER):
    table = program.widget(Atspi.Role.TABLE, "Attendance")
    first = FIRST_DAY_COLUMN + days
    return [[Atspi.Table.get_accessible_at(table, student + 1, first + i).get_name() for i in range(len(CODES))]
            for student in range(students)]


def show_totals(program, expected):
    program.keys("alt+t", "s")
    wait_for("the totals", lambda: totals(program, 1) == expected[:1])
    expect("the totals on the screen", totals(program), expected)


def month_and_back(program, expected):
    program.keys("ctrl+Prior")
    program.await_labels("September", "2026")
    expect("a month without marks", totals(program, 1, days=30), [["0"] * len(CODES)])
    program.keys("ctrl+Next")
    program.await_labels("October", "2026")
    expect("the totals after a month and back", totals(program), expected)


def reopened(program, expected):
    program.frame("ROLL.TYR")
    program.keys("ctrl+d")
    program.window(CAPTION)
    show_totals(program, expected)
    program.keys("alt+x")
    program.gone(CAPTION)
    program.keys("ctrl+q")
    program.ended()


def tell(this):
    path = this.path("ROLL.TYR")
    build(path, {"termstart": "9/1/2026", "termend": "10/31/2026",
                 "Students": [{"lastname": f"Pupil{i:02}", "firstname": "Ada", "id": f"{100 + i}"}
                              for i in range(STUDENTS)]})
    program = this.start(path)
    program.frame("ROLL.TYR")
    program.keys("ctrl+d")
    program.window("Attendance Settings Portal")
    program.await_labels("Original Starting Date is September 2026", "Original Ending Date is October 2026")
    program.keys("Return")
    program.window(CAPTION)
    program.await_labels("October", "2026")
    enter_month(program)
    expected = [[str(sum(code(student, day) == letter for day in range(OCTOBER))) for letter in CODES]
                for student in range(STUDENTS)]
    show_totals(program, expected)
    month_and_back(program, expected)
    program.keys("alt+x")
    program.gone(CAPTION)
    program.frame("ROLL.TYR")
    program.keys("ctrl+s", "ctrl+q")
    program.ended()
    reopened(this.start(path), expected)

    counted = json.loads(command_line("attendance", path, "--months", "2026-10..2026-10", "--json"))
    expect("the totals in the file", [[str(student[letter]) for letter in CODES] for student in counted], expected)
    expect("the days of two months", dump(path)["NumDays"], 30 + 31)


story.run(tell)
