# SPDX-License-Identifier: GPL-3.0-or-later
# The side panel by keyboard, by mouse and as a screen reader finds it: it follows the arrows, a
# typed name, and leads to a missing mark.
from gi.repository import Atspi
from support import story
from support.program import build, expect, is_shown, wait_for, walk, xdotool

ROLE = Atspi.Role
CLASS = {
    "description": "Mathematics 8",
    "AverageSettings": "2,0,0,0,0",
    "RoundMode": 0,
    "LetterValues": ["100", "99", "95", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "55"],
    "Instruments": [{"title": "Fractions", "code": "Q1", "typecode": "Q ", "mvalue": 100, "lowpass": "65",
                     "dropyn": "N", "testdate": "9/11/2026"},
                    {"title": "Ratios", "code": "T1", "typecode": "T ", "mvalue": 100, "lowpass": "65",
                     "dropyn": "N", "testdate": "9/12/2026"}],
    "Students": [{"lastname": "Ng", "firstname": "Ada", "id": "1", "Marks": ["", "80", "90"]},
                 {"lastname": "Orr", "firstname": "Bo", "id": "2", "Marks": ["", "60", "ABS"]},
                 {"lastname": "Poe", "firstname": "Cy", "id": "3", "Marks": ["", "70", "75"]}],
}


def panel(program):
    return next(node for top in program.windows() for node in walk(top)
                if node.get_name() == "Side panel" and node.get_role() != ROLE.PUSH_BUTTON)


def follow(program):
    # 170 of 200, 60 of 100 and 145 of 200 are 85, 60 and 72.5: 72.5 in the mean.
    program.await_labels("Ada Ng", "Average 85", "Final grade 85 B", "Fractions", "This mark 80",
                         "Median 70", "Class average 72.5", "Mathematics 8", "3 students", "Points")
    program.keys("Down")
    program.await_labels("Bo Orr", "Average 60", "This mark 60")
    program.type("poe")
    program.await_labels("Cy Poe", "Average 72.5")
    program.keys("Right")
    program.await_labels("Ratios", "This mark 75", "2 counted  \u00b7  1 missing  \u00b7  0 failing")


def read(program):
    nodes = [node for node in walk(panel(program)) if is_shown(node)]
    unnamed = [node.get_role().value_nick for node in nodes
               if node.get_role() in (ROLE.LABEL, ROLE.PUSH_BUTTON) and not node.get_name()]
    expect("words of the panel without a name", unnamed, [])
    told = {node.get_name(): node.get_description() for node in nodes}
    expect("the line of percents", told.get("Percents by grade"), "70 %, 75 %")
    expect("the bars", told.get("Marks by percent"), "from 70 %: 1, from 90 %: 1")


def missing(program):
    program.type("or")
    program.keys("Left")
    program.await_labels("Bo Orr", "Fractions")
    line = program.widget(ROLE.PUSH_BUTTON, "Missing: ABS Ratios")
    program.click(line)
    program.await_labels("This mark ABS")
    program.keys("Left")
    program.await_labels("This mark 60")
    program.keys("F6", "F6")  # by the toolbar into the panel
    program.await_focus(ROLE.PUSH_BUTTON, "Missing: ABS Ratios")
    program.keys("Return")  # what a double click on the mark does
    program.window("Edit Grades by Title Portal")
    program.keys("Escape")
    program.frame("ROLL.TYR")
    program.await_focus(ROLE.TABLE, "Students and grades")
    program.type("ng")
    program.await_labels("Ada Ng")
    program.keys("F4")
    wait_for("no panel", lambda: program.find_label("Ada Ng") is None)
    program.keys("F4")
    program.await_labels("Ada Ng")


def tell(this):
    path = this.path("ROLL.TYR")
    build(path, CLASS)
    program = this.start(path)
    program.frame("ROLL.TYR")
    expect("the panel in a window of 1024", program.find_label("Ada Ng"), None)
    xdotool("windowsize", "--sync", xdotool("getactivewindow"), 1400, 900)
    follow(program)
    read(program)
    missing(program)
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
