# SPDX-License-Identifier: GPL-3.0-or-later
# The windows in which grades and attendance are entered and edited, as a screen reader meets them.
from support import story
from support.menus import Tour
from support.program import expect
from support.ways import RECORDS


def tell(this):
    program = this.start(this.sample())
    tour = Tour(program, program.frame("MATH.TYR"))
    for way, (title, *further) in RECORDS.items():
        tour.visit(way, title, further)
    tour.tell()
    expect("windows", len(tour.seen) >= len(RECORDS), True)


story.run(tell)
