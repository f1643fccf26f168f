# SPDX-License-Identifier: GPL-3.0-or-later
# Sequences over side panel, find, command, marks while they are typed and undo that nobody planned:
# whatever comes between, the panel shows the current cell and the keys go where the eye is.
import time

from gi.repository import Atspi
from support import story
from support.program import build, dump, expect, wait_for, xdotool
from support.steps import command, open_file

ROLE = Atspi.Role
MARKS, TITLES = "Enter  Grades  Portal", "Edit Grades by Title Portal"
SURE = "Data has been entered. Are you sure you want to CANCEL?"


def record(students, marks):
    grade = {"typecode": "Q ", "mvalue": 100, "lowpass": "65", "dropyn": "N", "testdate": "9/11/2026"}
    return {
        "AverageSettings": "2,0,0,0,0",
        "RoundMode": 0,
        "LetterValues": ["100", "99", "95", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "55"],
        "Instruments": [{**grade, "title": "Fractions", "code": "Q1"}, {**grade, "title": "Ratios", "code": "T1"}],
        "Students": [{"lastname": last, "firstname": first, "id": str(i + 1), "Marks": ["", *marks[i]]}
                     for i, (last, first) in enumerate(students)],
    }


def missing_line(program):
    return program.find(ROLE.PUSH_BUTTON, "Missing: ABS Ratios")


def find(program, text, first):
    program.keys("ctrl+f")
    program.window("Find")
    program.type(text)

    def on_top():
        found = program.widget(ROLE.LIST, "What was found")
        return found.get_child_count() and first in found.get_child_at_index(0).get_name()
    wait_for(f"{first!r} on top", on_top)
    program.keys("Return")
    program.gone("Find")


# 1. A name is half typed in the table when Find is opened; what is typed afterwards is a new one.
def half_a_name(program):
    program.type("or")
    program.await_labels("Bo Orr")
    find(program, "poe", "Poe")
    program.await_labels("Cy Poe")
    program.type("n")
    program.await_labels("Ada Ng")


# 2. Undo is asked for where there is nothing to undo; the table has the keys again afterwards.
def nothing_to_undo(program):
    program.keys("ctrl+k")
    program.window("Command")
    program.type("undo")
    program.await_label("Nothing was changed since the class was opened.")
    program.keys("Return")
    program.window("Command")
    program.keys("Escape")
    program.gone("Command")
    program.keys("ctrl+z", "Down")
    program.await_labels("Bo Orr", "Average 60")


# 3. The missing mark is entered from the panel, taken back and made again.
def from_the_panel(program):
    program.click(program.widget(ROLE.PUSH_BUTTON, "Missing: ABS Ratios"), times=2)
    program.window(TITLES)
    program.keys("8", "0", "alt+x")
    program.gone(TITLES)
    program.await_labels("Bo Orr", "Ratios", "This mark 80", "Average 70")
    expect("a missing mark", missing_line(program), None)
    program.keys("ctrl+z")
    program.await_labels("This mark ABS", "Average 60")
    program.widget(ROLE.PUSH_BUTTON, "Missing: ABS Ratios")
    program.keys("ctrl+shift+z")
    program.await_labels("This mark 80", "Average 70")


# 4. The same by its name; what was used last stands on top before anything is typed, with why it is off.
def undo_by_name(program):
    command(program, "undo", "Undo")
    program.await_labels("This mark ABS")
    command(program, "redo", "Redo")
    program.await_labels("This mark 80")
    program.keys("ctrl+k")
    program.window("Command")
    program.await_label("Nothing was taken back.")  # Redo, used last, stands on top with its reason
    program.keys("Return")
    program.window("Command")
    program.keys("Escape")
    program.gone("Command")
    program.keys("ctrl+z")
    program.await_labels("This mark ABS")


# 5. The panel is put away while the focus stands in it.
def panel_with_the_focus(program):
    program.keys("F6", "F6")
    program.await_focus(ROLE.PUSH_BUTTON, "Missing: ABS Ratios")
    program.keys("F4")
    program.await_focus(ROLE.TABLE, "Students and grades")
    program.keys("Down", "F4")
    program.await_labels("Cy Poe", "This mark 75")


# 6. Over a Portal no other window opens; marks taken back leave nothing behind.
def keys_over_a_portal(program):
    program.keys("ctrl+g")
    program.window(MARKS)
    program.keys("ctrl+f", "ctrl+k", "F4")
    program.window(MARKS)
    program.keys("F5", "9", "Down", "8", "ctrl+z", "ctrl+z")
    program.await_label("0 of 3 entered")
    program.keys("Escape")
    wait_for("the Portal or its question", lambda: program.front() != MARKS)
    if program.front() == "CANCEL":
        program.box(SURE, "alt+y", title="CANCEL")
    program.gone(MARKS)
    program.frame("ROLL.TYR")
    program.await_labels("Cy Poe", "This mark 75")


