# SPDX-License-Identifier: GPL-3.0-or-later
# A grade is entered with the keyboard alone: a fill, a typed mark, a function key; then it is saved.
from support import story
from support.program import dump, expect


def tell(this):
    path = this.sample()
    before = dump(path, "--opened")
    students = len(before["Students"])

    program = this.start(path)
    program.frame("MATH.TYR")
    program.keys("ctrl+g")
    program.window("Enter  Grades  Portal")
    program.keys(*"Rivers", "Tab", *"RIV")
    program.keys("alt+l", "alt+o")
    program.keys("8", "7", "Return", "F9", "alt+x")
    program.gone("Enter  Grades  Portal")

    program.frame("MATH.TYR")
    program.keys("ctrl+s", "ctrl+q")
    program.ended()

    after = dump(path, "--opened")
    grade = after["Instruments"][-1]
    expect("how many grades", len(after["Instruments"]), len(before["Instruments"]) + 1)
    expect("the title", grade["title"], "Rivers")
    expect("the code", grade["code"], "RIV")
    expect("the marks", [student["Marks"][-1] for student in after["Students"]],
           ["87", "EXC"] + ["ABS"] * (students - 2))


story.run(tell)
