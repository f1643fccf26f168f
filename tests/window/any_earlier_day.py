# SPDX-License-Identifier: GPL-3.0-or-later
# A mark of three weeks ago is found among the snapshots, compared, looked at beside the class and
# taken back; a grade that was filled in wrongly for the whole class and saved goes again.
import copy

from gi.repository import Atspi
from support import story
from support.earlier import CLASS, companion, enter_grade, grades, marks, save
from support.program import build, expect, wait_for, xdotool

PORTAL = "Snapshots Portal"


def three_weeks_ago(this, path):
    """Two saves, which the companion file then dates back; the class as it was at the first."""
    build(path, CLASS)
    program = this.start(path)
    program.frame("A.TYR")
    enter_grade(program, "Wrong")
    save(program, "A.TYR")
    program.keys("ctrl+q")
    program.ended()
    expect("the snapshots", len(companion(path, "SELECT number FROM snapshot")), 2)
    companion(path, "UPDATE snapshot SET time = datetime(time, '-21 days')")


def slip(path):
    """Another program gives Ng 8 in the quiz."""
    record = copy.deepcopy(CLASS)
    record["Students"][0]["Marks"][1] = "8"
    build(path + ".new.TYR", record)
    with open(path + ".new.TYR", "rb") as new, open(path, "wb") as old:
        old.write(new.read())


def open_snapshots(program):
    program.keys("alt+i", "p")
    program.window(PORTAL)
    program.await_focus(Atspi.Role.TABLE, "Snapshots")


def look_beside(program):
    """The oldest one in a window of its own; the class is worked on at the same time."""
    open_snapshots(program)
    program.keys("ctrl+End")
    program.await_label("1 difference.")
    program.keys("alt+o")
    title = wait_for("the snapshot", lambda: next((t for t in program.titles() if t.startswith("A.TYR on ")), None))
    expect("its title", title.endswith(" (read-only)"), True)
    program.await_label("Read-only: the class as it was saved. 1 mark differs from the class as it stands, "
                        "marked by colour.")
    table = program.widget(Atspi.Role.TABLE, "The class as it was saved")
    expect("Ng's quiz of then", Atspi.Table.get_accessible_at(table, 1, 2).get_name().split(",")[0], "80")
    frame = xdotool("search", "--name", "^Tallyroll - ").split()[0]
    xdotool("windowactivate", "--sync", frame)
    program.keys("ctrl+g")
    program.window("Enter  Grades  Portal")
    program.keys("Escape")
    program.gone("Enter  Grades  Portal")
    xdotool("windowactivate", "--sync", xdotool("search", "--name", "read-only").split()[0])
    program.keys("Escape")
    program.gone(title)
    xdotool("windowactivate", "--sync", frame)


def take_mark_back(program, path):
    open_snapshots(program)
    program.keys("ctrl+End")
    program.await_label("1 difference.")
    program.keys("alt+l")
    program.await_label('Quiz of Ng, Ada is "80" again. 0 differences.')
    program.keys("alt+x")
    program.gone(PORTAL)
    program.frame("A.TYR", changed=True)
    expect("the quiz on the screen", program.column(2, 2), ["80", "60"])
    save(program, "A.TYR")
    expect("the quiz", marks(path, 1), ["80", "60"])


def take_fill_back(program, path):
    enter_grade(program, "Wrong")
    save(program, "A.TYR")
    expect("the grades", grades(path), ["Quiz", "Test", "Wrong"])
    open_snapshots(program)
    program.keys("Down")
    program.await_label("3 differences.")  # the grade and two marks
    program.keys("alt+a")
    program.await_label("The class is as on that day. 0 differences.")
    program.keys("alt+x")
    program.gone(PORTAL)
    program.keys("ctrl+z")
    wait_for("the grade to be there again", lambda: program.cell_text(1, 4) == "Wro")
    program.keys("ctrl+shift+z")
    save(program, "A.TYR")
    expect("the grades", grades(path), ["Quiz", "Test"])


def tell(this):
    path = this.path("A.TYR")
    three_weeks_ago(this, path)
    slip(path)
    program = this.start(path)
    program.frame("A.TYR")
    enter_grade(program, "Late")
    program.keys("ctrl+z")
    program.frame("A.TYR", changed=False)
    look_beside(program)
    take_mark_back(program, path)
    take_fill_back(program, path)
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
