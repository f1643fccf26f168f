# SPDX-License-Identifier: GPL-3.0-or-later
"""Ways through the program that several stories take."""
from gi.repository import Atspi
from support.program import expect


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
