# SPDX-License-Identifier: GPL-3.0-or-later
# A grade goes by the clipboard to another open class. Who is unknown there is passed over; who is
# unknown here keeps "NEW".
from support import story
from support.program import build, dump, expect
from support.steps import open_file

SOURCE = [("Abbott", "1", "91"), ("Berger", "2", "A-"), ("Costa", "3", "ABS")]
TARGET = [("Costa", "3"), ("Dupont", "4"), ("Abbott", "1")]


def tell(this):
    source, target = this.path("FROM.TYR"), this.path("INTO.TYR")
    build(source, {"Instruments": [{"title": "Rivers", "code": "RIV", "mvalue": 50,
                                    "lowpass": "32.5", "dropyn": "Y", "testdate": "9/11/2026",
                                    "typecode": "Q "}],
                   "Students": [{"lastname": name, "id": id, "Marks": ["", mark]}
                                for name, id, mark in SOURCE]})
    build(target, {"Students": [{"lastname": name, "id": id} for name, id in TARGET]})
    program = this.start(source)
    program.frame("FROM.TYR")
    program.keys("alt+r", "e", "r")
    program.window("Transfer Grade Between Classes Portal")
    program.keys("Home", "alt+t")
    program.box("Transfer Rivers to the clipboard? (The Grade will still remain in the current class.)",
                "Left", "Return", title="Transfer Portal")
    program.keys("alt+x")
    open_file(program, target, "INTO.TYR")

    program.keys("ctrl+g")
    program.window("Enter  Grades  Portal")
    program.keys("alt+g", "alt+x")
    program.gone("Enter  Grades  Portal")
    program.frame("INTO.TYR")
    program.keys("ctrl+s", "ctrl+q")
    program.ended()

    taken, left = dump(target), dump(source)
    grade = taken["Instruments"][0]
    expect("header", [grade[field] for field in ("title", "code", "mvalue", "lowpass", "dropyn")],
           ["Rivers", "RIV", 50, "32.5", "Y"])
    expect("type", grade["typecode"].strip(), "Q")
    expect("the date", grade["testdate"], left["Instruments"][0]["testdate"])
    expect("marks", {student["lastname"]: student["Marks"][1] for student in taken["Students"]},
           {"Abbott": "91", "Costa": "ABS", "Dupont": "NEW"})
    expect("the source's marks", [student["Marks"][1] for student in left["Students"]],
           ["91", "A-", "ABS"])


story.run(tell)
