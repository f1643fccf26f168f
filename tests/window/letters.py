# SPDX-License-Identifier: GPL-3.0-or-later
# A form letter is written with formatting and codes; the two selection keys mark in it, plain
# letters type, and it is searched and changed with each option, typing in the letter meanwhile; the
# menu key puts a misspelt word right.
import os
import pathlib

from gi.repository import Atspi
from support import story
from support.program import text_of, wait_for, xdotool

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


def write_while_searching(program):
    """The window of the search stands beside the letter, which takes keys and the caret meanwhile."""
    program.keys("ctrl+Home", "ctrl+f")
    program.window("Find and Replace Portal")
    program.fill("us")
    program.keys("alt+f")
    box = Atspi.Component.get_extents(program.widget(Atspi.Role.TEXT, "Form letter"), Atspi.CoordType.SCREEN)
    xdotool("mousemove", box.x + box.width // 2, box.y + 20, "click", 1)  # the search covers the middle
    program.window(PORTAL)
    program.keys("ctrl+End")
    program.type(" Thus us.")
    await_letter(program, "Progress\nDear <First Name>, call us. Thus us.")
    program.keys("ctrl+Home", "ctrl+f")
    program.window("Find and Replace Portal")
    program.fill("us", "me")  # a whole word still, as the window was left
    program.keys("alt+f", "alt+a")
    program.box("          Replacing Completed", "Return")
    await_letter(program, "Progress\nDear <First Name>, call me. Thus me.")
    program.window("Find and Replace Portal")
    program.keys("alt+x")
    program.window(PORTAL)
    program.keys("ctrl+z", "ctrl+z")
    await_letter(program, "Progress\nDear <First Name>, call us.")


def windows_of(program):
    """How many the screen shows; a menu is one too, though none that is named."""
    return len(xdotool("search", "--onlyvisible", "--all", "--pid", program.process.pid, "--name", ".*").split())


def put_a_word_right(program):
    program.keys("ctrl+End")
    program.type(" helo")
    program.keys("Left")
    before = windows_of(program)
    program.keys("Menu")
    wait_for("the menu", lambda: windows_of(program) > before)
    program.keys("Down", "Return")
    await_letter(program, "Progress\nDear <First Name>, call us. hello")


def make_dictionary():
    folder = pathlib.Path(os.environ["HOME"], ".local", "share", "hunspell")
    folder.mkdir(parents=True)
    (folder / "en_US.aff").write_text("SET UTF-8\nTRY esianrtolcdugmphbyfvkwz\n")
    (folder / "en_US.dic").write_text("5\nhello\nprogress\ndear\ncall\nus\n")


def tell(this):
    make_dictionary()
    program = this.start(this.sample("MATH.TYR"))
    program.frame("MATH.TYR")
    program.keys("alt+t", "w")
    program.window(PORTAL)
    write(program)
    selection_keys(program)
    find_and_replace(program)
    write_while_searching(program)
    put_a_word_right(program)


story.run(tell)
