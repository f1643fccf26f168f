# SPDX-License-Identifier: GPL-3.0-or-later
"""The Seating Chart Portal as stories use it: its cells, drags, a new chart by keys."""
from gi.repository import Atspi
from support.program import xdotool

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


def new_chart(program, rows_down, seats_down, method):
    program.keys("alt+n")
    program.keys(*["Down"] * rows_down, "Tab", *["Down"] * seats_down, "alt+o")
    press(program, method, role=Atspi.Role.RADIO_BUTTON)
    program.keys("alt+o")
