# SPDX-License-Identifier: GPL-3.0-or-later
# Two classes side by side; the roll book sorted three ways; one grade ranked up and down.
from gi.repository import Atspi
from support import story
from support.program import build, dump, expect, wait_for
from support.steps import open_file


def a_class(first, second):
    return {
        "Instruments": [
            {"title": "Test 1", "code": "T1", "typecode": "T ", "mvalue": 100,
             "testdate": "9/9/2026", "lowpass": "65"},
            {"title": "Quiz 1", "code": "Q1", "typecode": "Q ", "mvalue": 100,
             "testdate": "9/2/2026", "lowpass": "65"},
        ],
        "Students": [
            {"lastname": "Abel", "firstname": "Bo", "id": "1", "Marks": ["", first, "70"]},
            {"lastname": "Cho", "firstname": "Di", "id": "2", "Marks": ["", second, "60"]},
        ],
    }


def cell(program, name, row, col):
    table = program.widget(Atspi.Role.TABLE, name)
    return Atspi.Table.get_accessible_at(table, row, col).get_name()


def await_cell(program, name, row, col, text):
    wait_for(f"{text!r} in {name!r}", lambda: cell(program, name, row, col).strip() == text)


def compare(program):
    program.keys("alt+v", "s")
    program.window("Statistics Portal")
    program.keys("alt+p")
    title = "Compare Statistics Portal"
    program.window(title)
    program.await_focus(Atspi.Role.LIST, "Classes")
    program.keys("Home", "space", "Down", "space", "alt+o")
    program.await_label("Choose a grade of each class")
    program.keys("Down", "Tab", "Down", "alt+o")
    await_cell(program, "Figures of the classes", 2, 1, "85")
    await_cell(program, "Figures of the classes", 2, 2, "75")
    await_cell(program, "Figures of the classes", 9, 3, "4")
    program.keys("alt+o")
    program.window("Comparisons for ONE.TYR, TWO.TYR")
    await_cell(program, "Range", 6, 3, "2")
    program.keys("alt+l", "alt+b", "alt+x")
    program.window("Statistics Portal")
    program.keys("Escape")
    program.gone("Statistics Portal")


def roll_book(program):
    title = "View  Roll Book Portal"
    program.keys("alt+v", "r")
    program.window(title)
    await_cell(program, "Roll book", 0, 2, "T1")
    program.keys("alt+g", "d")
    await_cell(program, "Roll book", 0, 2, "Q1")
    program.keys("alt+g", "n")
    await_cell(program, "Roll book", 0, 2, "T1")
    program.keys("alt+g", "t")
    await_cell(program, "Roll book", 0, 2, "Q1")
    await_cell(program, "Roll book", 2, 2, "60")
    program.keys("Escape")
    program.gone(title)


def ranking(program):
    title = "Display Single Grade Portal"
    program.keys("alt+v", "o")
    program.window(title)
    program.keys("alt+n")
    await_cell(program, "Students and marks", 1, 2, "70")
    program.keys("alt+g", "h")
    await_cell(program, "Students and marks", 1, 2, "80")
    program.keys("alt+g", "l")
    await_cell(program, "Students and marks", 1, 2, "70")
    program.keys("Escape")
    program.gone(title)


def tell(this):
    one, two = this.path("ONE.TYR"), this.path("TWO.TYR")
    build(one, a_class("80", "90"))
    build(two, a_class("70", "80"))
    before = dump(two)
    program = this.start(one)
    program.frame("ONE.TYR")
    open_file(program, two, "TWO.TYR")
    compare(program)
    program.frame("TWO.TYR")
    roll_book(program)
    program.frame("TWO.TYR")
    ranking(program)
    program.frame("TWO.TYR")
    program.keys("ctrl+q")
    program.ended()
    expect("the class after all", dump(two), before)


story.run(tell)
