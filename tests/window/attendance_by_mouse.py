# SPDX-License-Identifier: GPL-3.0-or-later
# A term is set up, codes are chosen from the list over the cell, the months are moved and both kinds
# of summary are made, edited and deleted, all by the mouse but for what has to be typed.
from gi.repository import Atspi
from support import story
from support.program import build, dump, expect, is_shown, text_of, wait_for, walk, xdotool

ENTER, SETTINGS, SUMMARY = "Enter Attendance Portal", "Attendance Settings Portal", "Summary Attendance Portal"
EDIT, DELETE = "Edit  Summary Attendance Portal", "Delete Attendance Portal"
ABSENT, LATE = 0, 5


def press(program, name, times=1, role=Atspi.Role.PUSH_BUTTON):
    program.click(program.widget(role, name), times)


def menu(program, *names):
    """Menu after menu down to the entry."""
    for name in names:
        def entry():
            for top in program.windows():
                for node in walk(top):
                    if node.get_name() == name and is_shown(node) and "menu" in node.get_role_name():
                        return node
            return None
        program.click(wait_for(f"the menu {name!r}", entry))


def cell(program, row, col, table="Attendance"):
    return Atspi.Table.get_accessible_at(program.widget(Atspi.Role.TABLE, table), row, col)


def choose_code(program, student, day, index):
    """From the list over the cell; its arrow stands at the right end."""
    program.click(cell(program, student, day + 1))
    code = program.widget(Atspi.Role.COMBO_BOX, "Code")
    box = Atspi.Component.get_extents(code, Atspi.CoordType.SCREEN)
    xdotool("mousemove", box.x + box.width - 6, box.y + box.height // 2, "click", 1)
    codes = wait_for("the codes", lambda: next(
        (node for node in walk(code) if node.get_role() == Atspi.Role.LIST and is_shown(node)), None))
    program.click(codes.get_child_at_index(index))


def set_up(program):
    """September to November: one month forward at the end."""
    menu(program, "Records", "Enter Records", "Daily Attendance")
    program.window(SETTINGS)
    press(program, "Last month on")
    program.await_labels("November")
    press(program, "OK")
    program.window(ENTER)


def take_attendance(program):
    """In the first month, from the last one back."""
    for month in ("October", "September"):
        press(program, "Month before")
        program.await_labels(month, "2025")
    for student, day, index in ((1, 5, ABSENT), (2, 5, LATE), (2, 6, ABSENT)):
        choose_code(program, student, day, index)
    menu(program, "Display Totals", "Show Student Summary")
    wait_for("the totals", lambda: cell(program, 2, 37).get_name() == "1")
    expect("late and absent", [cell(program, 2, 2 + 30 + k).get_name() for k in range(6)], list("100001"))


def sum_up(program):
    menu(program, "Att Summary")
    program.window(SUMMARY)
    press(program, "Summary--Range of Dates", role=Atspi.Role.RADIO_BUTTON)
    press(program, "OK")
    figures = "Attendance of the students"
    wait_for("the figures", lambda: cell(program, 2, 8, figures).get_name() == "1")
    press(program, "Another")
    press(program, "Direct Entering of Att.Info", role=Atspi.Role.RADIO_BUTTON)
    program.click(program.field("Title of  Attendance"))
    program.type("First Quarter")
    program.click(program.field("Up to 3 Character Code"))
    program.type("Q1")
    for student in (1, 2):
        for col in (2, 3):
            program.click(cell(program, student, col, figures))
            program.type(str(student + col))
    press(program, "Exit")
    program.window(ENTER)


def move_range(program):
    """The first month goes after a question, refused at first, with the marks in it."""
    menu(program, "Date Setting")
    program.window(SETTINGS)
    lost = "You are starting at a later month; the information for the earlier month(s) will be lost."
    for answer in ("Escape", "Return"):
        press(program, "First month on")
        press(program, "OK")
        program.box(lost, answer, title="Note to the teacher")
        if answer == "Escape":
            program.await_labels("Original Starting Date is September 2025", "September")
    program.window(ENTER)
    program.await_label("Marks that fell out of the range: 3.")
    menu(program, "Cancel")
    program.box("Data has been entered. Are you sure you want to CANCEL?", "alt+n", title="CANCEL")
    menu(program, "Exit")
    program.gone(ENTER)
    program.frame("ROLL.TYR")


def edit_and_delete(program):
    menu(program, "Records", "Edit Records", "Edit Summary Attendance ")
    program.window(EDIT)
    titles = program.widget(Atspi.Role.LIST, "Choose From List of Titles of Attendances")
    program.click(titles.get_child_at_index(1))
    program.await_text("Title of  Attendance", "First Quarter")
    program.click(program.field("Title of  Attendance"), times=3)
    program.type("Quarter One")
    press(program, "Exit")
    program.gone(EDIT)
    program.frame("ROLL.TYR")
    menu(program, "Records", "Edit Records", "Delete Summary Attendance")
    program.window(DELETE)
    titles = program.widget(Atspi.Role.LIST, "Choose From List of Attendance Summary Titles")
    program.click(titles.get_child_at_index(0))
    press(program, "Delete")
    program.window("Delete Portal")
    program.await_label("Delete 9/1/2025- 11/30/2025?")
    press(program, "OK")
    program.gone("Delete Portal")
    press(program, "Exit")
    program.gone(DELETE)
    program.frame("ROLL.TYR")


def tell(this):
    path = this.path("ROLL.TYR")
    build(path, {"termstart": "9/1/2025", "termend": "10/31/2025",
                 "Students": [{"lastname": name, "firstname": "Ada", "id": name} for name in ("Abel", "Bell")]})
    program = this.start(path)
    program.frame("ROLL.TYR")
    set_up(program)
    take_attendance(program)
    sum_up(program)
    move_range(program)
    edit_and_delete(program)
    program.keys("ctrl+s", "ctrl+q")
    program.ended()
    kept = dump(path)
    expect("days from October to November", kept["NumDays"], 61)
    expect("the summaries", [(s["title"], s["code"]) for s in kept["Summaries"]], [("Quarter One", "Q1")])
    expect("the absences", [s["SummaryAbsent"][1] for s in kept["Students"]], ["3    ", "4    "])


story.run(tell)
