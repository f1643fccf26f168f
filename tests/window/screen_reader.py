# SPDX-License-Identifier: GPL-3.0-or-later
# Every window that the menus File and Students open, by keyboard alone and as a screen reader meets
# it: names, kinds, labels, tables, a round by Tab, and the way out by Escape.
from support import story
from support.menus import Tour, all_entries, expect_all_opened
from support.program import expect
from support.ways import AT_ONCE, FILES, OFF, RECORDS, SCREENS


def recent_and_open(window):
    """Entries of classes: their names are the files'."""
    return {way for way, _ in all_entries(window) if way[-1][:1].isdigit()}


def tell(this):
    program = this.start(this.sample())
    frame = program.frame("MATH.TYR")
    expect_all_opened(frame, {*FILES, *RECORDS, *SCREENS}, AT_ONCE | OFF | recent_and_open(frame))
    off = {way for way, can in all_entries(frame) if not can}
    expect("entries that are off", sorted(off), sorted(OFF))
    tour = Tour(program, frame)
    for way, (title, *further) in FILES.items():
        tour.visit(way, title, further)
    tour.tell()
    expect("windows", len(tour.seen) >= len(FILES), True)


story.run(tell)
