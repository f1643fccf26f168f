# SPDX-License-Identifier: GPL-3.0-or-later
# Draws the pictures of the documents anew: cmake --build build/release --target screens.
import pathlib
import shutil
import subprocess
import sys
import time

from gi.repository import Atspi
from support import story
from support.earlier import enter_grade, save
from support.program import build, wait_for, xdotool
from support.steps import TOUR, command, open_file, pass_greeting

PICTURES = pathlib.Path(__file__).resolve().parents[2] / "docs" / "pictures"


def take(program, name):
    """The window in front, settled, without its frame; few colours keep the file small."""
    xdotool("mousemove", 1599, 1099)
    path = PICTURES / f"{name}.png"
    window = xdotool("getactivewindow")
    before = None
    for _ in range(20):  # until two pictures in a row are the same
        shot = subprocess.run(["import", "-window", window, "rgb:-"], capture_output=True,
                              timeout=20, check=True).stdout
        if shot == before:
            break
        before = shot
    subprocess.run(["import", "-window", window, "-strip", "-dither", "None", "-colors", "128",
                    f"PNG8:{path}"], timeout=20, check=True)


def sample_window(this, name, *options, **surroundings):
    program = this.start(*options, this.sample("SAMPLE8.TYR"), **surroundings)
    program.frame("SAMPLE8.TYR")
    xdotool("windowsize", "--sync", xdotool("getactivewindow"), *SIZES.get(name, (1100, 720)))
    program.table()
    take(program, name)
    return program


SIZES = {"sample-150": (1500, 1000)}


def portal(program, keys, title, name, prepare=()):
    program.keys(*keys)
    program.window(title)
    program.keys(*prepare)
    take(program, name)
    program.keys("Escape")
    program.gone(title)


def greeting(this):
    program = this.start()
    program.window("Welcome to Tallyroll")
    take(program, "frmstartup")
    pass_greeting(program)
    xdotool("windowsize", "--sync", xdotool("getactivewindow"), 1100, 720)
    take(program, "start-page")
    program.keys("ctrl+shift+n")
    program.window("Start a New Class Wizard")
    take(program, "frmWizard")
    program.stop()


def first_hour(this):
    """As who never started the program before sees it."""
    program = this.start(environment={"XDG_CONFIG_HOME": this.path("new"), "HOME": this.path("new")})
    pass_greeting(program)
    xdotool("windowsize", "--sync", xdotool("getactivewindow"), 1100, 720)
    program.await_label("Your first time here?")
    take(program, "first-start")
    program.keys("Return")
    program.frame("SAMPLE8.TYR")
    program.await_label(TOUR[0])
    program.keys("Return")
    program.await_label(TOUR[1])
    take(program, "first-tour")
    program.keys("Escape")
    command(program, "attendance", "Daily Attendance")
    program.window("Enter Attendance Portal")
    program.keys("Down", "Home", "l")
    take(program, "first-attendance")
    program.keys("alt+x")
    program.gone("Enter Attendance Portal")
    command(program, "enter grades", "Grades")
    program.window("Enter  Grades  Portal")
    program.type("Quiz 9")
    program.keys("Return", *"Q9", "Return", *"20", *["Return"] * 4, "q", "Return")
    program.keys(*"18", "Return", *"15", "Return", "F6", "Down", "B", "plus")
    take(program, "first-quiz")
    program.stop()


def averages(this):
    program = this.start(this.sample("SAMPLE8.TYR"))
    program.frame("SAMPLE8.TYR")
    program.keys("alt+m", "i")
    program.window("Weights Portal - Individual Items")
    program.keys("alt+u")
    take(program, "frmweights")
    program.keys("Escape")
    program.gone("Weights Portal - Individual Items")
    portal(program, ["alt+m", "t"], "Weights Portals - Type", "frmpercents", ["alt+e"])
    portal(program, ["alt+m", "p"], "Points Portal", "frmpoints")
    program.keys("alt+m", "p", "alt+o")
    program.window("SAVE POINTS")
    program.keys("alt+n")
    program.window("Rounding Modification Portal")
    take(program, "frmroundoff")
    program.keys("Escape")
    program.gone("Rounding Modification Portal")
    portal(program, ["alt+m", "c"], "Current Weights and Rounding Summary Portal", "frmoptions")
    program.keys("alt+m", "c", "alt+c")
    program.window("Grades Portal")
    program.keys("alt+n")
    take(program, "frmscrnavg")
    program.stop()


