# SPDX-License-Identifier: GPL-3.0-or-later
# Names that differ in case, the file of another window, a data folder that is away and comes back.
import pathlib

from support import story
from support.program import expect
from support.steps import change_first_phone, open_file

AWAY = "File Error: 76. The folder of the class files cannot be reached: "


def save_as(program, name):
    """The name typed into the dialog, which may stay."""
    program.keys("ctrl+shift+s")
    program.window("Save As")
    program.keys("ctrl+a")
    program.type(name)
    program.await_text("File name:", name)
    program.keys("Return")


def other_case(this, program):
    pathlib.Path(this.path("b.tyr")).write_bytes(b"kept")
    save_as(program, "B")
    program.box("b.tyr already exists.\nDo you want to replace it?", "alt+n", title="Save As")
    expect("the other file", pathlib.Path(this.path("b.tyr")).read_bytes(), b"kept")
    program.keys("Escape")
    program.gone("Save As")
    program.frame("A.TYR", changed=True)
    save_as(program, "B")
    program.box("b.tyr already exists.\nDo you want to replace it?", "alt+y", title="Save As")
    program.frame("B.TYR", changed=False)
    program.await_label("b.tyr saved.")
    expect("files", sorted(path.name for path in pathlib.Path(this.path("")).glob("*.[tT][yY][rR]")),
           ["A.TYR", "b.tyr"])


def other_window(this, program):
    open_file(program, this.path("A.TYR"), "A.TYR")
    save_as(program, "B")
    program.box("b.tyr already exists.\nDo you want to replace it?", "alt+y", title="Save As")
    program.box(" The file is already open ", "Return")
    program.window("Save As")
    program.keys("Escape")
    program.gone("Save As")
    program.frame("A.TYR", changed=False)
    program.keys("ctrl+q")
    program.ended()


def data_folder(this):
    """Remembered while it is away, entered when it is back."""
    folder = pathlib.Path.home() / ".local/share/Tallyroll"
    away = folder.with_name("away")
    folder.rename(away)
    program = this.start()
    program.box(AWAY + str(folder), "Return")
    program.window("Welcome to Tallyroll")
    program.keys("Return")
    program.start_page()
    away.rename(folder)
    open_file(program, "Sample8.TYR", "SAMPLE8.TYR")
    program.keys("ctrl+q")
    program.ended()
    folder.rename(away)
    program = this.start()
    program.box(AWAY + str(folder), "Return")
    program.window("Welcome to Tallyroll")
    program.keys("Return")
    program.start_page()
    program.keys("ctrl+q")
    program.ended()
    away.rename(folder)


def tell(this):
    path = this.sample("A.TYR")
    program = this.start(path)
    change_first_phone(program, "A.TYR", "1")
    other_case(this, program)
    other_window(this, program)
    data_folder(this)


story.run(tell)
