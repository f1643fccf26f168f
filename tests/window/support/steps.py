# SPDX-License-Identifier: GPL-3.0-or-later
"""Ways through the program that several stories take."""
from gi.repository import Atspi
from support.program import expect, wait_for


def open_file(program, path, caption):
    program.keys("ctrl+o")
    program.choose_file("Open", path)
    program.frame(caption)


def pass_greeting(program):
    program.window("Welcome to Tallyroll")
    program.keys("Return")
    program.start_page()


def change_first_phone(program, caption, phone):
    """By the edit entry's key, the list and the second page; the class is changed, not saved."""
    program.frame(caption)
    program.keys("ctrl+e")
    program.window("Edit Portal")
    program.await_focus(Atspi.Role.LIST, "Students")
    program.keys("Home")
    program.await_focus(Atspi.Role.LIST, "Students")
    program.click(program.widget(Atspi.Role.PAGE_TAB, "Supplementary"))
    program.keys("alt+h")
    program.fill(phone)
    program.await_text("Home phone", phone)
    program.keys("alt+x")
    program.gone("Edit Portal")
    program.frame(caption)


def phone_of(student_dump):
    return student_dump["Students"][0]["phone"]


def no_class_open(program):
    program.start_page()
    expect("tables on the screen",
           program.find(Atspi.Role.TABLE, "Students and grades") is None, True)


TOUR = ["1 of 5: Your class", "2 of 5: A new grade", "3 of 5: Attendance", "4 of 5: Averages",
        "5 of 5: Reports, and help"]


def pass_tour(program):
    """Step by step to the end, as the first start shows it."""
    for title in TOUR:
        program.await_label(title)
        program.keys("Return")
    program.await_focus(Atspi.Role.TABLE, "Students and grades")


def command(program, words, entry):
    """By Ctrl+K, once the entry stands on top."""
    program.keys("ctrl+k")
    program.window("Command")
    program.type(words)

    def on_top():
        found = program.widget(Atspi.Role.LIST, "What was found")
        return found.get_child_count() and found.get_child_at_index(0).get_name().startswith(entry)
    wait_for(f"{entry!r} on top", on_top)
    program.keys("Return")
    program.gone("Command")
