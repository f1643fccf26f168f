# SPDX-License-Identifier: GPL-3.0-or-later
# The Printer Portal and its preview on a class without students, on one student with everything
# long, and on a large class: each says what it has, shows all its pages and goes on.
from gi.repository import Atspi
from support import story
from support.program import build, expect, walk

LONG = "Reads well and writes often. "
LETTERS = ["100", "99", "95", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "55"]


def record(students, grades, comment="", title="Title"):
    return {
        "LetterValues": LETTERS, "AverageSettings": "0,0,0,0,0", "RoundMode": 0,
        "Instruments": [{"title": f"{title} {i}", "code": f"g{i}", "typecode": "Q ",
                         "mvalue": 100, "testdate": "12/31/2026", "weight": "1"}
                        for i in range(1, grades + 1)],
        "Students": [{"lastname": f"Last{s}", "firstname": "First", "id": str(s), "comments": comment,
                      "Marks": [""] + ["NON" if (s + i) % 5 == 0 else "90" for i in range(1, grades + 1)]}
                     for s in range(1001, 1001 + students)]}


def choose(program, tab, report):
    """From the class window to the title of the printout."""
    program.keys("ctrl+p")
    program.window("Printer Portal")
    program.keys(tab)
    program.click(program.widget(Atspi.Role.RADIO_BUTTON, report))


def press(program, button):
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, button))
    program.window("Tallyroll Printing")
    program.keys("Return")


def leave(program, caption):
    program.keys("Escape")
    program.window("Printer Portal")
    program.keys("Escape")
    program.frame(caption)


def nobody(this, program):
    choose(program, "alt+f", "Roll Book")
    press(program, "Preview")
    program.box("There are no students in this class.", "Return")
    program.window("Print Preview Portal")
    program.await_labels(" 1", "1")
    program.keys("Next", "Prior", "ctrl+plus")
    program.await_labels(" 1", "1")
    leave(program, "NONE.TYR")


def averages_go_through_the_preview(this, program):
    choose(program, "alt+c", "Full Class")
    press(program, "Print")
    program.box("The averages of the full class are printed from the preview. "
                "Choose Preview, then Print.", "Return")
    press(program, "Preview")
    program.window("Print Preview Portal")
    program.keys("alt+d")
    program.window("Save As")
    program.await_text("File name:", "ONE.pdf")
    program.keys("Escape")
    program.window("Print Preview Portal")
    leave(program, "ONE.TYR")


def the_same_after_a_change(this, program):
    """Preview, add a student, preview: he stands on the page."""
    choose(program, "alt+f", "All Grades")
    program.click(program.widget(Atspi.Role.CHECK_BOX, "Comments"))
    press(program, "Preview")
    program.window("Print Preview Portal")
    text = this.path("one.txt")
    program.keys("alt+s")
    program.choose_file("Save As", text)
    program.window("Print Preview Portal")
    leave(program, "ONE.TYR")
    with open(text, "rb") as file:
        expect("the student and his comment", LONG.strip().encode() in file.read(), True)


def every_page_of_a_large_class(this, program):
    choose(program, "alt+f", "Roll Book-Full Titles")
    press(program, "Preview")
    program.window("Print Preview Portal")
    pages = next(node.get_name() for node in labels(program) if node.get_name().isdigit())
    program.keys("alt+l")
    program.await_labels(" " + pages)
    program.keys("Prior", "ctrl+minus", "Next")
    program.await_labels(" " + pages)
    program.keys("alt+f")
    program.await_labels(" 1", pages)
    program.strokes(["Next"] * 20)  # faster than pages are drawn: none is lost
    program.await_labels(" 21", pages)
    leave(program, "BIG.TYR")


def labels(program):
    return [node for top in program.windows() for node in walk(top)
            if node.get_role() == Atspi.Role.LABEL]


def tell(this):
    for name, content in (("NONE", record(0, 3)), ("ONE", record(1, 3, LONG * 35, "A long title " * 9)),
                          ("BIG", record(300, 120))):
        build(this.path(name + ".TYR"), content)
    for name, work in (("NONE", [nobody]),
                       ("ONE", [averages_go_through_the_preview, the_same_after_a_change]),
                       ("BIG", [every_page_of_a_large_class])):
        program = this.start(this.path(name + ".TYR"))
        program.frame(name + ".TYR")
        for each in work:
            each(this, program)
        program.keys("ctrl+q")
        program.ended()


story.run(tell)
