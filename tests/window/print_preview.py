# SPDX-License-Identifier: GPL-3.0-or-later
# Reports of the sample class: one is looked at page by page and saved in three forms, all by keys;
# one on some students goes through the mouse. What is saved is what the command line makes.
import subprocess

from gi.repository import Atspi
from support import story
from support.program import command_line, expect, xdotool


def read(path):
    with open(path, "rb") as file:
        return file.read()


def made(this, path, *options):
    """The same report by the command line."""
    out = this.path("made" + path[-4:])
    command_line("report", *options, "--out", out, this.path("MATH.TYR"))
    return read(out)


def look_at_pages(program):
    program.await_labels(" 1", "4")
    program.keys("alt+b", "alt+f")  # nothing lies before the first page
    program.await_labels(" 1", "4")
    program.keys("alt+n", "alt+n")
    program.await_labels(" 3", "4")
    program.keys("alt+l", "alt+n")
    program.await_labels(" 4")
    program.keys("alt+f", "alt+i", "alt+i", "alt+i", "alt+o")
    program.await_labels(" 1", "4")
    program.widget(Atspi.Role.COMBO_BOX, "125 %")


def save(program, key, path):
    program.keys(f"alt+{key}")
    program.choose_file("Save As", path)
    program.window("Print Preview Portal")


def averages_of_the_class(this, program):
    program.keys("ctrl+p")
    program.window("Printer Portal")
    program.keys("alt+c", "alt+v")
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Preview"))
    program.window("Tallyroll Printing")
    program.type("First Term")
    program.keys("Return")
    program.window("Print Preview Portal")
    look_at_pages(program)
    text, html, pdf = (this.path(f"out.{ending}") for ending in ("txt", "htm", "pdf"))
    save(program, "s", text)
    save(program, "h", html)
    save(program, "d", pdf)
    expect("the text", read(text), made(this, ".txt", "--code", "11", "--encoding", "utf-8"))
    expect("the HTML", read(html), made(this, ".htm", "--code", "11"))
    words = subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True, text=True, check=True).stdout
    expect("pages of the PDF", words.count("\f"), 4)
    expect("the title in the PDF", "First Term" in words, True)
    program.keys("Escape")  # the averages are as they were saved: nothing is asked
    program.window("Printer Portal")


def two_students(this, program):
    program.keys("alt+s")
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Preview"))
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.box("Choose the NAME of the student whose record you wish to print.", "Return")
    names = program.widget(Atspi.Role.LIST, "Students to print")
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Choose All"))
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Clear List"))
    box = Atspi.Component.get_extents(names.get_child_at_index(0), Atspi.CoordType.SCREEN)
    xdotool("mousemove", box.x + 8, box.y + box.height // 2, "click", 1)
    program.keys("Down", "Down", "space")
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Preview"))
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.window("Print Preview Portal")
    program.await_labels(" 1", "2")
    program.keys("alt+n")
    program.await_labels(" 2")
    path = this.path("one.txt")
    program.keys("alt+s")
    program.click(program.widget(Atspi.Role.RADIO_BUTTON, "Current student only"))
    program.keys("alt+t")
    program.choose_file("Save As", path)
    program.window("Print Preview Portal")
    expect("the second student alone", read(path),
           made(this, ".txt", "--code", "13", "--student", "8153", "--encoding", "utf-8"))
    program.keys("Escape")
    program.window("Printer Portal")


def tell(this):
    program = this.start(this.sample("MATH.TYR"))
    program.frame("MATH.TYR")
    averages_of_the_class(this, program)
    two_students(this, program)
    program.keys("Escape")
    program.frame("MATH.TYR")
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
