# SPDX-License-Identifier: GPL-3.0-or-later
# What happens to files behind the program's back: a file goes, its folder goes, it is protected,
# another program saves it. No mark is lost, the title and the status bar tell what is so, and no
# class holds up another.
import os
import pathlib
import shutil

from support import story
from support.program import dump, expect
from support.steps import change_first_phone, open_file, phone_of

CHANGED = "The class file has been changed by another program since it was opened. Save over it?"


def prompt(caption):
    return f"{caption} Data has been changed. Save File?  "


def file_goes(program, path):
    change_first_phone(program, "A.TYR", "1")
    os.remove(path)
    program.frame("A.TYR", changed=True)
    program.keys("ctrl+s")
    program.frame("A.TYR", changed=False)
    program.await_label("A.TYR saved.")
    expect("the phone", phone_of(dump(path, "--opened")), "1")


def file_is_protected(program, path):
    change_first_phone(program, "A.TYR", "2")
    os.chmod(path, 0o444)
    program.keys("ctrl+s")
    program.box("File Error: 70. Disk may be write protected", "Return")
    program.frame("A.TYR", changed=True)
    expect("a claim of a save", program.find_label("A.TYR saved."), None)
    expect("the phone", phone_of(dump(path, "--opened")), "1")
    os.chmod(path, 0o644)
    program.keys("ctrl+s")
    program.frame("A.TYR", changed=False)
    expect("the phone", phone_of(dump(path, "--opened")), "2")


def another_program_saves(this, program, path):
    other = this.start(path)
    other.frame("A.TYR")
    change_first_phone(other, "A.TYR", "3")
    other.keys("ctrl+s")
    other.frame("A.TYR", changed=False)
    other.keys("ctrl+q")
    other.ended()

    change_first_phone(program, "A.TYR", "4")
    program.keys("ctrl+s")
    program.box(CHANGED, "alt+n")
    program.frame("A.TYR", changed=True)
    program.keys("ctrl+w")
    program.box(prompt("A.TYR"), "Return")
    program.box(CHANGED, "alt+n")
    program.frame("A.TYR", changed=True)
    program.await_label("The class stays open, because it was not saved.")
    expect("the phone of the other program", phone_of(dump(path, "--opened")), "3")
    program.keys("ctrl+shift+s")
    program.choose_file("Save As", this.path("MINE.TYR"))
    program.frame("MINE.TYR", changed=False)
    program.await_label("MINE.TYR saved.")
    expect("the phone", phone_of(dump(this.path("MINE.TYR"), "--opened")), "4")


def folder_goes(this, program):
    """Two classes whose folder is away, and one that is well: closing all keeps the two."""
    folder = pathlib.Path(this.path("stick"))
    before = phone_of(dump(str(folder / "B.TYR"), "--opened"))
    for name in ("B.TYR", "C.TYR"):
        open_file(program, str(folder / name), name)
        change_first_phone(program, name, "5")
    away = folder.with_name("away")
    folder.rename(away)
    program.keys("ctrl+s")
    program.box("File Error: 76", "Return")
    program.keys("alt+f", "e")
    for name in ("B.TYR", "C.TYR"):
        program.box(prompt(name), "Return")
        program.box("File Error: 76", "Return")
    program.frame("C.TYR", changed=True)
    program.await_label("The class stays open, because it was not saved.")
    away.rename(folder)
    program.keys("ctrl+s")
    program.frame("C.TYR", changed=False)
    shutil.move(folder, away)
    program.keys("ctrl+q")
    program.box(prompt("B.TYR"), "alt+n")
    program.ended()
    expect("the phones", [phone_of(dump(str(away / name), "--opened")) for name in
                          ("B.TYR", "C.TYR")], [before, "5"])


def tell(this):
    path = this.sample("A.TYR")
    os.mkdir(this.path("stick"))
    for name in ("B.TYR", "C.TYR"):
        this.sample(f"stick/{name}")
    program = this.start(path)
    program.frame("A.TYR", changed=False)
    file_goes(program, path)
    file_is_protected(program, path)
    another_program_saves(this, program, path)
    folder_goes(this, program)


story.run(tell)
