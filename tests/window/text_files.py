# SPDX-License-Identifier: GPL-3.0-or-later
# A class starts from a spreadsheet's file, one of its columns chosen anew; grades follow by ID; the
# roster goes out again as a text file. All by keys.
from gi.repository import Atspi
from support import story
from support.program import dump, expect

ROSTER = "Number;Surname;First;Home\r\n12;Ng;Zoë;Köln\r\n11;\"Abel; Jr.\";Bo;Oslo\r\n"
MARKS = "11,b+\n12,91\n99,50\n"


def tell(this):
    roster, marks, out, saved = (this.path(name)
                                 for name in ("roster.csv", "marks.txt", "out.txt", "NEW.TYR"))
    with open(roster, "w", encoding="utf-8-sig", newline="") as file:
        file.write(ROSTER)
    with open(marks, "w", encoding="ascii") as file:
        file.write(MARKS)

    program = this.start()
    program.window("Welcome to Tallyroll")
    program.keys("Return")
    program.start_page()
    program.keys("alt+f", "t")
    program.window("Text File Portal")
    program.keys("Down", "Down", "Down", "Down", "Down", "Return")  # the spreadsheet
    program.choose_file("Open", roster)
    program.window("Text File Portal")
    program.await_label("Students: 2")
    program.keys("Right", "Right", "Right", "alt+h", "c")  # the fourth column is the city
    program.keys("alt+o")
    program.gone("Text File Portal")
    program.frame("NewClass 1")
    expect("the roster", program.column(0, 2), ["1 Abel; Jr., Bo", "2 Ng, Zoë"])

    program.keys("alt+f", "l", "i", "Down", "Return")  # grades by ID
    program.window("Text File Portal")
    program.keys("Up", "Return")  # the comma
    program.choose_file("Open", marks)
    program.box("These marks of the file are no grades as they stand. Of each only the number that it "
                "begins with counts, otherwise 0; letters count in capitals.\n\nAbel; Jr., Bo: b+", "Return")
    program.window("Enter  Grades  Portal")
    program.type("Rivers\tRIV")
    program.await_text("Up to 3 Character Code", "RIV")
    program.keys("alt+x")
    program.gone("Enter  Grades  Portal")
    program.frame("NewClass 1")
    expect("the marks", program.column(2, 2), ["b+", "91"])

    program.keys("alt+f", "l", "e", "Down", "Down", "Down", "Return")  # without headers
    program.window("Text File Portal")
    program.keys("Return")
    program.choose_file("Save As", out)
    program.frame("NewClass 1")
    program.keys("ctrl+s")
    program.choose_file("Save As", saved)
    program.frame("NEW.TYR")
    program.keys("ctrl+q")
    program.ended()

    with open(out, "rb") as file:
        expect("the text file", file.read(), "\ufeff11,Abel; Jr. Bo,b+\r\n12,Ng Zoë,91\r\n".encode())
    students = dump(saved)["Students"]
    expect("the fields", [[student[field] for field in ("id", "lastname", "firstname", "city")]
                          for student in students],
           [["11", "Abel; Jr.", "Bo", "Oslo"], ["12", "Ng", "Zoë", "Köln"]])


story.run(tell)