def analysis(this):
    """A grade in figures and pictures."""
    program = this.start(this.sample("SAMPLE8.TYR"))
    program.frame("SAMPLE8.TYR")
    program.keys("alt+v", "s")
    program.window("Statistics Portal")
    program.keys("Home")
    take(program, "frmstatistic")
    program.keys("alt+o")
    program.gone("Statistics Portal")
    for key, name in (("alt+b", "frmgraph"), ("alt+l", "frmgraph-line"), ("alt+p", "frmgraph-pie")):
        program.keys(key)
        take(program, name)
    program.keys("alt+x")
    program.frame("SAMPLE8.TYR")
    program.keys("ctrl+i")
    program.window("Show Information Portal")
    program.keys("alt+n", "alt+g")
    wait_for("the progress of a student", lambda: program.front().startswith("Student Progress"))
    program.keys("alt+v")
    take(program, "frmgrone")
    program.keys("alt+c")
    program.window("Show Information Portal")
    program.keys("Escape")
    program.gone("Show Information Portal")
    portal(program, ["alt+v", "r"], "View  Roll Book Portal", "FRMROLLBOOK")
    portal(program, ["alt+v", "o"], "Display Single Grade Portal", "frmsingles", ["alt+n", "alt+g", "h"])
    other = this.sample("OTHER.TYR")
    open_file(program, other, "OTHER.TYR")
    program.keys("alt+v", "s")
    program.window("Statistics Portal")
    program.keys("alt+p")
    program.window("Compare Statistics Portal")
    program.keys("Home", "space", "Down", "space", "alt+o", "Down", "Tab", "Down", "Down", "alt+o")
    take(program, "frmcompare-figures")
    program.keys("alt+o")
    program.window("Comparisons for SAMPLE8.TYR, OTHER.TYR")
    take(program, "frmcompare")
    program.stop()


def text_file(this, program):
    """The columns of a spreadsheet's file."""
    roster = this.path("roster.csv")
    with open(roster, "w", encoding="utf-8") as file:
        file.write("Student ID,Surname,First name,Town,Guardian,Bus\n")
        for line in ("9001,Okafor,Chidi,Riverside,Ada Okafor,12", "9002,Larsen,Freja,Riverside,Jens Larsen,4",
                     "9003,Muñoz,Inés,Lakewood,Rosa Muñoz,12", "9004,Novak,Jan,Lakewood,Eva Novak,7"):
            file.write(line + "\n")
    program.keys("alt+f", "l", "i", "Return")
    program.window("Text File Portal")
    program.keys("Return", "Down", "Down", "Down", "Down", "Down", "Return")
    program.choose_file("Open", roster)
    program.window("Text File Portal")
    program.await_label("Students: 4")
    take(program, "frmtxt")
    program.keys("Escape")
    program.gone("Text File Portal")


def marks(program):
    title = "Enter  Grades  Portal"
    program.keys("ctrl+g")
    program.window(title)
    program.keys(*"Essay", "Tab", *"ESS", *["Tab"] * 6)
    program.keys(*"92", "Down", *"78", "Down", "F6", "Down", *"88")
    take(program, "frmMarks")
    program.keys("Escape")
    program.window("CANCEL")
    program.keys("alt+y")
    program.gone(title)


