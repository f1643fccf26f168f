# SPDX-License-Identifier: GPL-3.0-or-later
# The first start as a screen reader meets it: greeting, first page, the wizard page by page, the
# steps that show where things are, and the class window that they end in.
from gi.repository import Atspi
from support import story
from support.menus import Tour
from support.program import states, wait_for
from support.reader import faults_of, focus_faults, tab_faults
from support.steps import TOUR

WIZARD = "Start a New Class Wizard"


def read_here(tour, where, window):
    tour.note(where, focus_faults(window) + faults_of(window))


def read_greeting(program, tour):
    tour.read("Welcome to Tallyroll")
    program.window("Welcome to Tallyroll")
    program.keys("Escape")
    program.gone("Welcome to Tallyroll")


def read_wizard(program, tour):
    program.keys("ctrl+shift+n")
    window = program.window(WIZARD)
    for step in range(1, 5):
        program.await_label(f"Step {step} of 8")
        read_here(tour, f"{WIZARD}, step {step}", window)
        tour.note(f"{WIZARD}, step {step}", tab_faults(program, window, tour.listener))
        if step < 4:
            program.keys("alt+n")
    program.keys("Escape")
    program.gone(WIZARD)


def told_button(program):
    """What is read with the button that has the focus."""
    for name in ("Open the sample class", "Next", "Done"):
        node = program.find(Atspi.Role.PUSH_BUTTON, name)
        if node and states(node).contains(Atspi.StateType.FOCUSED):
            return node.get_description() or ""
    return ""


def follow_steps(program, tour):
    program.keys("Return")
    frame = program.frame("SAMPLE8.TYR")
    for title in TOUR:
        wait_for(f"{title!r} told with the button", lambda title=title: title in told_button(program))
        read_here(tour, title, frame)
        program.keys("Return")
    program.await_focus(Atspi.Role.TABLE, "Students and grades")
    read_here(tour, "the class window", frame)


def tell(this):
    program = this.start()
    program.window("Welcome to Tallyroll")
    tour = Tour(program, None)
    read_greeting(program, tour)
    frame = program.frame()
    wait_for("the offer told with its button", lambda: "first time" in told_button(program))
    read_here(tour, "the first page", frame)
    follow_steps(program, tour)
    program.keys("ctrl+w")
    program.start_page()
    read_wizard(program, tour)
    tour.tell()


story.run(tell, first_start=True)
