# SPDX-License-Identifier: GPL-3.0-or-later
# A student goes by the clipboard from one open class to another: a comment of several lines comes
# along, and the marks by their position.
from gi.repository import Atspi
from support import story
from support.program import build, dump, expect
from support.steps import open_file

COMMENT = "Sits in front.\r\nWears glasses.\r\n\r\nPlays chess."


def tell(this):
    source, target = this.path("FROM.TYR"), this.path("INTO.TYR")
    build(source, {"Instruments": [{"code": code} for code in ("QZ1", "HW1", "T1")],
                   "Students": [{"lastname": "Abbott", "firstname": "Ann", "id": "1",
                                 "Marks": ["", "1", "2", "3"]},
                                {"lastname": "Berger", "firstname": "Zoë", "id": "2",
                                 "phone": "555-0100", "comments": COMMENT,
                                 "Marks": ["", "91", "A-", "ABS"]}]})
    build(target, {"Instruments": [{"code": code} for code in ("ESS", "LAB")],
                   "Students": [{"lastname": "Costa", "firstname": "Cy", "id": "3",
                                 "Marks": ["", "70", "80"]}]})
    program = this.start(source)
    program.frame("FROM.TYR")
    program.keys("alt+s", "d")
    program.window("Delete Portal")
    program.await_focus(Atspi.Role.LIST, "Students")
    program.keys("Home", "Down")
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Delete to Clipbd"))
    program.box("NOTE: The Clipboard can hold only ONE student at a time. Delete Berger, Zoë and save "
                "the student to the CLIPBOARD? ", "Return", title="Delete Portal")
    program.window("Delete Portal")
    program.keys("alt+x")
    program.gone("Delete Portal")
    program.frame("FROM.TYR")
    expect("who is left", program.column(0, 2), ["1 Abbott, Ann", ""])
    open_file(program, target, "INTO.TYR")

    program.keys("ctrl+Insert")
    program.window("Add Student Portal")
    program.keys("alt+f")
    program.await_text("Last name", "Berger")
    program.keys("alt+f")
    program.box("You have already read this information into the class.", "Return")
    program.window("Add Student Portal")
    program.keys("alt+x")
    program.gone("Add Student Portal")
    program.frame("INTO.TYR")
    program.keys("ctrl+s")
    program.keys("ctrl+q")
    program.box("FROM.TYR Data has been changed. Save File?  ", "Return")
    program.ended()

    students = dump(target)["Students"]
    expect("who came", [student["lastname"] for student in students], ["Berger", "Costa"])
    expect("the comment", students[0]["comments"], COMMENT)
    expect("first name and phone", [students[0]["firstname"], students[0]["phone"]],
           ["Zoë", "555-0100"])
    expect("the marks", students[0]["Marks"][1:], ["91", "A-"])
    expect("the old class", [student["lastname"] for student in dump(source)["Students"]],
           ["Abbott"])


story.run(tell)