def reports(program):
    program.keys("ctrl+p")
    program.window("Printer Portal")
    program.click(program.widget(Atspi.Role.RADIO_BUTTON, "Roll Book"))
    time.sleep(0.6)  # the first page follows a moment after the choice
    take(program, "frmprintall")
    program.keys("alt+c")
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Preview"))
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.window("Print Preview Portal")
    take(program, "frmprintpre")
    program.keys("Escape")
    # Final grades that no grade keeps yet are asked about first.
    wait_for("the way back", lambda: program.front() in ("Save File", "Printer Portal"))
    if program.front() == "Save File":
        program.keys("alt+n")
    program.window("Printer Portal")
    program.keys("Escape")
    program.gone("Printer Portal")


def mail(program):
    program.keys("ctrl+p")
    program.window("Printer Portal")
    program.keys("alt+s")
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Choose All"))
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Preview"))
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.window("Print Preview Portal")
    program.keys("alt+m")
    program.window("E-mail Portal")
    program.fill("mail.school.example", "teacher@school.example")
    program.keys("alt+j")
    program.type("First term")
    take(program, "frmSendMail")
    program.keys("alt+a")
    program.window("Send to Several")
    take(program, "frmSendMany")
    for title in ("E-mail Portal", "Print Preview Portal", "Printer Portal"):
        program.keys("Escape")
        program.window(title)
    program.keys("Escape")
    program.gone("Printer Portal")


def letters(this, *options, **surroundings):
    """A form letter, whom it is for, as one of them gets it, and the search beside it."""
    writer = "Tallyroll Word Processor"
    form = this.path("Progress.rtf")
    shutil.copy(story.SAMPLE.parent / "letters" / "Progress.rtf", form)
    program = this.start(*options, this.sample("SAMPLE8.TYR"), **surroundings)
    program.frame("SAMPLE8.TYR")
    program.keys("alt+t", "w")
    program.window(writer)
    program.keys("ctrl+o")
    program.choose_file("Open", form)
    program.window(f"{writer} Progress.rtf")
    program.keys("ctrl+t")
    program.window("Student Portal")
    program.keys("Home", *["shift+Down"] * 4, "alt+e")
    chosen = program.widget(Atspi.Role.LIST, "Selected students")
    wait_for("the choice", lambda: chosen.get_child_count() == 5)
    program.keys("Home", "shift+Down")
    take(program, "frmstudents")
    program.keys("alt+f")
    program.window(f"{writer} Progress.rtf")
    program.await_label("5 students are chosen")
    take(program, "frmwrdproc")
    program.keys("F5", "alt+Next")
    take(program, "frmwrdproc-merged")
    program.keys("F6")
    take(program, "frmwrdproc-pages")
    program.keys("Escape", "ctrl+f")
    program.window("Find and Replace Portal")
    program.fill("grade", "mark")
    take(program, "frmreplace")
    program.keys("Escape")
    program.window(f"{writer} Progress.rtf")
    program.keys("alt+f", "m")
    program.window("E-mail Portal")
    program.fill("mail.school.example", "teacher@school.example")
    take(program, "frmSendMail-letters")
    program.stop()


def attendance(program):
    """A month with its totals, the range, and both forms of a summary."""
    program.keys("ctrl+d")
    program.window("Enter Attendance Portal")
    program.keys("alt+t", "s")
    take(program, "frmAtt")
    program.keys("alt+d")
    program.window("Attendance Settings Portal")
    take(program, "frmatset")
    program.keys("Escape")
    program.window("Enter Attendance Portal")
    program.keys("alt+x")
    program.gone("Enter Attendance Portal")
    program.keys("alt+r", "e", "s")
    program.window("Summary Attendance Portal")
    program.click(program.widget(Atspi.Role.RADIO_BUTTON, "Direct Entering of Att.Info"))
    take(program, "frmAtsum-direct")
    program.click(program.widget(Atspi.Role.RADIO_BUTTON, "Summary--Range of Dates"))
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "OK"))
    take(program, "frmAtsum-range")
    program.keys("Escape")
    program.gone("Summary Attendance Portal")


