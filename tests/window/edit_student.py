# SPDX-License-Identifier: GPL-3.0-or-later
# A phone number is changed by a double click on the name, saved, and found again.
from gi.repository import Atspi
from support import story
from support.program import dump, expect, text_of

NEW_PHONE = "555-0199"


def show_phone(program):
    program.click(program.cell(2, 0), times=2)
    program.window("Edit Portal")
    program.click(program.widget(Atspi.Role.PAGE_TAB, "Supplementary"))
    return program.field("Home phone")


def tell(this):
    path = this.sample()
    before = dump(path, "--opened")
    first = before["Students"][0]
    expect("the phone before", first["phone"] == NEW_PHONE, False)

    program = this.start(path)
    program.frame("MATH.TYR")
    expect("first name", program.cell_text(2, 0),
           f"1 {first['lastname'].strip()}, {first['firstname'].strip()}")
    program.click(show_phone(program))
    program.fill(NEW_PHONE)
    program.await_text("Home phone", NEW_PHONE)
    program.keys("alt+x")
    program.gone("Edit Portal")
    expect("the file before it is saved", dump(path, "--opened"), before)

    program.frame("MATH.TYR")
    program.keys("ctrl+s", "ctrl+q")
    program.ended()

    again = this.start()
    again.window("Welcome to Tallyroll")
    again.keys("Return")
    again.start_page()
    again.keys("alt+f", "1")
    again.frame("MATH.TYR")
    expect("the phone on the screen", text_of(show_phone(again)), NEW_PHONE)
    again.keys("Escape")
    again.gone("Edit Portal")
    again.keys("ctrl+q")
    again.ended()

    first["phone"] = NEW_PHONE
    expect("the class after all", dump(path, "--opened"), before)


story.run(tell)