# 7. A grade is entered, found, taken back while the cell stands in its column, and made again.
def grade_under_the_cell(program):
    program.keys("ctrl+g")
    program.window(MARKS)
    program.keys(*"Oral", "Tab", *"ORL", "F5", "7", "0", "Down", "8", "0", "Down", "9", "0")
    program.await_label("3 of 3 entered, average 80")
    program.keys("alt+o", "alt+x")
    program.gone(MARKS)
    find(program, "oral", "Oral")
    program.await_labels("Oral", "This mark 90", "Cy Poe")
    program.keys("ctrl+z")
    wait_for("no such grade", lambda: program.find_label("This mark 90") is None)
    program.await_labels("Ada Ng")  # Undo shows what it changed, from the first student on
    program.keys("ctrl+shift+z")
    program.await_labels("Oral")
    program.type("poe")
    program.await_labels("Oral", "This mark 90", "Cy Poe")
    program.keys("Left")
    program.await_labels("Ratios", "This mark 75")


# 8. To another class and back by Find; what is undone is this class's.
def other_class(program, path):
    open_file(program, path, "NEXT.TYR")
    program.await_labels("Zed Zander")
    program.keys("ctrl+k")
    program.window("Command")
    program.type("undo")
    program.await_label("Nothing was changed since the class was opened.")
    program.keys("Escape")
    program.gone("Command")
    find(program, "roll", "ROLL.TYR")
    program.frame("ROLL.TYR", changed=True)
    program.await_labels("Cy Poe", "Ratios", "This mark 75")
    program.keys("ctrl+z")
    wait_for("the grade to go", lambda: program.cell_text(1, 4) == "")
    program.keys("ctrl+shift+z")
    wait_for("the grade to come back", lambda: program.cell_text(1, 4) == "ORL")
    program.type("poe")
    find(program, "ratios", "Ratios")
    program.await_labels("Cy Poe", "Ratios", "This mark 75")


# 9. The student on whom the cell stands is deleted, and comes back.
def student_under_the_cell(program):
    program.keys("alt+s", "d")
    program.window("Delete Portal")
    program.await_focus(ROLE.LIST, "Students")
    program.keys("End")
    program.click(program.widget(ROLE.PUSH_BUTTON, "Delete to Clipbd"))
    program.box("NOTE: The Clipboard can hold only ONE student at a time. Delete Poe, Cy and save "
                "the student to the CLIPBOARD? ", "Return", title="Delete Portal")
    program.window("Delete Portal")
    program.keys("alt+x")
    program.gone("Delete Portal")
    wait_for("nobody", lambda: program.find_label("Cy Poe") is None)
    program.type("poe")  # nobody is called so
    program.keys("ctrl+z")
    program.await_labels("Cy Poe", "3 students")


# 10. Found in the preview, and then in the class again; the table has its keys.
def preview(program):
    program.keys("ctrl+p")
    program.window("Printer Portal")
    program.keys("alt+r")
    program.click(program.widget(ROLE.PUSH_BUTTON, "Preview"))
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.window("Print Preview Portal")
    find(program, "orr", "Orr")
    program.window("Print Preview Portal")
    program.keys("ctrl+f")
    program.window("Find")
    program.type("ratios")
    program.await_label("Nothing of that name")
    program.keys("Escape")
    program.gone("Find")
    program.window("Print Preview Portal")
    program.keys("Escape")
    program.window("Printer Portal")
    program.keys("Escape")
    program.frame("ROLL.TYR")
    find(program, "fractions", "Fractions")
    program.await_labels("Cy Poe", "Fractions", "This mark 70")
    program.type("ng")
    program.await_labels("Ada Ng", "This mark 80")


# 11. In a narrow window there is no panel; made wide again it shows where the keys have led.
def narrow(program):
    window = xdotool("getactivewindow")
    xdotool("windowsize", "--sync", window, 900, 700)
    wait_for("no panel", lambda: program.find_label("Ada Ng") is None)
    time.sleep(1.5)  # the name that was typed last would go on
    program.type("orr")
    find(program, "ratios", "Ratios")
    xdotool("windowsize", "--sync", window, 1400, 900)
    program.await_labels("Bo Orr", "Ratios", "This mark ABS")
    time.sleep(0.2)
    program.keys("Up")
    program.await_labels("Ada Ng", "This mark 90")


def tell(this):
    path, other = this.path("ROLL.TYR"), this.path("NEXT.TYR")
    build(path, record([("Ng", "Ada"), ("Orr", "Bo"), ("Poe", "Cy")],
                       [["80", "90"], ["60", "ABS"], ["70", "75"]]))
    build(other, record([("Zander", "Zed")], [["50", "60"]]))
    program = this.start(path)
    program.frame("ROLL.TYR")
    xdotool("windowsize", "--sync", xdotool("getactivewindow"), 1400, 900)
    program.await_labels("Ada Ng")
    half_a_name(program)
    nothing_to_undo(program)
    from_the_panel(program)
    undo_by_name(program)
    panel_with_the_focus(program)
    keys_over_a_portal(program)
    grade_under_the_cell(program)
    other_class(program, other)
    student_under_the_cell(program)
    preview(program)
    narrow(program)
    program.keys("ctrl+s")
    program.frame("ROLL.TYR", changed=False)
    program.keys("ctrl+q")
    program.ended()
    kept = dump(path, "--opened")
    expect("the grades", [grade["title"] for grade in kept["Instruments"]], ["Fractions", "Ratios", "Oral"])
    expect("the marks", [student["Marks"][1:] for student in kept["Students"]],
           [["80", "90", "70"], ["60", "ABS", "80"], ["70", "75", "90"]])


story.run(tell)
