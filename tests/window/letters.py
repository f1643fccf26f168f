# SPDX-License-Identifier: GPL-3.0-or-later
# A form letter is written with formatting and codes, looked at as merged, saved, searched, and goes
# to five students: as one PDF and as files; labels are asked for. Then it is opened again.
import subprocess

from gi.repository import Atspi
from support import story
from support.program import expect, text_of, wait_for

PORTAL = "Tallyroll Word Processor"
CHANGED = "Data has been changed. Save File?  "


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


def choose_students(program, count):
    program.keys("ctrl+t")
    program.window("Student Portal")
    program.await_focus(Atspi.Role.LIST, "Students")
    program.keys("Home", *["shift+Down"] * (count - 1), "alt+e", "alt+f")
    program.window(PORTAL)


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
    """With each option; what was replaced is taken back."""
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
    program.keys("ctrl+z", "ctrl+z")
    await_letter(program, "Progress\nDear <First Name>, see us.")


def look_as_merged(program, names):
    program.keys("F5")
    for i, name in enumerate(names):
        await_letter(program, f"Progress\nDear {name}, see us.", "Letter as merged")
        program.keys(*["alt+Next"] * (i + 1 < len(names)))
    program.keys("F6")
    program.await_label("Page 1 of 1")
    program.keys("Escape")
    await_letter(program, "Progress\nDear <First Name>, see us.")


def menu(program, *path):
    """A command by the mnemonics of the menu."""
    program.keys(*path)


def save_as_pdf(this, program, names):
    menu(program, "alt+f", "d")
    path = this.path("all.pdf")
    program.choose_file("Save As", path)
    program.window(PORTAL)
    words = subprocess.run(["pdftotext", "-layout", path, "-"], capture_output=True, text=True,
                           check=True).stdout
    expect("pages", words.count("\f"), len(names))
    expect("the letters in the PDF", [line.strip() for line in words.split("\n") if "Dear" in line],
           [f"Dear {name}, see us." for name in names])


def save_letters(this, program):
    menu(program, "alt+f", "v")
    program.choose_file("Save As", this.path("note.rtf"))
    program.window(PORTAL)
    files = sorted(p.name for p in this.folder.glob("note_*"))
    expect("files of letters", len(files), 5)


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
    program.keys("ctrl+z")


def tell(this):
    program = this.start(this.sample("MATH.TYR"))
    program.frame("MATH.TYR")
    program.keys("alt+t", "w")
    program.window(PORTAL)
    write(program)
    selection_keys(program)
    find_and_replace(program)
    program.keys("ctrl+s")
    program.choose_file("Save As", this.path("form.rtf"))
    choose_students(program, 5)
    program.await_label("5 students are chosen")
    names = [s["firstname"].strip() for s in story_students(this)[:5]]
    look_as_merged(program, names)
    save_as_pdf(this, program, names)
    save_letters(this, program)
    menu(program, "alt+f", "l")
    press(program, "Cancel")
    program.keys("Escape")
    program.frame("MATH.TYR")
    again(this, program)


def story_students(this):
    from support.program import dump
    return dump(this.path("MATH.TYR"))["Students"]


def again(this, program):
    """The saved letter opens as it was; leaving it changed asks."""
    program.keys("alt+t", "w")
    program.window(PORTAL)
    program.keys("ctrl+o")
    program.choose_file("Open", this.path("form.rtf"))
    program.window(PORTAL + " form.rtf")
    await_letter(program, "Progress\nDear <First Name>, see us.")
    program.type("X")
    program.keys("Escape")
    program.box(CHANGED, "Escape")
    program.window(PORTAL + " form.rtf")
    program.keys("Escape")
    program.box(CHANGED, "alt+n")
    program.frame("MATH.TYR")


story.run(tell)
