# SPDX-License-Identifier: GPL-3.0-or-later
# A form letter is written with formatting and codes; the two selection keys mark in it, plain
# letters type, and it is searched and changed with each option.
from gi.repository import Atspi
from support import story
from support.program import text_of, wait_for

PORTAL = "Tallyroll Word Processor"


def letter(program, name="Form letter"):
    return text_of(program.widget(Atspi.Role.TEXT, name))


def await_letter(program, text, name="Form letter"):
    wait_for(f"{text!r} in the letter, not {letter(program, name)!r}",
             lambda: letter(program, name) == text)


def press(program, name, role=Atspi.Role.PUSH_BUTTON):
    program.click(program.widget(role, name))


def choose_code(program, downs):
    """A code of the list, by the mouse and the arrows."""
    press(program, "Field Names", Atspi.Role.COMBO_BOX)
    program.keys("Home", *["Down"] * downs, "Return")


def write(program):
    program.keys("ctrl+b")
    program.type("Progress")
    program.keys("ctrl+b", "Return")
    program.type("Dear ")
    choose_code(program, 1)
    await_letter(program, "Progress\nDear <First Name>")
    program.type(", see us.")
    await_letter(program, "Progress\nDear <First Name>, see us.")


def find_and_replace(program):
    """With each option; what was replaced last is taken back."""
    program.keys("ctrl+Home", "ctrl+f")
    program.window("Find and Replace Portal")
    program.fill("SEE")
    program.keys("Tab")
    program.type("call")
    program.keys("alt+c", "alt+f")
    program.box("String not found", "Return")
    program.window("Find and Replace Portal")
    program.keys("alt+c", "alt+h", "alt+f", "alt+r")
    program.box("String not found", "Return")  # none is left
    await_letter(program, "Progress\nDear <First Name>, call us.")
    program.window("Find and Replace Portal")
    program.fill("us", "me")
    program.keys("alt+f")
    program.keys("alt+a")
    program.box("          Replacing Completed", "Return")
    await_letter(program, "Progress\nDear <First Name>, call me.")
    program.keys("Escape")
    program.window(PORTAL)
    program.keys("ctrl+z")
    await_letter(program, "Progress\nDear <First Name>, call us.")


def selection_keys(program):
    program.keys("ctrl+End", "Left", "ctrl+shift+w", "ctrl+x")
    await_letter(program, "Progress\nDear <First Name>, see .")
    program.keys("ctrl+z", "ctrl+shift+s", "ctrl+x")
    await_letter(program, "Progress\n.")
    program.keys("ctrl+z")
    await_letter(program, "Progress\nDear <First Name>, see us.")
    program.keys("ctrl+End")
    program.type("SWsw")  # plain letters type
    await_letter(program, "Progress\nDear <First Name>, see us.SWsw")
    program.keys(*["BackSpace"] * 4)


def tell(this):
    program = this.start(this.sample("MATH.TYR"))
    program.frame("MATH.TYR")
    program.keys("alt+t", "w")
    program.window(PORTAL)
    write(program)
    selection_keys(program)
    find_and_replace(program)


story.run(tell)
