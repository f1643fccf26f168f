# SPDX-License-Identifier: GPL-3.0-or-later
# How did a grade go: its figures, each kind of graph, the distribution on paper; who is behind a
# dot; and the progress of three students one after the other.
from gi.repository import Atspi
from support import story
from support.program import build, expect, wait_for, xdotool

# 80 and 90 are counted as the figures of two grades whose deviation is 5.
CLASS = {
    "Instruments": [
        {"title": "Quiz 1", "code": "Q1", "typecode": "Q ", "mvalue": 100, "testdate": "9/2/2026"},
        {"title": "Test 1", "code": "T1", "typecode": "T ", "mvalue": 50, "testdate": "9/9/2026"},
    ],
    "Students": [
        {"lastname": "Abel", "firstname": "Bo", "id": "1", "Marks": ["", "80", "45"]},
        {"lastname": "Cho", "firstname": "Di", "id": "2", "Marks": ["", "90", "20"]},
        {"lastname": "Eng", "firstname": "Fa", "id": "3", "Marks": ["", "ABS", "NEW"]},
    ],
}


def figures(program):
    program.keys("alt+v", "s")
    program.window("Statistics Portal")
    program.await_focus(Atspi.Role.LIST, "TITLES")
    program.keys("Home")
    program.await_labels(" 2", " 1", " 85", " 5", " 100 %", "Median 85, middle half 82.5 to 87.5")
    program.keys("alt+o")
    program.gone("Statistics Portal")


def told(program, text):
    """What the graph tells by now."""
    def says():
        for top in program.windows():
            stack = [top]
            while stack:
                node = stack.pop()
                if node.get_name() == "Graph" and node.get_description() == text:
                    return True
                stack.extend(node.get_child_at_index(i) for i in range(node.get_child_count()))
        return False
    wait_for(f"the graph to tell {text!r}", says)


def graphs(program):
    title = "Graph Portal - QUIZ 1"
    program.window(title)
    for kind in ("alt+p", "alt+l", "alt+b"):
        program.keys(kind)
    program.keys("shift+Tab", "Right", "End")
    told(program, "Cho, Di: 90")
    program.keys("Return")
    program.window("Show Information Portal")
    program.keys("Escape")
    program.window(title)
    program.keys("alt+d")
    program.window("Tallyroll Printing")
    program.keys("Escape")
    program.window(title)
    program.keys("alt+x")
    program.gone(title)


def progress(program):
    program.keys("ctrl+i")
    program.window("Show Information Portal")
    for name in ("BO ABEL 1", "DI CHO 2", "FA ENG 3"):
        program.keys("alt+n", "alt+g")
        title = f"Student Progress Portal for {name}"
        program.window(title)
        program.keys("alt+v", "alt+l")
        program.keys("alt+c")
        program.gone(title)
        program.window("Show Information Portal")
    program.keys("Escape")
    program.gone("Show Information Portal")


def tell(this):
    path = this.path("MATH.TYR")
    build(path, CLASS)
    program = this.start(path)
    program.frame("MATH.TYR")
    figures(program)
    graphs(program)
    program.frame("MATH.TYR")
    progress(program)
    program.frame("MATH.TYR")
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
