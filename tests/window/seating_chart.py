# SPDX-License-Identifier: GPL-3.0-or-later
# Charts are made and cards moved, by the mouse and by keys alone; what was saved is in the file.
from gi.repository import Atspi
from support import story
from support.program import dump, expect, xdotool

PORTAL = "Seating Chart Portal"
SAVE = "Do you wish to save these changes to your seating chart?"


def press(program, name, times=1, role=Atspi.Role.PUSH_BUTTON):
    program.click(program.widget(role, name), times)


def cell(program, row, col):
    return Atspi.Table.get_accessible_at(program.widget(Atspi.Role.TABLE, "Seats"), row, col)


def middle(node):
    box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return box.x + box.width // 2, box.y + box.height // 2


def drag(start, end):
    """In steps, as a hand does; one jump is no drag."""
    xdotool("mousemove", *start, "mousedown", 1)
    for part in range(1, 9):
        step = [a + (b - a) * part // 8 for a, b in zip(start, end)]
        xdotool("mousemove", *step, "sleep", 0.03)
    xdotool("sleep", 0.1, "mouseup", 1, "sleep", 0.1)


def card(program, row, col):
    return cell(program, row, col).get_name()


def seats(this):
    """The last chart of the saved file: a list of row and column by student."""
    return [(s["SeatRow"][-1], s["SeatColumn"][-1]) for s in dump(this.path("MATH.TYR"))["Students"]]


def new_chart(program, rows_down, seats_down, method):
    program.keys("alt+n")
    program.keys(*["Down"] * rows_down, "Tab", *["Down"] * seats_down, "alt+o")
    press(program, method, role=Atspi.Role.RADIO_BUTTON)
    program.keys("alt+o")


def by_mouse(program):
    new_chart(program, 4, 8, "As Sorted")
    first, second = card(program, 7, 0), card(program, 6, 0)
    drag(middle(cell(program, 7, 0)), middle(cell(program, 6, 0)))
    expect("two change places", [card(program, 7, 0), card(program, 6, 0)], [second, first])
    free = middle(cell(program, 0, 3))
    drag(middle(cell(program, 6, 0)), free)
    expect("a free seat is taken", [card(program, 6, 0), card(program, 0, 3)], ["", first])
    x, y = middle(cell(program, 0, 3))
    drag((x, y), (x, 5))
    expect("out of the window nothing moves", card(program, 0, 3), first)
    program.keys("alt+u")
    expect("taken back", card(program, 6, 0), first)
    return first, second


def by_keys(program):
    """From the second seat of the first row back to the last one, and home again."""
    program.click(cell(program, 7, 0))
    here, there = card(program, 7, 0), card(program, 6, 0)
    program.keys("space", "Up", "space")
    expect("carried by keys", [card(program, 7, 0), card(program, 6, 0)], [there, here])
    program.keys("space", "Up", "Escape")
    expect("let go", card(program, 6, 0), here)


def tell(this):
    program = this.start(this.sample("MATH.TYR"))
    program.frame("MATH.TYR")
    program.keys("alt+t", "s")
    program.window(PORTAL)
    by_mouse(program)
    by_keys(program)
    program.keys("alt+s")
    program.box(SAVE, "alt+y", title="Note to the Teacher")
    program.keys("alt+x")
    program.frame("MATH.TYR")
    program.keys("ctrl+s", "ctrl+q")
    program.ended()
    charts = dump(this.path("MATH.TYR"))
    expect("the charts", [charts["NumCharts"], charts["ChartRows"][-1], charts["ChartColumns"][-1]], [3, 8, 4])
    expect("the first student", seats(this)[0], (7, 0))


story.run(tell)
