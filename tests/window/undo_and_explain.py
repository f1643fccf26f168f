# SPDX-License-Identifier: GPL-3.0-or-later
# A wrong fill for the whole class is taken back by its key, made again, and taken back beyond a save;
# an average is explained from its row, a mark is tried, and the page goes into a PDF file.
import os
import subprocess

from gi.repository import Atspi
from support import story
from support.program import build, dump, expect, wait_for

CLASS = {
    "AverageSettings": "2,0,0,0,0",
    "RoundMode": 0,
    "LetterValues": ["100", "99", "95", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "55"],
    "Instruments": [{"title": "Quiz", "code": "Q1", "typecode": "Q ", "mvalue": 100, "lowpass": "65",
                     "dropyn": "N", "testdate": "9/11/2026"},
                    {"title": "Test", "code": "T1", "typecode": "T ", "mvalue": 100, "lowpass": "65",
                     "dropyn": "N", "testdate": "9/12/2026"}],
    "Students": [{"lastname": "Ng", "firstname": "Ada", "id": "1", "Marks": ["", "80", "90"]},
                 {"lastname": "Orr", "firstname": "Bo", "id": "2", "Marks": ["", "60", "70"]}],
}


def wrong_fill(program):
    program.keys("ctrl+g")
    program.window("Enter  Grades  Portal")
    program.keys(*"Wrong", "Tab", *"WRG", "alt+l", "alt+o", "alt+x")
    program.gone("Enter  Grades  Portal")


def grades(path):
    return [grade["title"] for grade in dump(path)["Instruments"]]


def save(program):
    program.keys("ctrl+s")
    program.frame("A.TYR", changed=False)


def undo(program, path):
    wrong_fill(program)
    program.frame("A.TYR", changed=True)
    program.keys("ctrl+z")
    program.frame("A.TYR", changed=False)
    program.keys("ctrl+shift+z")
    program.frame("A.TYR", changed=True)
    save(program)
    expect("the grades", grades(path), ["Quiz", "Test", "Wrong"])
    program.keys("ctrl+z")
    program.frame("A.TYR", changed=True)
    save(program)
    expect("the grades", grades(path), ["Quiz", "Test"])


def explain(program, pdf):
    program.table()
    program.keys("ctrl+Home", "Down", "alt+i", "e")
    program.window("Explain Average Portal")
    program.await_labels("65", "65 (D/N/1.0)")  # Orr: 130 of 200
    program.keys("alt+p")
    program.await_labels("85", "85 (B/SAT/3.0)")
    # The quiz is chosen: with 100 in it 190 of 200.
    program.keys("alt+t", "1", "0", "0")
    program.await_labels("95   95 (A/EX/4.0)")
    program.keys("alt+v")
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.window("Print Preview Portal")
    program.keys("alt+d")
    program.choose_file("Save As", pdf)
    program.window("Print Preview Portal")
    wait_for("the PDF", lambda: os.path.exists(pdf))
    words = subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True, text=True,
                           check=True).stdout
    expect("the final grade in the PDF", "Final grade: 85 (B/SAT/3.0)" in words, True)
    program.keys("Escape")
    program.window("Explain Average Portal")
    program.keys("Escape")
    program.gone("Explain Average Portal")


def tell(this):
    path = this.path("A.TYR")
    build(path, CLASS)
    program = this.start(path)
    program.frame("A.TYR")
    undo(program, path)
    explain(program, this.path("explained.pdf"))
    program.frame("A.TYR", changed=False)
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
