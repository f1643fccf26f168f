# SPDX-License-Identifier: GPL-3.0-or-later
# A changed class is closed: Cancel keeps it, No throws the change away, Yes saves it.
import pathlib

from support import story
from support.program import dump, expect
from support.steps import change_first_phone, no_class_open, open_file, phone_of

PROMPT = "MATH.TYR Data has been changed. Save File?  "


def tell(this):
    path = this.sample()
    original = pathlib.Path(path).read_bytes()
    program = this.start(path)
    change_first_phone(program, "MATH.TYR", "555-0101")

    program.keys("ctrl+w")
    program.box(PROMPT, "Escape")
    program.frame("MATH.TYR")
    program.keys("ctrl+q")
    program.box(PROMPT, "Tab", "Tab", "Return")
    program.frame("MATH.TYR")
    expect("the file after Cancel", pathlib.Path(path).read_bytes(), original)

    program.keys("ctrl+w")
    program.box(PROMPT, "alt+n")
    no_class_open(program)
    expect("the file after No", pathlib.Path(path).read_bytes(), original)

    open_file(program, path, "MATH.TYR")
    change_first_phone(program, "MATH.TYR", "555-0102")
    program.keys("ctrl+w")
    program.box(PROMPT, "Return")
    no_class_open(program)
    expect("the phone after Yes", phone_of(dump(path, "--opened")), "555-0102")

    open_file(program, path, "MATH.TYR")
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
