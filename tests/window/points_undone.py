# SPDX-License-Identifier: GPL-3.0-or-later
# A big class under points: a grade is left out and a letter gets another value, both are undone by
# closing without a save, and the class opened again shows the figures of its file.
from support import story
from support.program import averages, build, dump, expect

STUDENTS, GRADES = 300, 60


def record():
    return {"AverageSettings": "2,0,0,0,0", "RoundMode": 1,
            "LetterValues": ["100", "99", "95", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "55"],
            "Instruments": [{"title": f"Grade {j}", "code": f"g{j}", "typecode": "Q ", "mvalue": 100}
                            for j in range(GRADES)],
            "Students": [{"lastname": f"Pupil{i:03}", "firstname": "Ada", "id": str(1000 + i),
                          "Marks": ["", "20"] + ["86"] * (GRADES - 1)} for i in range(STUDENTS)]}


def shows(program, *labels):
    program.window("Grades Portal")
    program.keys("alt+n")
    program.await_labels(*labels)
    program.keys("alt+x")


def leave_out_the_first(program):
    program.keys("alt+m", "p")
    program.window("Points Portal")
    program.keys("space", "alt+o")
    program.box("Do you want to save these points", "alt+n", title="SAVE POINTS")
    program.window("Rounding Modification Portal")
    program.keys("alt+s")
    program.window("Grades Portal")
    program.keys("alt+n")
    program.await_labels("5074/5900  86", " 86 (B/SAT/3.0)")
    program.keys("alt+x")
    program.box("Save Rounded Averaged Grades? (Recommended)", "alt+n", title="Save File")


def tell(this):
    path = this.path("BIG.TYR")
    build(path, record())
    before = dump(path)
    program = this.start(path)
    program.frame("BIG.TYR")
    leave_out_the_first(program)
    program.frame("BIG.TYR")

    program.keys("alt+r", "d", "n")
    program.window("Letter Values Portal")
    program.keys(*["Down"] * 4, "8", "7", "alt+x")  # B
    program.gone("Letter Values Portal")
    program.frame("BIG.TYR")
    program.keys("alt+m", "c")
    program.window("Current Weights and Rounding Summary Portal")
    program.keys("alt+c")
    program.window("Grades Portal")
    program.keys("alt+n")
    program.await_labels("5074/5900  86", " 86 (B-/SAT/3.0)")
    program.keys("alt+x")
    program.box("Save Rounded Averaged Grades? (Recommended)", "alt+n", title="Save File")
    program.frame("BIG.TYR")
    program.keys("ctrl+w")
    program.window("Note to the Teacher")
    program.keys("alt+n")
    program.start_page()
    expect("the file", dump(path), before)

    program.keys("alt+f", "1")
    program.frame("BIG.TYR")
    program.keys("alt+m", "c")
    program.window("Current Weights and Rounding Summary Portal")
    program.keys("alt+c")
    first = averages(path)[0]
    shows(program, f"{first['earned']}/6000  {first['ExactAverage']}", first["FinalGrade"].rstrip())
    program.frame("BIG.TYR")
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
