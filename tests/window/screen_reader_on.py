# SPDX-License-Identifier: GPL-3.0-or-later
# The windows of the other menus as a screen reader meets them: averages, screens, reports, letters,
# seats and insight.
from support import story
from support.menus import Tour
from support.program import expect
from support.ways import SCREENS


def tell(this):
    program = this.start(this.sample())
    frame = program.frame("MATH.TYR")
    program.keys("Right", "Right")  # to a mark: the graph is that of its grade
    tour = Tour(program, frame)
    for way, (title, *further) in SCREENS.items():
        tour.visit(way, title, further)
    tour.tell()
    expect("windows", len(tour.seen) >= len(SCREENS), True)


story.run(tell)
