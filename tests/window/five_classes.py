# SPDX-License-Identifier: GPL-3.0-or-later
# Five classes are open; a sixth is refused, and so is a class that is open already.
from support import story
from support.program import expect
from support.steps import open_file


def tell(this):
    paths = [this.sample(f"CLASS{i}.TYR") for i in range(1, 7)]
    program = this.start(paths[0])
    program.frame("CLASS1.TYR")
    for i in range(2, 6):
        open_file(program, paths[i - 1], f"CLASS{i}.TYR")

    program.keys("ctrl+o")
    program.box("You may only have 5 class(es) open at a time.", "Return")
    program.frame("CLASS5.TYR")

    program.keys("ctrl+w")
    program.frame("CLASS4.TYR")
    program.keys("ctrl+o")
    program.choose_file("Open", paths[1])
    program.box(" The file is already open ", "Return")
    program.choose_file("Open", paths[5])
    program.frame("CLASS6.TYR")
    expect("the first student of the class opened last", program.cell_text(2, 0)[:2], "1 ")

    for i in (6, 4, 3, 2, 1):
        program.frame(f"CLASS{i}.TYR")
        program.keys("ctrl+w")
    program.start_page()
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
