# SPDX-License-Identifier: GPL-3.0-or-later
# Odd sequences of wheel, list, focus, second click and keys, each of which once could go astray.
import time

from gi.repository import Atspi
from support import story
from support.program import build, dump, expect, text_of, wait_for, xdotool

ENTER, MARKS, EDIT = "Enter Attendance Portal", "Enter  Grades  Portal", "Edit Grades by Title Portal"
SURE = "Data has been entered. Are you sure you want to CANCEL?"


def cell(program, row, col, table):
    return Atspi.Table.get_accessible_at(program.widget(Atspi.Role.TABLE, table), row, col)


def await_cell(program, row, col, text, table):
    wait_for(f"{text!r} in {row},{col}", lambda: cell(program, row, col, table).get_name() == text)


def day(program, row, number):
    return cell(program, row, number + 1, "Attendance")


def mark(program, row, number, code):
    await_cell(program, row, number + 1, code, "Attendance")


def attendance(program):
    program.keys("ctrl+d")
    program.window("Attendance Settings Portal")
    program.keys("Return")
    program.window(ENTER)
    # 1. The list is dropped, another cell is clicked, and a letter typed there.
    program.click(day(program, 1, 2))
    program.keys("F4")
    time.sleep(0.2)
    program.click(day(program, 2, 20))
    program.click(day(program, 2, 21))
    program.keys("c")
    mark(program, 2, 21, "C")
    # 2. The list is dropped and put away; the arrows are the grid's again.
    program.click(day(program, 1, 3))
    program.keys("F4", "Down", "Escape", "Right", "a")
    mark(program, 1, 4, "A")
    # 3. The wheel over the dropped list, then Return: the line that the cell began with.
    program.keys("F4")
    time.sleep(0.2)
    xdotool("click", 5, "click", 5, "click", 4)
    program.keys("Escape", "Down", "e")
    mark(program, 2, 4, "E")
    mark(program, 1, 4, "A")
    # 4. A double click drops the list; a letter goes to the cell all the same.
    program.click(day(program, 3, 9), times=2)
    time.sleep(0.2)
    program.keys("s")
    mark(program, 3, 9, "S")
    # 5. In a small window the last day scrolls into sight, and its list with it.
    xdotool("windowsize", "--sync", xdotool("getactivewindow"), 660, 330)
    program.keys("End", "F4", "n")
    mark(program, 3, 30, "N")
    expect("marks of the first", [day(program, 1, n).get_name() for n in (2, 3, 4)], ["", "", "A"])
    program.keys("alt+x")
    program.gone(ENTER)
    program.frame("ROLL.TYR")


def grades(program):
    program.keys("ctrl+g")
    program.window(MARKS)
    # 6. Return leads from field to field into the marks and down them.
    program.await_focus(Atspi.Role.TEXT, "Title of  Grade")
    program.type("Essay")
    program.keys("Return")
    program.type("E1")
    program.keys("Return", "Return", "Return", "Return", "Return", "Return")
    program.type("81")
    program.keys("Return")
    program.type("7")
    await_cell(program, 2, 2, "7", "Marks")
    # 7. A click below the last student keeps the cell and what was begun in it.
    last = Atspi.Component.get_extents(cell(program, 4, 2, "Marks"), Atspi.CoordType.SCREEN)
    xdotool("mousemove", last.x + 10, last.y + 3 * last.height, "click", 1)
    program.type("2")
    await_cell(program, 2, 2, "72", "Marks")
    # 8. The wheel over the type of the grade, which has not the focus.
    above = Atspi.Component.get_extents(program.field("Lowest Passing Score for Grade"),
                                        Atspi.CoordType.SCREEN)
    xdotool("mousemove", above.x + 20, above.y + 2 * above.height, "click", 5, "click", 5)
    # The fill takes a value, the last of its five, and Enter.
    program.keys("alt+l", "Down", "Down", "Down", "Down", "Tab")
    program.type("60")
    program.keys("Return")
    await_cell(program, 4, 2, "60", "Marks")
    program.keys("alt+x")
    program.gone(MARKS)
    program.frame("ROLL.TYR")


def titles(program):
    program.keys("ctrl+t")
    program.window(EDIT)
    # 9. A click on the title leads to its marks; Escape asks once what was typed.
    title = program.widget(Atspi.Role.LIST, "Choose From List of Titles of Grades")
    program.click(title.get_child_at_index(0))
    program.type("90")
    await_cell(program, 1, 2, "90", "Marks")
    program.click(title.get_child_at_index(0))
    program.keys("Escape")
    program.box(SURE, "alt+n", title="CANCEL")
    program.keys("alt+x")
    program.gone(EDIT)
    program.frame("ROLL.TYR")


def wizard(program):
    # 10. A text that is no date is told of, and the calendar mends it.
    program.keys("ctrl+shift+n")
    program.window("Start a New Class Wizard")
    program.keys("alt+n", "alt+n", "alt+a")
    program.type("soon")
    program.keys("alt+n")
    told = wait_for("the box", lambda: next((w for w in program.windows()
                                             if w.get_name() == "Note to the Teacher"), None))
    expect("a box", told is not None, True)
    program.window("Note to the Teacher")
    program.keys("Return")
    program.window("Start a New Class Wizard")
    program.keys("Tab", "F4")
    time.sleep(0.3)
    program.keys("Return")
    wait_for("a date", lambda: text_of(program.field("Term starts")).count("/") == 2)
    program.keys("Escape")
    program.gone("Start a New Class Wizard")


def tell(this):
    path = this.path("ROLL.TYR")
    build(path, {"termstart": "9/1/2025", "termend": "9/30/2025",
                 "Students": [{"lastname": name, "firstname": "Ada", "id": name}
                              for name in ("Abel", "Bell", "Cook", "Dale")]})
    program = this.start(path)
    program.frame("ROLL.TYR")
    attendance(program)
    grades(program)
    titles(program)
    program.keys("ctrl+s")
    wizard(program)
    program.keys("ctrl+q")
    kept = wait_for("the saved class", lambda: dump(path) if dump(path)["NumInstruments"] == 1 else None)
    expect("the marks", [s["Marks"][1].strip() for s in kept["Students"]], ["90", "72", "60", "60"])
    expect("the type", kept["Instruments"][0]["typecode"].strip(), "A")


story.run(tell)
