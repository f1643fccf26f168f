# SPDX-License-Identifier: GPL-3.0-or-later
# The table of a class as a teacher handles it: cells selected and copied, a column drawn wider and
# the whole made larger, all of it kept for the next run; and what a screen reader is told.
import subprocess

from gi.repository import Atspi
from support import story
from support.program import expect, wait_for, xdotool

CAPTION = "SAMPLE8.TYR"


def place_of(node):
    box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return box.x, box.y, box.width, box.height


def copied():
    return subprocess.run(["xclip", "-selection", "clipboard", "-o"], capture_output=True,
                          text=True, timeout=20, check=False).stdout


def select_and_copy(program):
    program.click(program.cell(2, 2))
    program.keys("shift+Right", "shift+Down", "ctrl+c")
    wanted = "\n".join("\t".join(program.cell_text(row, col) for col in (2, 3)) for row in (2, 3))
    wait_for(f"{wanted!r} on the clipboard", lambda: copied() == wanted)
    selected = Atspi.Table.get_n_selected_rows(program.table())
    expect("whole rows selected", selected, 0)


def draw_border(program):
    """Of the first grade, in the heads; the width is given back."""
    x, y, width, height = place_of(program.cell(1, 2))
    xdotool("mousemove", x + width - 1, y + height // 2, "mousedown", 1)
    xdotool("mousemove", x + width + 20, y + height // 2, "mousemove", x + width + 39, y + height // 2)
    xdotool("mouseup", 1)
    wait_for("a wider column", lambda: place_of(program.cell(1, 2))[2] > width + 30)
    return place_of(program.cell(1, 2))[2]


def zoom(program):
    program.click(program.cell(4, 4))
    height = place_of(program.cell(4, 4))[3]
    program.keys("ctrl+plus", "ctrl+plus", "ctrl+plus")
    wait_for("larger rows", lambda: place_of(program.cell(4, 4))[3] > height)
    program.keys("ctrl+0")
    wait_for("rows as before", lambda: place_of(program.cell(4, 4))[3] == height)


def states(program):
    """What is red, what is a chip: in words."""
    told = {}
    for row in range(2, 30):
        for col in range(2, 8):
            cell = program.cell(row, col)
            told.setdefault(cell.get_name(), cell.get_description())
    expect("of a mark that is not there", told["NON"], "not done, counts as 0")
    expect("of an absence", told["ABS"], "absent")
    expect("of a good mark", told["100"], "")
    expect("of the head of a grade", "Maximum 20" in program.cell(1, 2).get_description(), True)


def tell(this):
    path = this.sample(CAPTION)
    program = this.start(path)
    program.frame(CAPTION)
    select_and_copy(program)
    width = draw_border(program)
    zoom(program)
    states(program)
    program.keys("ctrl+q")
    program.ended()

    program = this.start(path)
    program.frame(CAPTION)
    wait_for("the width of the last run", lambda: abs(place_of(program.cell(1, 2))[2] - width) <= 1)
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
