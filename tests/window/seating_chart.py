# SPDX-License-Identifier: GPL-3.0-or-later
# Charts are made and cards moved, by the mouse and by keys alone; what was saved is in the file.
from gi.repository import Atspi
from support import story
from support.program import dump, expect
from support.seats import PORTAL, SAVE, card, cell, drag, middle, new_chart

def seats(this):
    """The last chart of the saved file: a list of row and column by student."""
    return [(s["SeatRow"][-1], s["SeatColumn"][-1]) for s in dump(this.path("MATH.TYR"))["Students"]]


def by_mouse(program):
    """Five rows of six seats: two seats at the board of the last row stay free."""
    new_chart(program, 5, 6, "As Sorted")
    first, second = card(program, 4, 0), card(program, 3, 0)
    drag(middle(cell(program, 4, 0)), middle(cell(program, 3, 0)))
    expect("two change places", [card(program, 4, 0), card(program, 3, 0)], [second, first])
    drag(middle(cell(program, 3, 0)), middle(cell(program, 0, 4)))
    expect("a free seat is taken", [card(program, 3, 0), card(program, 0, 4)], ["", first])
    x, y = middle(cell(program, 0, 4))
    drag((x, y), (x, 5))
    expect("out of the window nothing moves", card(program, 0, 4), first)
    students = program.widget(Atspi.Role.LIST, "Without a seat")
    drag((x, y), middle(students))
    expect("back on the list", [card(program, 0, 4), students.get_child_count()], ["", 1])
    program.keys("alt+u", "alt+u")
    expect("taken back twice", [card(program, 3, 0), students.get_child_count()], [first, 0])
    program.keys("alt+r", "alt+r")
    box = Atspi.Component.get_extents(students, Atspi.CoordType.SCREEN)
    drag((box.x + 20, box.y + 8), middle(cell(program, 4, 0)))
    expect("from the list onto a taken seat", card(program, 4, 0), first)
    expect("who sat there", students.get_child_at_index(0).get_name(), second)


def by_keys(program):
    """From the back of the first row to the seat before it; then from the list."""
    program.click(cell(program, 4, 0))
    here = card(program, 4, 0)
    program.keys("space", "Up", "space")
    expect("carried by keys", [card(program, 4, 0), card(program, 3, 0)], ["", here])
    program.keys("space", "Up", "Escape")
    expect("let go", card(program, 3, 0), here)
    program.click(program.widget(Atspi.Role.LIST, "Without a seat").get_child_at_index(0))
    program.keys("space", "Down", "Down", "space")
    expect("from the list by keys", card(program, 4, 0) != "", True)


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
    expect("the charts", [charts["NumCharts"], charts["ChartRows"][-1], charts["ChartColumns"][-1]], [3, 6, 5])
    expect("everybody sits", (-1, -1) in seats(this), False)
    expect("nobody sits twice", len(set(seats(this))), len(seats(this)))


story.run(tell)
