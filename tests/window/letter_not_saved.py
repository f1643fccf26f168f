# SPDX-License-Identifier: GPL-3.0-or-later
# A letter is saved into a folder that takes nothing, and onto a disk that is full: the program says
# so, the old letter stays whole, what was written stays on the screen, and a later save is complete.
# Folders of that kind are made for the program alone, which only root may do.
import os
import pathlib
import sys

from gi.repository import Atspi
from support import story
from support.program import Program, expect, text_of, wait_for

OLD = rb"{\rtf1\ansi{\fonttbl{\f0 Arial;}}The old letter\par}"
TITLE = "Tallyroll Word Processor May.rtf"
READ_ONLY = 'mount --bind "$1" "$1" && mount -o remount,ro,bind "$1"'
FULL = ('mount -t tmpfs -o size=64k tmpfs "$1" && cp "$2" "$1/May.rtf" '
        '&& { dd if=/dev/zero of="$1/filler" bs=4k count=64 2>/dev/null || true; }')


def start(this, prepare, folder, letter, path):
    """The program sees the folder as it was prepared; nobody else does."""
    script = f'{prepare} && shift 2 && exec "$@"'
    program = Program("unshare", "--mount", "bash", "-c", script, "-", str(folder), str(letter), sys.argv[1], path)
    this.programs.append(program)
    return program


def seen(program, path):
    """The file as the program sees it."""
    return pathlib.Path(f"/proc/{program.process.pid}/root{path}")


def await_letter(program, text):
    wait_for(f"{text!r} in the letter",
             lambda: text_of(program.widget(Atspi.Role.TEXT, "Form letter")) == text)


def write_and_fail(program, path):
    program.frame("MATH.TYR")
    program.keys("alt+t", "w")
    program.window("Tallyroll Word Processor")
    program.keys("ctrl+o")
    program.choose_file("Open", str(path))
    program.window(TITLE)
    await_letter(program, "The old letter")
    program.keys("ctrl+Home")
    program.type("New: ")
    program.keys("ctrl+s")
    program.box(f"Unkown error while saving file {path}", "Return")
    program.window(TITLE)
    await_letter(program, "New: The old letter")
    expect("the old letter", seen(program, path).read_bytes(), OLD)
    # Leaving with Yes saves first, and stays where that fails.
    program.keys("alt+f", "x")
    program.box("Data has been changed. Save File?  ", "alt+y")
    program.box(f"Unkown error while saving file {path}", "Return")
    program.window(TITLE)
    await_letter(program, "New: The old letter")
    expect("the folder", sorted(os.listdir(seen(program, path.parent))),
           [name for name in ("May.rtf", "filler") if seen(program, path.parent / name).exists()])


def read_only(this, folder, letter):
    program = start(this, READ_ONLY, folder, letter, this.sample())
    write_and_fail(program, letter)
    program.keys("alt+f", "x")
    program.box("Data has been changed. Save File?  ", "alt+n")
    program.frame("MATH.TYR")
    program.keys("ctrl+q")
    program.ended()
    expect("the old letter", letter.read_bytes(), OLD)


def full(this, folder, letter):
    disk = folder / "disk"
    disk.mkdir()
    program = start(this, FULL, disk, letter, this.sample())
    write_and_fail(program, disk / "May.rtf")
    seen(program, disk / "filler").unlink()
    program.keys("ctrl+s")
    wait_for("the letter on the disk", lambda: b"New: The old letter" in seen(program, disk / "May.rtf").read_bytes())
    program.keys("alt+f", "x")  # nothing is asked
    program.frame("MATH.TYR")
    program.keys("ctrl+q")
    program.ended()


def tell(this):
    if os.geteuid() != 0:
        print("only root can make such folders")
        return
    folder = pathlib.Path(this.path("letters"))
    folder.mkdir()
    letter = folder / "May.rtf"
    letter.write_bytes(OLD)
    read_only(this, folder, letter)
    full(this, folder, letter)


story.run(tell)
