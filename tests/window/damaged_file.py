# SPDX-License-Identifier: GPL-3.0-or-later
# A class file that breaks off: what could be read is shown, and saving keeps the original beside.
import os
import pathlib
import subprocess

from support import story
from support.program import dump, expect
from support.steps import change_first_phone


def tell(this):
    path = pathlib.Path(this.sample("TORN.TYR"))
    whole = path.read_bytes()
    torn = whole[: len(whole) * 2 // 3]
    path.write_bytes(torn)
    names = [s["lastname"].strip() for s in dump(story.SAMPLE)["Students"]]

    program = this.start(path)
    program.box("File Error: 62", "Return")
    program.frame("TORN.TYR")
    shown = [text for text in program.column(0, 26) if text]
    expect("some students were read, not all", 0 < len(shown) < len(names), True)
    expect("a name of the class", shown[0].split(" ", 1)[1].split(",")[0] in names, True)

    change_first_phone(program, "TORN.TYR", "555-0103")
    program.keys("ctrl+s")
    program.await_label(
        f"{path.name} saved. The file that could not be read whole is kept as "
        f"{path.with_suffix('.bad')}")
    program.keys("ctrl+q")
    program.ended()

    expect("the original", path.with_suffix(".bad").read_bytes(), torn)
    expect("students saved", len(dump(path)["Students"]), len(shown))
    subprocess.run([os.environ["TALLYROLL_CLI"], "check", path], check=True, timeout=20)


story.run(tell)
