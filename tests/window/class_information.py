# SPDX-License-Identifier: GPL-3.0-or-later
# The class's information is read, changed and saved; its dates are read as they were written.
from gi.repository import Atspi
from support import story
from support.program import dump, expect, text_of

PORTAL = "Class Information Portal"


def tell(this):
    path = this.sample()
    program = this.start(path)
    program.frame("MATH.TYR")
    program.keys("alt+f", "i")
    window = program.window(PORTAL)
    expect("term starts", text_of(program.field("Term starts", window)), "9/1/2026")
    picker = program.widget(Atspi.Role.SPIN_BUTTON, "Pick the date on which the term starts", window)
    expect("the date in the picker", text_of(picker), "1 Sep 2026")

    program.await_focus(Atspi.Role.TEXT, "Description")
    program.keys("alt+r")
    program.fill("305")
    program.await_text("Room", "305")
    program.keys("Escape")
    program.box("Data has been entered. Are you sure you want to CANCEL?", "alt+n", title="CANCEL")
    program.window(PORTAL)
    program.keys("alt+x")
    program.gone(PORTAL)
    program.frame("MATH.TYR")
    program.keys("ctrl+s", "ctrl+q")
    program.ended()
    after = dump(path)
    expect("room", after["room"], "305")
    expect("term starts", after["termstart"], "9/1/2026")


story.run(tell)
