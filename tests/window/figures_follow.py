# SPDX-License-Identifier: GPL-3.0-or-later
# Under points: a grade is added, made worth more, deleted and brought from another class. The Grades
# Portal shows the new figures at once, and they are those of the saved file.
from gi.repository import Atspi
from support import story
from support.program import averages, build, dump, expect, wait_for
from support.steps import open_file


def record(quiz, test):
    return {"AverageSettings": "2,0,0,0,0",
            "LetterValues": ["100", "99", "95", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "55"],
            "Instruments": [{"title": "Quiz", "code": "Q1", "typecode": "Q ", "mvalue": 100,
                             "lowpass": "65", "dropyn": "N", "testdate": "9/11/2026"},
                            {"title": "Test", "code": "T1", "typecode": "T ", "mvalue": 100,
                             "lowpass": "65", "dropyn": "N", "testdate": "9/12/2026"}],
            "Students": [{"lastname": "Ng", "firstname": "Ada", "id": "1", "Marks": ["", quiz, test]}]}


def figures(program, caption, path, wanted):
    """In the Grades Portal now, and in the file once it is saved."""
    program.keys("alt+m", "c")
    program.window("Current Weights and Rounding Summary Portal")
    total = wanted.split("/")[1].split(" ")[0]
    program.await_labels(total)
    program.keys("alt+c")
    program.window("Grades Portal")
    program.keys("alt+n")
    program.await_labels(wanted)
    program.keys("alt+x")
    program.frame(caption)
    program.keys("ctrl+s")
    first = lambda: averages(path)[0]
    wait_for(f"{wanted} in the file",
             lambda: f"{first()['earned']}/{first()['possible']}  {first()['ExactAverage']}" == wanted)


def transfer(program, title):
    program.keys("alt+r", "e", "r")
    program.window("Transfer Grade Between Classes Portal")
    program.keys("Home", "alt+t")
    program.box(f"Transfer {title} to the clipboard? (The Grade will still remain in the current class.)",
                "Left", "Return", title="Transfer Portal")
    program.keys("alt+x")


def tell(this):
    path, other = this.path("A.TYR"), this.path("B.TYR")
    build(path, record("80", "90"))
    build(other, record("25", "50"))
    program = this.start(path)
    program.frame("A.TYR")
    figures(program, "A.TYR", path, "170/200  85")

    program.keys("ctrl+g")
    program.window("Enter  Grades  Portal")
    program.keys(*"Essay", "Tab", *"ES1", *["Tab"] * 6, "4", "0", "alt+x")
    program.gone("Enter  Grades  Portal")
    program.frame("A.TYR")
    figures(program, "A.TYR", path, "210/300  70")

    program.keys("ctrl+t")
    program.window("Edit Grades by Title Portal")
    program.keys("Home", "Down", "Down")
    program.await_text("Title of  Grade", "Essay")
    program.click(program.field("Maximum Score for  Grade"))
    program.fill("50")
    program.await_text("Maximum Score for  Grade", "50")
    program.keys("alt+x")
    program.gone("Edit Grades by Title Portal")
    program.frame("A.TYR")
    figures(program, "A.TYR", path, "210/250  84")

    open_file(program, other, "B.TYR")
    figures(program, "B.TYR", other, "75/200  37.5")
    transfer(program, "Quiz")
    program.frame("B.TYR")
    program.keys("ctrl+Tab")
    program.frame("A.TYR")
    program.keys("ctrl+g")
    program.window("Enter  Grades  Portal")
    program.keys("alt+g", "alt+x")
    program.gone("Enter  Grades  Portal")
    program.frame("A.TYR")
    figures(program, "A.TYR", path, "235/350  67.14")

    program.keys("alt+r", "d", "l")
    program.window("Delete Grades Portal")
    program.keys("Home", "alt+d")
    program.box("Delete Quiz?", "Left", "Return", title="Delete Portal")
    program.keys("alt+x")
    program.frame("A.TYR")
    figures(program, "A.TYR", path, "155/250  62")
    program.keys("ctrl+Tab")
    program.frame("B.TYR")
    figures(program, "B.TYR", other, "75/200  37.5")
    program.keys("ctrl+q")
    program.ended()
    expect("grades", [each["title"] for each in dump(path)["Instruments"]], ["Test", "Essay", "Quiz"])


story.run(tell)