def portals(this):
    program = sample_window(this, "sample-light")
    portal(program, ["ctrl+Insert"], "Add Student Portal", "frmAdd")
    portal(program, ["ctrl+e"], "Edit Portal", "frmEdit", ["Down"])
    marks(program)
    portal(program, ["alt+f", "i"], "Class Information Portal", "frmclassinfo")
    portal(program, ["alt+s", "d"], "Delete Portal", "frmdelete", ["Home", "Down"])
    attendance(program)
    reports(program)
    mail(program)
    text_file(this, program)
    portal(program, ["alt+t", "s"], "Seating Chart Portal", "frmseating")
    program.keys("F1")
    program.window("Tallyroll Help")
    take(program, "help")
    program.keys("alt+F4")
    program.frame("SAMPLE8.TYR")
    program.keys("alt+f", "w", "r")
    program.window("Password Window")
    take(program, "frmpassword")
    program.stop()


def school_systems(this):
    """A file of another system with problems, and a class that another system would misread."""
    path, canvas = this.path("MATH.TYR"), this.path("canvas.csv")
    record = {"description": "Math", "Instruments": [{"title": "Essay", "mvalue": 20}, {"title": "Final Score", "mvalue": 100}],
              "Students": [{"lastname": name, "firstname": first, "id": str(n), "Marks": ["", mark, "B+"]}
                           for n, (name, first, mark) in enumerate((("Abel", "Bo", "18"), ("Cho", "Di", "NEW"), ("Ems", "Flo", "9")), 1)]}
    build(path, record)
    with open(canvas, "w", encoding="utf-8", newline="") as file:
        file.write("Student,ID,SIS User ID,Section,Essay (4711),Quiz (12)\r\n    Points Possible,,,,25,10\r\n"
                   "\"Abel, Robert\",901,,A,17.50,8\r\n\"Cho, Di\",902,2,A,x9,5\r\n\"Ems, Flo\",903,3,A,11,6\r\n")
    program = this.start(path)
    program.frame("MATH.TYR")
    program.keys("alt+f", "l", "s")
    program.window("School Systems Portal")
    program.keys("alt+f")
    program.choose_file("Open", canvas)
    program.window("School Systems Portal")
    program.await_focus(Atspi.Role.TABLE, "What would happen")
    program.keys("Down", "Down")
    take(program, "frmexchange")
    program.keys("alt+g")
    program.await_label("5 marks of 2 grades, 1 warning")
    take(program, "frmexchange-out")
    program.stop()


def trust(this):
    """A grade that nobody wanted: taken back, found in the snapshots, and lost with the program."""
    path = this.sample("SAMPLE8.TYR")
    program = this.start(path)
    program.frame("SAMPLE8.TYR")
    enter_grade(program, "Wrong")
    save(program, "SAMPLE8.TYR")
    program.keys("alt+i", "p")
    program.window("Snapshots Portal")
    program.keys("Down")
    take(program, "frmsnapshots")
    program.keys("alt+o")
    wait_for("the snapshot", lambda: program.front().endswith("(read-only)"))
    take(program, "frmsnapshot")
    program.keys("Escape")
    program.frame("SAMPLE8.TYR")
    portal(program, ["alt+i", "h"], "History Portal", "frmhistory")
    program.table()
    portal(program, ["ctrl+Home", "Down", "alt+i", "e"], "Explain Average Portal", "frmexplain")
    portal(program, ["alt+i", "u"], "Unusual Marks Portal", "frmunusual")
    enter_grade(program, "Lost")
    enter_grade(program, "Last")
    program.stop()
    program = this.start(path)
    program.window("Recovered Work Portal")
    take(program, "frmrecover")
    program.stop()


def tell(this):
    PICTURES.mkdir(parents=True, exist_ok=True)
    greeting(this)
    first_hour(this)
    portals(this)
    averages(this)
    analysis(this)
    school_systems(this)
    trust(this)
    letters(this)
    sample_window(this, "sample-dark", "--dark").stop()
    sample_window(this, "sample-150", environment={"QT_SCALE_FACTOR": "1.5"}).stop()


if __name__ == "__main__":
    story.run(tell)
    sys.exit(0)
