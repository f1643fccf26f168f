# SPDX-License-Identifier: GPL-3.0-or-later
# At 170 percent the screen of 1600 x 1100 has 941 x 647 of the program's pixels: each Portal opens
# within it, and its buttons at the foot can be clicked.
from gi.repository import Atspi
from support import story
from support.program import Failure, xdotool

SCALE = 1.7
SCREEN = (1600, 1100)
PORTALS = {
    "Enter  Grades  Portal": (("ctrl+g",), "Exit"),
    "Edit Grades by Title Portal": (("ctrl+t",), "Cancel"),
    "Printer Portal": (("ctrl+p",), "Exit"),
    "Edit Portal": (("ctrl+e",), "Cancel"),
}


def place_of(node):
    """On the screen; accessibility tells it in the program's pixels."""
    box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return [round(SCALE * number) for number in (box.x, box.y, box.width, box.height)]


def click_on_screen(node, what):
    x, y, width, height = place_of(node)
    if x < 0 or y < 0 or x + width > SCREEN[0] or y + height > SCREEN[1]:
        raise Failure(f"{what} stands at {x},{y} with {width}x{height}")
    xdotool("mousemove", x + width // 2, y + height // 2, "click", 1)


def tell(this):
    program = this.start(this.sample("SAMPLE8.TYR"), environment={"QT_SCALE_FACTOR": str(SCALE)})
    program.frame("SAMPLE8.TYR")
    for title, (keys, button) in PORTALS.items():
        program.keys(*keys)
        window = program.window(title)
        leave = program.widget(Atspi.Role.PUSH_BUTTON, button, window)
        click_on_screen(leave, f"{button} of {title}")
        program.gone(title)
        program.frame("SAMPLE8.TYR")
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
