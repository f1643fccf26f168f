# SPDX-License-Identifier: GPL-3.0-or-later
# At 170 percent the screen of 1600 x 1100 has 941 x 647 of the program's pixels: each Portal opens
# within it, and its buttons at the foot can be clicked.
from gi.repository import Atspi
from support import story
from support.program import Failure, xdotool

SCREEN = (1600, 1100)
PORTALS = {
    "Enter  Grades  Portal": (("ctrl+g",), "Exit"),
    "Edit Grades by Title Portal": (("ctrl+t",), "Cancel"),
    "Printer Portal": (("ctrl+p",), "Cancel"),
    "Class Information Portal": (("ctrl+i",), "Cancel"),
    "Edit Portal": (("ctrl+e",), "Cancel"),
}


def expect_on_screen(program, node, what):
    box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    inside = (box.x >= 0 and box.y >= 0 and box.x + box.width <= SCREEN[0]
              and box.y + box.height <= SCREEN[1])
    if not inside:
        raise Failure(f"{what} stands at {box.x},{box.y} with {box.width}x{box.height}")


def tell(this):
    program = this.start(this.sample("SAMPLE8.TYR"), environment={"QT_SCALE_FACTOR": "1.7"})
    program.frame("SAMPLE8.TYR")
    for title, (keys, button) in PORTALS.items():
        program.keys(*keys)
        window = program.window(title)
        leave = program.widget(Atspi.Role.PUSH_BUTTON, button, window)
        expect_on_screen(program, leave, f"{button} of {title}")
        program.click(leave)
        program.gone(title)
        program.frame("SAMPLE8.TYR")
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
