# SPDX-License-Identifier: GPL-3.0-or-later
# While marks are typed the screen counts them, says which may be slips, goes to the next empty cell,
# takes a column that was copied and takes back what was done; nothing typed is refused.
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
    program.await_label(f"0 of {students} entered")
    program.keys(*"Rivers", "Tab", *"RIV", "Tab", *"20", "F5")
    program.keys("B", "plus")
    program.await_labels(f"1 of {students} entered, average 88, 1 to look at",
                         "B+ counts as 88 of 20")
    program.keys("ctrl+z")
    program.await_label(f"0 of {students} entered")
    program.keys(*"18", "Down", *"16", "Down", *"25")
    program.await_labels(f"3 of {students} entered, average 19.67, 1 to look at",
                         "25 is above the maximum of 20")

    # The first two are copied and pasted where the next empty cell is.
    program.keys("Up", "shift+Up", "ctrl+c", "F5", "ctrl+v")
    program.await_label(f"5 of {students} entered, average 18.6, 1 to look at")
    program.keys("ctrl+z", "ctrl+shift+z", "alt+l", "alt+o", "alt+x")
    program.gone("Enter  Grades  Portal")

    program.frame("MATH.TYR", changed=True)
    program.keys("ctrl+s", "ctrl+q")
    program.ended()
    grade = [student["Marks"][-1] for student in dump(path, "--opened")["Students"]]
    expect("the marks", grade, ["18", "16", "25", "18", "16"] + ["ABS"] * (students - 5))


story.run(tell)
