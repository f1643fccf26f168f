# SPDX-License-Identifier: GPL-3.0-or-later
# A new user's first hour, by keyboard alone and with nothing but what the screens say: from the first
# page attendance is taken, a quiz entered, an average seen and a report printed into a file.
import subprocess
import time

from gi.repository import Atspi
from support import story
from support.program import dump, expect, states, wait_for
from support.steps import command, pass_greeting, pass_tour

QUIZ = "Enter  Grades  Portal"
WEIGHTS = "Weights Portal - Individual Items"


def take_attendance(program):
    """The letters stand above the month."""
    command(program, "attendance", "Daily Attendance")
    program.window("Enter Attendance Portal")
    program.widget(Atspi.Role.TABLE, "Attendance")
    program.keys("Down", "Home", "l", "alt+x")
    program.gone("Enter Attendance Portal")
    program.frame("SAMPLE8.TYR", changed=True)


def enter_quiz(program, students):
    """Return leads from field to field, the buttons name their keys."""
    command(program, "enter grades", "Grades")
    program.window(QUIZ)
    program.await_label(f"0 of {students} entered")
    program.type("Quiz 9")
    program.keys("Return", *"Q9", "Return", *"20", *["Return"] * 4, "q", "Return")
    program.keys(*"18", "Return", *"15", "Return")
    program.await_label(f"2 of {students} entered, average 16.5")
    program.keys("F6", "F5", "alt+l", "alt+o")
    program.await_label(f"{students} of {students} entered, average 16.5")
    program.keys("alt+x")
    program.gone(QUIZ)
    program.frame("SAMPLE8.TYR", changed=True)


def see_average(program):
    """The class's new grade has no weight yet: all are given the same."""
    command(program, "weights individual items", "Assign Weights")
    program.window(WEIGHTS)
    program.keys("alt+e", "alt+o")
    program.box("Do you want to save these weights?", "Return", title="SAVE WEIGHTS")
    program.window("Rounding Modification Portal")
    program.keys("Return")
    program.window("Grades Portal")
    program.keys("alt+n")
    program.await_labels("Abrams")
    program.keys("alt+x")
    program.window("Save File")
    program.keys("alt+n")  # not as a grade
    program.frame("SAMPLE8.TYR", changed=False)  # with its weights it was saved


def tab_to(program, name):
    """As who sees the button and reaches for no mouse."""
    button = program.widget(Atspi.Role.PUSH_BUTTON, name)
    for _ in range(30):
        if states(button).contains(Atspi.StateType.FOCUSED):
            return
        program.keys("Tab")
        time.sleep(0.1)
    program.await_focus(Atspi.Role.PUSH_BUTTON, name)


def print_report(this, program):
    command(program, "print full class", "Print Full Class")
    program.window("Printer Portal")
    tab_to(program, "Preview")
    program.keys("Return")
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.window("Print Preview Portal")
    path = this.path("grades.pdf")
    program.keys("alt+d")
    program.choose_file("Save As", path)
    program.window("Print Preview Portal")
    words = subprocess.run(["pdftotext", path, "-"], capture_output=True, text=True,
                           check=True).stdout
    expect("the first student in the report", "Abrams, Naomi" in words, True)
    program.keys("Escape")
    program.window("Printer Portal", "Save File")
    if program.front() == "Save File":
        program.keys("alt+n")
    program.window("Printer Portal")
    program.keys("Escape")
    program.frame("SAMPLE8.TYR")


def marks_of(record):
    return [student["DailyMarks"] for student in record["Students"]]


def tell(this):
    program = this.start()
    pass_greeting(program)
    program.await_focus(Atspi.Role.PUSH_BUTTON, "Open the sample class")
    program.keys("Return")
    program.frame("SAMPLE8.TYR")
    path = wait_for("the sample", lambda: next(this.home().rglob("Sample8.TYR"), None))
    before = dump(str(path))
    pass_tour(program)
    take_attendance(program)
    enter_quiz(program, len(before["Students"]))
    see_average(program)
    print_report(this, program)
    program.keys("ctrl+s", "ctrl+q")
    program.ended()

    after = dump(str(path))
    quiz = after["Instruments"][-1]
    expect("the quiz", [quiz["title"], quiz["code"], quiz["mvalue"], quiz["typecode"].strip()],
           ["Quiz 9", "Q9", 20, "Q"])
    expect("its marks", [student["Marks"][-1] for student in after["Students"]],
           ["18", "15"] + ["ABS"] * (len(after["Students"]) - 2))
    changed = sum(one != other for was, now in zip(marks_of(before), marks_of(after))
                  for one, other in zip(was, now))
    expect("days of attendance that changed", changed, 1)


story.run(tell, first_start=True)
