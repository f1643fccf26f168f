# SPDX-License-Identifier: GPL-3.0-or-later
"""Drives the program as a teacher does: keys and mouse from outside, the screen read by
accessibility. Every wait is bounded; what does not come in time fails the story."""
import json
import os
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 20.0  # seconds that the screen is given to show something
PAUSE = 0.03

Atspi.set_timeout(3000, 10000)


class Failure(Exception):
    pass


def wait_for(what, condition, patience=PATIENCE):
    """The first true value of condition()."""
    end = time.monotonic() + patience
    while True:
        try:
            value = condition()
        except GLib.Error:  # the widget went while it was being read
            value = None
        if value:
            return value
        if time.monotonic() > end:
            raise Failure(f"waited in vain for {what}")
        time.sleep(PAUSE)


def expect(what, actual, wanted):
    if actual != wanted:
        raise Failure(f"{what}: {actual!r} instead of {wanted!r}")


def xdotool(*arguments):
    done = subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True,
                          timeout=PATIENCE)
    return done.stdout.strip()


def command_line(*arguments, given=None):
    done = subprocess.run([os.environ["TALLYROLL_CLI"], *arguments], input=given,
                          capture_output=True, text=True, timeout=PATIENCE, check=True)
    return done.stdout


def build(path, record):
    """A class file of what the record says."""
    command_line("build", "-", path, given=json.dumps(record))


def dump(path, *options):
    """The class file as the command line reads it."""
    return json.loads(command_line("dump", *options, path))


def averages(path):
    """Every student's average and final grade as the command line computes them."""
    return json.loads(command_line("averages", "--json", path))


def states(node):
    return node.get_state_set()


def is_shown(node):
    return states(node).contains(Atspi.StateType.SHOWING)


def children(node):
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is not None:
            yield child


def walk(node):
    """The node and all below it, but never the cells of a table or the lines of a list."""
    yield node
    if node.get_role() in (Atspi.Role.TABLE, Atspi.Role.LIST):
        return
    for child in children(node):
        yield from walk(child)


def stands_within(node, room):
    """Whether all of the node can be seen in the other one's place."""
    inner, outer = (Atspi.Component.get_extents(each, Atspi.CoordType.SCREEN)
                    for each in (node, room))
    return (inner.height > 0 and outer.y <= inner.y
            and inner.y + inner.height <= outer.y + outer.height)


def text_of(node):
    return Atspi.Text.get_text(node, 0, -1)


