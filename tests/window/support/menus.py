# SPDX-License-Identifier: GPL-3.0-or-later
"""The menus of the class window by keyboard, and each window that they open as a reader meets it."""
import time

from gi.repository import Atspi
from support.program import Failure, children, expect, is_shown, states, wait_for, walk
from support.reader import Listener, await_whole, faults_of, focus_faults, tab_faults

ROLE = Atspi.Role
STATE = Atspi.StateType
LETTERS = {"File": "f", "Students": "s", "Records": "r", "Make Up Grades": "m", "Display": "d",
           "Edit": "e", "View": "v", "Print": "p", "Tools": "t", "Insight": "i", "Window": "w",
           "Help": "h"}
# Dialogs that the toolkit brings whole, with parts of their own that cannot be named from outside.
OF_THE_TOOLKIT = {"Select Font", "Page Setup"}


# Where Tab does not go on: in a letter it is a tab of the text, in the help it goes from link to link,
# in summary attendance from cell to cell.
TAB_STAYS = {"Tallyroll Word Processor", "Tallyroll Help", "Summary Attendance Portal",
             "Edit  Summary Attendance Portal"}
# What a window wants before its fields are entered: a type that is chosen.
WANTED_FIRST = {"Modify Grade Type Categories Portal": ["Down"]}


def plain(name):
    return " ".join((name or "").split())


def menu_of(entry):
    return entry.get_child_at_index(0) if entry.get_child_count() else None


def entries_in(menu):
    return [node for node in children(menu) if node.get_role() == ROLE.MENU_ITEM and node.get_name()]


def menu_bar(window):
    return next(node for node in walk(window) if node.get_role() == ROLE.MENU_BAR)


def all_entries(window):
    """The way to each entry from the bar down, and whether it can be given now."""
    def below(entry, way, can):
        way = (*way, plain(entry.get_name()))
        can = can and states(entry).contains(STATE.ENABLED)
        menu = menu_of(entry)
        if menu is None:
            yield way, can
            return
        for child in entries_in(menu):
            yield from below(child, way, can)
    for entry in entries_in(menu_bar(window)):
        yield from below(entry, (), True)


def go_to(program, menu, name):
    """From the entry that is marked in the open menu to the one of this name, by the arrows."""
    wait_for(f"the menu of {name!r}", lambda: is_shown(menu))
    entries = [node for node in entries_in(menu) if states(node).contains(STATE.VISIBLE)]
    wanted = next((node for node in entries if plain(node.get_name()) == name), None)
    if wanted is None:
        raise Failure(f"{name!r} is not in the menu")

    def marked():
        return states(wanted).contains(STATE.FOCUSED)
    here = next((i for i, node in enumerate(entries) if states(node).contains(STATE.FOCUSED)), -1)
    program.strokes(["Down"] * (entries.index(wanted) - here))
    end = time.monotonic() + 0.3
    while not marked() and time.monotonic() < end:
        time.sleep(0.02)
    for _ in entries:  # entries that are off may have been passed over
        if marked():
            return wanted
        program.keys("Down")
        time.sleep(0.05)
    raise Failure(f"the arrows do not come to {name!r}")


def give(program, window, way):
    """The entry by keys alone: Alt with the letter of its menu, the arrows, Enter."""
    heading = next(entry for entry in entries_in(menu_bar(window)) if entry.get_name() == way[0])
    menu = menu_of(heading)
    for _ in range(3):  # a key may come before the frame has got the focus back
        program.keys("alt+" + LETTERS[way[0]])
        try:
            wait_for(f"the menu {way[0]}", lambda: is_shown(menu), patience=4)
            break
        except Failure:
            program.keys("Escape")
    for name in way[1:-1]:
        menu = menu_of(go_to(program, menu, name))
        program.keys("Right")
    go_to(program, menu, way[-1])
    program.keys("Return")


def is_frame(title):
    return title.startswith("Tallyroll - [") or title == "Tallyroll"


def await_front(program, what, condition):
    return wait_for(what, lambda: condition(program.front()) and program.front())


def answer_of(program):
    """To what a window asks when it is left: yes, it is left, and no, nothing is kept."""
    labels = [node.get_name() for top in program.windows() for node in walk(top)
              if node.get_role() == ROLE.LABEL and top.get_name() == program.front()]
    return "alt+y" if any("cancel?" in (text or "") for text in labels) else "alt+n"


def leave(program, title):
    """Escape, and No where it asks what to keep; where it was told otherwise, the way out."""
    faults = []
    for _ in range(8):
        front = program.front()
        if is_frame(front):
            return faults
        asks = front in ("Note to the Teacher", "Save File", "Tallyroll", "SAVE WEIGHTS")
        program.keys(answer_of(program) if asks else "Escape")
        try:
            wait_for("another window", lambda: program.front() not in (front, ""), patience=1.5)
        except Failure:
            if asks:
                program.keys("Escape")
                continue
            faults.append(f"Escape does not leave {front!r}")
            program.keys("alt+x")
    raise Failure(f"{title!r} cannot be left: {faults}, in front is {program.front()!r}")


class Tour:
    """Goes through windows one by one and keeps what was wrong in each."""

    def __init__(self, program, frame):
        program.root().set_cache_mask(Atspi.Cache.NONE)
        self.program = program
        self.frame = frame
        self.listener = Listener()
        self.faults = []
        self.seen = []

    def note(self, where, faults):
        self.faults += [f"{where}: {fault}" for fault in faults if f"{where}: {fault}" not in self.faults]

    def read(self, title):
        """The window in front."""
        window = self.program.window(title)
        self.seen.append(title)
        if title in OF_THE_TOOLKIT:
            return
        await_whole(window)
        self.note(title, focus_faults(window))
        self.note(title, faults_of(window))
        self.program.keys(*WANTED_FIRST.get(title, []))
        if title not in TAB_STAYS:
            self.note(title, tab_faults(self.program, window, self.listener))

    def visit(self, way, title, further=()):
        """What the entry opens, and what keys open from there."""
        give(self.program, self.frame, way)
        try:
            front = await_front(self.program, f"a window by {way}", lambda name: name and not is_frame(name))
        except Failure as failure:
            self.note(" > ".join(way), [str(failure)])
            self.program.keys("Escape", "Escape", "Escape")
            return
        expect(f"the window of {way}", front[:len(title)], title)
        self.read(front)
        for keys, inner in further:
            self.program.window(front)
            self.program.keys(*keys)
            self.read(await_front(self.program, f"{inner!r} by {keys}",
                                  lambda name, inner=inner: name.startswith(inner)))
            self.program.keys("Escape")
        self.note(front, leave(self.program, front))

    def tell(self):
        if self.faults:
            raise Failure("\n".join(["what a screen reader stumbles over:", *self.faults]))


def expect_all_opened(window, opened, others):
    """No entry of the menus is left out: each is opened, or stands among the others with its reason."""
    wanted = {way for way, _ in all_entries(window)}
    known = set(opened) | set(others)
    expect("entries of the menus that no story knows", sorted(wanted - known), [])
    expect("entries that are known and in no menu", sorted(known - wanted), [])
