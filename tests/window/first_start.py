# SPDX-License-Identifier: GPL-3.0-or-later
# The first start offers the sample class and shows in five steps where things are; Escape leaves it,
# and it never comes again.
from gi.repository import Atspi
from support import story
from support.program import expect
from support.steps import pass_greeting

TITLES = ["1 of 5: Your class", "2 of 5: A new grade", "3 of 5: Attendance", "4 of 5: Averages",
          "5 of 5: Reports, and help"]


def tell(this):
    program = this.start()
    pass_greeting(program)
    program.await_label("Your first time here?")
    program.await_focus(Atspi.Role.PUSH_BUTTON, "Open the sample class")
    program.keys("Return")
    program.frame("SAMPLE8.TYR")
    for title in TITLES[:4]:
        program.await_label(title)
        program.keys("Return")
    program.await_label(TITLES[4])
    program.keys("Escape")
    program.await_focus(Atspi.Role.TABLE, "Students and grades")
    expect("the tour's title", program.find_label(TITLES[4]), None)
    program.keys("ctrl+q")
    program.ended()

    again = this.start()
    pass_greeting(again)
    again.await_label("Recent classes")
    expect("another offer", again.find_label("Your first time here?"), None)
    again.keys("ctrl+q")
    again.ended()


story.run(tell, first_start=True)
