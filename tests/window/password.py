# SPDX-License-Identifier: GPL-3.0-or-later
# A class is locked with a password; the wrong one is refused, and giving up leaves no window.
from gi.repository import Atspi
from support import story
from support.program import dump, expect
from support.steps import no_class_open

PORTAL = "Password Window"
NEW = "Enter your case sensitive password  (up to 10 characters)"
OPENING = "Enter your case sensitive password"


def enter(program, label, text):
    program.window(PORTAL)
    program.await_focus(Atspi.Role.PASSWORD_TEXT, label)
    program.keys("ctrl+a")
    program.type(text)
    program.keys("Return")


def set_password(program, password):
    program.keys("alt+f", "w", "r")
    enter(program, NEW, password)
    enter(program, "Re-enter your password", password + "x")
    program.box("Passwords do not match. Re-enter", "Return")
    enter(program, NEW, password)
    enter(program, "Re-enter your password", password)
    program.gone(PORTAL)


def open_again(program):
    program.start_page()
    program.keys("alt+f", "1")
    program.window(PORTAL)


def tell(this):
    path = this.sample()
    program = this.start(path)
    program.frame("MATH.TYR")
    set_password(program, "Chalk7")
    program.frame("MATH.TYR")
    program.keys("ctrl+w")
    program.start_page()
    locked = dump(path)
    expect("locked", locked["PasswordSet"], 1)
    expect("the password stands scrambled", "Chalk7" in locked["Password"], False)

    open_again(program)
    enter(program, OPENING, "chalk7")
    program.box("Password incorrect. Please re-enter.", "Return")
    enter(program, OPENING, "Chalk7")
    program.frame("MATH.TYR")
    expect("the first student", program.cell_text(2, 0)[:2], "1 ")
    program.keys("ctrl+w")

    open_again(program)
    program.keys("Escape")
    program.box("Are you sure you want to cancel?", "alt+n")
    program.window(PORTAL)
    program.keys("alt+c")
    program.box("Are you sure you want to cancel?", "alt+y")
    no_class_open(program)
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
