# SPDX-License-Identifier: GPL-3.0-or-later
# A chart made in each way, the last one by keys alone; each is kept, stands again after the class was
# opened anew, and one is deleted. What the keys do is told at the place where a reader listens.
from gi.repository import Atspi, GLib
from support import story
from support.program import build, dump, expect, wait_for
from support.seats import PORTAL, SAVE, card, new_chart

NAMES = ["Abel", "Bond", "Cole", "Dunn", "Eads", "Fitz"]
CLASS = {"Students": [{"lastname": name, "firstname": "X", "id": str(i)} for i, name in enumerate(NAMES, 1)]}


class Reader:
    """Hears which descriptions change, as a screen reader does: name of the place, and the words."""

    def __init__(self):
        self.heard = []
        self.listener = Atspi.EventListener.new(self.hear)
        self.listener.register("object:property-change:accessible-description")

    def hear(self, event):
        self.heard.append((event.source.get_name(), event.source.get_description()))

    def await_words(self, place, words):
        def arrived():
            while GLib.MainContext.default().iteration(False):
                pass
            return (place, words) in self.heard
        try:
            wait_for(f"{words!r} told at {place!r}", arrived)
        except Exception:
            print("heard:", self.heard)
            raise


def keep(program):
    program.keys("alt+s")
    program.box(SAVE, "alt+y", title="Note to the Teacher")
    program.window(PORTAL)


def cards(program, rows, columns):
    return {card(program, row, col) for row in range(rows) for col in range(columns)} - {""}


def filled(program):
    """As sorted from the back of the first row on; at random and by wishes everybody sits."""
    everybody = {f"{name}, X" for name in NAMES}
    new_chart(program, 2, 3, "As Sorted")
    expect("sorted", [card(program, 2, 0), card(program, 1, 0), card(program, 2, 1)],
           ["Abel, X", "Bond, X", "Dunn, X"])
    keep(program)
    new_chart(program, 3, 3, "Random Order")
    expect("at random", cards(program, 3, 3), everybody)
    keep(program)
    by_wishes(program)
    expect("by wishes", cards(program, 3, 4), everybody)
    keep(program)


def wish(program, student, kind, other=None, back=("shift+Tab",)):
    """By keys: from the list of wishes back to that of students; each list from its top down."""
    program.keys(*back)
    program.keys("Home", *["Down"] * student, "Tab", "Home", *["Down"] * kind)
    if other is not None:
        program.keys("Tab", "Home", *["Down"] * other)
    program.keys("alt+a")


def lines(program, name):
    return [node.get_name() for node in
            (program.widget(Atspi.Role.LIST, name).get_child_at_index(i)
             for i in range(program.widget(Atspi.Role.LIST, name).get_child_count()))]


def by_wishes(program):
    new_chart(program, 4, 3, "By Wishes")
    program.await_label("Student")
    wish(program, 0, 0, back=())  # at the front
    wish(program, 0, 1)  # at the back, against it
    wait_for("the contradiction", lambda: lines(program, "These cannot all be met"))
    program.keys("alt+t")
    wish(program, 1, 3, other=2)  # beside
    wait_for("two wishes", lambda: lines(program, "Wishes") ==
             ["Abel, X: at the front", "Bond, X: beside Cole, X"])
    expect("nothing against them", lines(program, "These cannot all be met"), [])
    program.keys("alt+n", "ctrl+a")
    program.type("4711")
    program.keys("alt+o")
    program.await_label("Seated by wishes, number 4711: all wishes are met.")


def by_keys(program, reader):
    """From the list to a seat, onto a taken one, let go; from seat to seat, and back to the list."""
    new_chart(program, 2, 2, "Individual Method")
    program.keys("shift+Tab", "Home", "space")
    reader.await_words("", "Abel, X is taken up: arrows carry, the blank puts down, Escape lets go.")
    program.keys("Down", "space")
    reader.await_words("Abel, X", "Abel, X sits at row 1, seat 2.")
    program.keys("shift+Tab", "Home", "space", "space")
    reader.await_words("Bond, X", "Bond, X sits at row 1, seat 2. Abel, X is back on the list.")
    expect("the list", lines(program, "Without a seat"), [f"{n}, X" for n in ("Cole", "Dunn", "Eads", "Fitz", "Abel")])
    program.keys("space", "Right", "Escape")
    reader.await_words("", "The card is back in its place.")
    expect("let go", [card(program, 1, 0), card(program, 1, 1)], ["Bond, X", ""])
    program.keys("space")
    reader.await_words("", "This seat is free.")
    program.keys("Left", "space", "Up", "space")
    reader.await_words("Bond, X", "Bond, X sits at row 1, seat 1.")
    program.keys("space", "shift+Tab", "space")
    reader.await_words("Without a seat", "Bond, X is back on the list.")
    expect("an empty chart", cards(program, 2, 2), set())
    program.keys("alt+u")
    wait_for("the move taken back", lambda: card(program, 0, 0) == "Bond, X")
    keep(program)


def places(this):
    """By chart the seats of the students."""
    record = dump(this.path("SIX.TYR"))
    return [[(s["SeatRow"][chart], s["SeatColumn"][chart]) for s in record["Students"]]
            for chart in range(1, record["NumCharts"] + 1)]


def delete_first(program):
    charts = program.widget(Atspi.Role.LIST, "Charts of this class")
    program.click(charts.get_child_at_index(0))
    program.keys("alt+d")
    program.box("You have chosen to Delete Chart 1.  Are you sure?", "alt+y", title="Delete Portal")
    program.window(PORTAL)


def opened(this):
    program = this.start(this.path("SIX.TYR"))
    program.frame("SIX.TYR")
    program.keys("alt+t", "s")
    program.window(PORTAL)
    return program


def left(program):
    program.keys("alt+x")
    program.frame("SIX.TYR")
    program.keys("ctrl+s", "ctrl+q")
    program.ended()


def tell(this):
    build(this.path("SIX.TYR"), CLASS)
    program = opened(this)
    reader = Reader()
    filled(program)
    by_keys(program, reader)
    left(program)
    kept = places(this)
    expect("the charts", len(kept), 4)
    expect("as sorted", kept[0], [(2, 0), (1, 0), (0, 0), (2, 1), (1, 1), (0, 1)])
    for chart in kept[:3]:
        expect("each on a seat of his own", len(set(chart) - {(-1, -1)}), 6)
    abel, bond, cole = kept[2][:3]
    expect("at the front", abel[0], 0)
    expect("side by side", [bond[0], abs(bond[1] - cole[1])], [cole[0], 1])
    expect("by hand", kept[3], [(-1, -1), (0, 0)] + [(-1, -1)] * 4)
    program = opened(this)
    wait_for("the first chart again", lambda: card(program, 2, 0) == "Abel, X")
    delete_first(program)
    left(program)
    expect("the others move up", places(this), kept[1:])


story.run(tell)
