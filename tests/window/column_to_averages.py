# SPDX-License-Identifier: GPL-3.0-or-later
# A new class by keys alone: two grades of thirty marks, weights, and the averages on the screen, which
# are those that the command line computes.
from support import story
from support.program import averages, build, command_line, dump, expect

STUDENTS = 30
QUIZ = [str(60 + i) for i in range(STUDENTS)]
TEST = [str(99 - i) for i in range(STUDENTS)]
FUNCTION_KEYS = {4: ("F6", "ABS"), 9: ("F7", "NON"), 14: ("F8", "CUT"), 19: ("F9", "EXC")}


def type_column(program, marks):
    for mark in marks:
        program.keys(*mark, "Down")


def enter_grades(program):
    program.keys("ctrl+g")
    program.window("Enter  Grades  Portal")
    program.keys(*"Quiz", "Tab", *"QZ1", *["Tab"] * 6)
    for row, mark in enumerate(QUIZ):
        keys = (FUNCTION_KEYS[row][0],) if row in FUNCTION_KEYS else mark
        program.keys(*keys, "Down")
    program.keys("alt+a")
    program.keys(*"Test", "Tab", *"T1", *["Tab"] * 6)
    type_column(program, TEST)
    program.keys("alt+x")
    program.gone("Enter  Grades  Portal")


def make_weights(program):
    program.keys("alt+m", "i")
    program.window("Weights Portal - Individual Items")
    program.keys("alt+e", "alt+o")
    program.box("Do you want to save these weights?", "Return", title="SAVE WEIGHTS")
    program.window("Rounding Modification Portal")
    program.keys("Return")
    program.window("Grades Portal")


def compare(program, path):
    """Student by student, as Next leads."""
    computed = averages(path)
    expect("how many averages", len(computed), STUDENTS)
    for student in computed:
        program.keys("alt+n")
        program.await_labels(student["lastname"], student["ExactAverage"],
                             student["FinalGrade"].rstrip())


def tell(this):
    path = this.path("ROLL.TYR")
    build(path, {"Students": [{"lastname": f"Pupil{i:02}", "firstname": "Ada", "id": f"{100 + i}"}
                              for i in range(STUDENTS)]})
    program = this.start(path)
    program.frame("ROLL.TYR")
    enter_grades(program)
    program.frame("ROLL.TYR")
    make_weights(program)

    saved = dump(path)
    expect("titles", [grade["title"] for grade in saved["Instruments"]], ["Quiz", "Test"])
    wanted = [FUNCTION_KEYS[row][1] if row in FUNCTION_KEYS else mark
              for row, mark in enumerate(QUIZ)]
    expect("the first column", [student["Marks"][1] for student in saved["Students"]], wanted)
    expect("the second column", [student["Marks"][2] for student in saved["Students"]], TEST)
    expect("weights", [grade["weight"] for grade in saved["Instruments"]], ["50", "50"])
    command_line("check", path)

    compare(program, path)
    program.keys("alt+x")
    program.box("Save Rounded Averaged Grades? (Recommended)", "alt+n", title="Save File")
    program.frame("ROLL.TYR")
    program.keys("ctrl+s", "ctrl+q")
    program.ended()


story.run(tell)