class Program:
    def __init__(self, binary, *arguments, environment=None):
        self.process = subprocess.Popen([binary, *arguments],
                                        env={**os.environ, **(environment or {})})

    # Windows

    def root(self):
        desktop = Atspi.get_desktop(0)
        for node in children(desktop):
            if node.get_process_id() == self.process.pid:
                return node
        return None

    def windows(self):
        """Those in front first: what is looked for mostly stands there."""
        root = self.root()
        return [w for w in children(root) if is_shown(w)][::-1] if root else []

    def titles(self):
        return [w.get_name() for w in self.windows()]

    def front(self):
        """The title of the window that gets the keys."""
        return xdotool("getactivewindow", "getwindowname")

    def window(self, *titles):
        """Waits until the window of one of these titles gets the keys."""
        def ready():
            if self.process.poll() is not None:
                raise Failure(f"the program has ended while {titles} was awaited")
            front = self.front()
            if front not in titles:
                return None
            return next((w for w in self.windows() if w.get_name() == front), None)
        return wait_for(f"the window {titles}, in front is {self.front()!r}", ready)

    def frame(self, caption=None, changed=None):
        """The main window with this class in front and maximised, or with none. A changed class
        bears an asterisk; None takes both."""
        if caption is None:
            return self.window("Tallyroll")
        titles = {False: f"Tallyroll - [{caption}]", True: f"Tallyroll - [{caption}*]"}
        return self.window(*(titles.values() if changed is None else [titles[changed]]))

    def gone(self, title):
        wait_for(f"{title!r} to close", lambda: title not in self.titles())

    def ended(self):
        wait_for("the program to end", lambda: self.process.poll() is not None)
        expect("exit status", self.process.returncode, 0)

    # Keys and mouse

    def keys(self, *names):
        for name in names:
            xdotool("key", name)

    def strokes(self, names):
        """Many keys in a row, as fast as a teacher's fingers go."""
        for start in range(0, len(names), 100):
            xdotool("key", "--delay", "5", *names[start:start + 100])

    def type(self, text):
        xdotool("type", "--delay", "5", text)

    def fill(self, *texts):
        """Field after field, as Tab leads; None leaves a field as it is."""
        for i, text in enumerate(texts):
            if i > 0:
                self.keys("Tab")
            if text is not None:
                self.keys("ctrl+a")
                self.type(text)

    def click(self, node, times=1):
        box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
        xdotool("mousemove", box.x + box.width // 2, box.y + box.height // 2,
                "click", "--repeat", times, "--delay", "40", 1)

    # What stands on the screen

    def find(self, role, name, within=None):
        """The shown widget of this role and name, or None."""
        for top in [within] if within else self.windows():
            for node in walk(top):
                if node.get_role() == role and node.get_name() == name and is_shown(node):
                    return node
        return None

    def widget(self, role, name, within=None):
        return wait_for(f"{role.value_nick} {name!r}", lambda: self.find(role, name, within))

    def field(self, name, within=None):
        return self.widget(Atspi.Role.TEXT, name, within)

    def await_text(self, name, text):
        """Waits until the field holds the text: what was typed has then arrived."""
        wait_for(f"{text!r} in {name!r}", lambda: text_of(self.field(name)) == text)

    def await_focus(self, role, name):
        def focused():
            node = self.find(role, name)
            return node and states(node).contains(Atspi.StateType.FOCUSED)
        wait_for(f"the focus in {name!r}", focused)

    def await_label(self, text):
        return self.widget(Atspi.Role.LABEL, text)

    def find_label(self, text):
        return self.find(Atspi.Role.LABEL, text)

    def await_labels(self, *texts):
        """Waits until all of these stand on the screen together."""
        def shown():
            labels = {node.get_name() for top in self.windows() for node in walk(top)
                      if node.get_role() == Atspi.Role.LABEL}
            return labels.issuperset(texts)
        wait_for(f"the labels {texts}", shown)

    def box(self, text, *answer, title="Note to the Teacher"):
        """A message box with exactly this text, answered with these keys."""
        def shown():
            for window in self.windows():
                if window.get_name() == title and self.find(Atspi.Role.LABEL, text, window):
                    return window
            return None
        wait_for(f"the box {text!r}", shown)
        self.window(title)
        self.keys(*answer)
        wait_for(f"the box {text!r} to close", lambda: not shown())

    def choose_file(self, title, path):
        """The path typed into the open or save dialog."""
        self.window(title)
        self.await_focus(Atspi.Role.TEXT, "File name:")
        self.keys("ctrl+a")
        self.type(path)
        self.await_text("File name:", path)
        self.keys("Return")
        self.gone(title)

    # The class window

    def table(self):
        return self.widget(Atspi.Role.TABLE, "Students and grades")

    def tables(self):
        return [node for top in self.windows() for node in walk(top)
                if node.get_role() == Atspi.Role.TABLE and is_shown(node)]

    def in_sight(self, row, col):
        """Whether the cell of the class window stands whole within its table."""
        return stands_within(self.cell(row, col), self.table())

    def cell(self, row, col):
        return Atspi.Table.get_accessible_at(self.table(), row, col)

    def cell_text(self, row, col):
        return self.cell(row, col).get_name()

    def column(self, col, count):
        """The texts of the first students' cells; they stand from row 2 on."""
        return [self.cell_text(row, col) for row in range(2, 2 + count)]

    def start_page(self):
        """No class is open: the frame shows how to begin."""
        self.frame()
        self.await_label("Welcome to Tallyroll")

    def stop(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
