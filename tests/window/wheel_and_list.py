# SPDX-License-Identifier: GPL-3.0-or-later
# The wheel writes nothing, and the list of codes stays in its cell: by the real mouse and real keys.
from gi.repository import Atspi
from support import story
from support.program import build, dump, expect, is_shown, wait_for, walk, xdotool

ENTER = "Enter Attendance Portal"


def day(program, row, number):
    return Atspi.Table.get_accessible_at(program.widget(Atspi.Role.TABLE, "Attendance"), row, number + 1)


def await_mark(program, row, number, mark):
    wait_for(f"{mark!r} on day {number}", lambda: day(program, row, number).get_name() == mark)


def place_of(node):
    box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return box.x, box.y, box.width, box.height


def dropped_lines(program):
    code = program.widget(Atspi.Role.COMBO_BOX, "Code")
    return wait_for("the codes", lambda: next(
        (node for node in walk(code) if node.get_role() == Atspi.Role.LIST and is_shown(node)), None))


def turn_wheel(program):
    """Over the cell in work, both ways; the focus is the grid's."""
    program.click(day(program, 1, 5))
    program.keys("n")
    await_mark(program, 1, 5, "N")
    for button in (5, 4, 5, 5, 4, 4):
        xdotool("click", button)
    program.keys("Right")
    program.keys("l")
    await_mark(program, 1, 6, "L")
    expect("the mark below the wheel", day(program, 1, 5).get_name(), "N")


def pick_on_the_next_day(program):
    """The cell beside that of the list is clicked at its left edge, then its own list is dropped."""
    program.click(day(program, 2, 5))
    x, y, width, height = place_of(day(program, 2, 6))
    xdotool("mousemove", x + 3, y + height // 2, "click", 1)
    program.click(day(program, 2, 6))
    program.click(dropped_lines(program).get_child_at_index(0))
    await_mark(program, 2, 6, "A")
    expect("the day before", day(program, 2, 5).get_name(), "")


def type_while_dropped(program):
    program.click(day(program, 3, 7))
    program.keys("F4", "e")
    await_mark(program, 3, 7, "E")
    # From the line of E two lines on stands N.
    program.keys("alt+Down", "Down", "Down", "Return")
    await_mark(program, 3, 7, "N")
    program.keys("Down", "c")
    await_mark(program, 4, 7, "C")


def tell(this):
    path = this.path("ROLL.TYR")
    build(path, {"termstart": "9/1/2025", "termend": "9/30/2025",
                 "Students": [{"lastname": name, "firstname": "Ada", "id": name}
                              for name in ("Abel", "Bell", "Cook", "Dale")]})
    program = this.start(path)
    program.frame("ROLL.TYR")
    program.keys("ctrl+d")
    program.window("Attendance Settings Portal")
    program.keys("Return")
    program.window(ENTER)
    turn_wheel(program)
    pick_on_the_next_day(program)
    type_while_dropped(program)
    program.keys("alt+x")
    program.gone(ENTER)
    program.frame("ROLL.TYR")
    program.keys("ctrl+s", "ctrl+q")
    program.ended()
    marks = ["".join(s["DailyMarks"][1:]).rstrip() for s in dump(path)["Students"]]
    expect("the marks in the file", marks, ["    NL", "     A", "      N", "      C"])


story.run(tell)
