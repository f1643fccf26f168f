# SPDX-License-Identifier: GPL-3.0-or-later
"""A small class, and what stories about its earlier states do with it."""
import pathlib
import sqlite3

from support.program import build, dump

CLASS = {
    "AverageSettings": "2,0,0,0,0",
    "Instruments": [{"title": "Quiz", "code": "Q1", "typecode": "Q ", "mvalue": 100},
                    {"title": "Test", "code": "T1", "typecode": "T ", "mvalue": 100}],
    "Students": [{"lastname": "Ng", "firstname": "Ada", "id": "1", "Marks": ["", "80", "90"]},
                 {"lastname": "Orr", "firstname": "Bo", "id": "2", "Marks": ["", "60", "70"]}],
}


def fresh(path):
    """The class beside which nothing is kept."""
    for old in pathlib.Path(path).parent.glob("*.ty*"):
        old.unlink()
    pathlib.Path(path).unlink(missing_ok=True)
    build(path, CLASS)


def enter_grade(program, title):
    """A new grade for the whole class, none of whose marks is typed."""
    program.keys("ctrl+g")
    program.window("Enter  Grades  Portal")
    program.keys(*title, "Tab", *title[:3], "alt+l", "alt+o", "alt+x")
    program.gone("Enter  Grades  Portal")


def save(program, caption):
    program.keys("ctrl+s")
    program.frame(caption, changed=False)


def grades(path):
    return [grade["title"] for grade in dump(path)["Instruments"]]


def marks(path, grade):
    return [student["Marks"][grade].strip() for student in dump(path)["Students"]]


def companion(path, command, *values):
    """What the companion file answers, once the program has left it."""
    database = sqlite3.connect(path.removesuffix(".TYR") + ".tyx")
    try:
        with database:
            return database.execute(command, values).fetchall()
    finally:
        database.close()
