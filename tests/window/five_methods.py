# SPDX-License-Identifier: GPL-3.0-or-later
# Each of the five entries under Make Up Grades leads to the Grades Portal, with what the command line
# computes for the first student, and back to the class.
from support import story
from support.program import averages, expect


def share_evenly(program, title, question):
    program.window(title)
    program.keys("alt+e", "alt+o")
    program.box(question, "Return", title="SAVE WEIGHTS")


def by_items(program):
    program.keys("alt+m", "i")
    share_evenly(program, "Weights Portal - Individual Items", "Do you want to save these weights?")


def by_types(program):
    program.keys("alt+m", "t")
    share_evenly(program, "Weights Portals - Type", "Do you want to save these weights?")


def by_points(program):
    program.keys("alt+m", "p")
    program.window("Points Portal")
    program.keys("alt+o")
    program.box("Do you want to save these points", "Return", title="SAVE POINTS")


def by_points_and_types(program):
    program.keys("alt+m", "a")
    program.window("Points Portal")
    program.keys("alt+o")
    share_evenly(program, "Weights Portals - Type", "Do you want to save these weights?")


def by_settings_in_force(program):
    program.keys("alt+m", "c")
    program.window("Current Weights and Rounding Summary Portal")
    program.keys("alt+c")


def compare(program, path):
    program.window("Grades Portal")
    first = averages(path)[0]
    program.keys("alt+n")
    average = first["ExactAverage"]
    if first["possible"]:
        average = f"{first['earned']}/{first['possible']}  {average}"
    program.await_labels(first["lastname"], average, first["FinalGrade"].rstrip())
    return average


def leave(program):
    program.keys("alt+x")
    program.window("Save File")
    program.keys("alt+n")
    program.frame("MATH.TYR")


def tell(this):
    path = this.sample()
    program = this.start(path)
    program.frame("MATH.TYR")
    shown = []
    for method in (by_items, by_types, by_points, by_points_and_types):
        method(program)
        program.window("Rounding Modification Portal")
        program.keys("Return")
        shown.append(compare(program, path))
        leave(program)
    by_settings_in_force(program)
    expect("by the settings in force", compare(program, path), shown[-1])
    expect("four methods, four averages", len(set(shown)), 4)
    leave(program)
    program.stop()


story.run(tell)
