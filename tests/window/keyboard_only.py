# SPDX-License-Identifier: GPL-3.0-or-later
# A class is made, a student changed and all saved without the mouse.
from gi.repository import Atspi
from support import story
from support.program import dump, expect, states, wait_for
from support.steps import pass_greeting


def make_class(program, path):
    program.keys("alt+f", "n", "p")
    program.window("Add Student Portal")
    program.await_focus(Atspi.Role.TEXT, "Last name")
    program.fill("Young", "Carla", "777")
    program.keys("alt+n")
    program.await_text("ID", "")
    program.fill("Abbott", "Ben", "555")
    program.keys("alt+x")
    program.choose_file("Save As", path)
    program.frame("KEYS.TYR")


def walk_grid(program):
    """The arrows move the current cell, and F6 goes to the toolbar and back."""
    program.keys("F6")
    program.await_focus(Atspi.Role.PUSH_BUTTON, "New Class by the Wizard")
    program.keys("F6", "Home", "ctrl+Home", "Right", "Down", "Down", "Up")
    wait_for("the current cell in row 3, column 3",
             lambda: states(program.cell(3, 3)).contains(Atspi.StateType.FOCUSED))


def change_name(program):
    program.keys("alt+s", "e")
    program.window("Edit Portal")
    program.await_focus(Atspi.Role.LIST, "Students")
    program.keys("Down", "Down")
    program.keys("alt+d")
    program.await_text("ID", "777")
    program.keys("alt+l")
    program.await_focus(Atspi.Role.TEXT, "Last name")
    program.fill("Younger")
    program.keys("Tab", "Tab")
    program.await_focus(Atspi.Role.TEXT, "ID")
    program.keys("alt+x")
    program.gone("Edit Portal")


def tell(this):
    path = this.path("KEYS.TYR")
    program = this.start()
    pass_greeting(program)
    make_class(program, path)
    expect("names", program.column(0, 2), ["1 Abbott, Ben", "2 Young, Carla"])
    walk_grid(program)
    change_name(program)
    program.frame("KEYS.TYR")
    expect("names", program.column(0, 2), ["1 Abbott, Ben", "2 Younger, Carla"])

    # Escape leaves a Portal in which nothing was changed, and a menu.
    program.keys("ctrl+e")
    program.window("Edit Portal")
    program.keys("Escape")
    program.gone("Edit Portal")
    program.keys("alt+f", "Escape", "Escape")
    program.keys("alt+f", "s")
    program.keys("alt+f", "x")
    program.ended()
    expect("saved", [s["lastname"].strip() for s in dump(path)["Students"]], ["Abbott", "Younger"])


story.run(tell)
