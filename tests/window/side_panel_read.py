# SPDX-License-Identifier: GPL-3.0-or-later
# What is heard beside the windows of the menus: the side panel, the command window while it is
# walked from its field, the state of every kind of mark, and a doubt while the mark is typed.
from gi.repository import Atspi
from support import story
from support.program import build, children, expect, is_shown, states, wait_for, walk, xdotool
from support.reader import Listener, faults_of, focus_faults, has_word, tab_faults

ROLE, STATE = Atspi.Role, Atspi.StateType
# Of 20, and 13 passes.
SAID = {"CUT": "cut, counts as 0", "NON": "not done, counts as 0", "ABS": "absent", "EXC": "excused",
        "NEW": "no grade yet", "9": "failing", "25": "above the maximum", "15": ""}
CLASS = {
    "AverageSettings": "2,0,0,0,0",
    "Instruments": [{"title": "Fractions", "code": "Q1", "typecode": "Q ", "mvalue": 20, "lowpass": "13",
                     "dropyn": "N", "testdate": "9/11/2026"}],
    "Students": [{"lastname": f"Pupil {i}", "firstname": "Ada", "id": str(i), "Marks": ["", mark]}
                 for i, mark in enumerate(SAID, 1)],
}


def panel(program):
    return next(node for top in program.windows() for node in walk(top)
                if node.get_name() == "Side panel" and node.get_role() != ROLE.PUSH_BUTTON)


def read_panel(program, listener, window):
    program.await_labels("Ada Pupil 1", "Fractions", "This mark CUT")
    shown = [node for node in walk(panel(program)) if is_shown(node)]
    labels = [node for node in shown if node.get_role() == ROLE.LABEL]
    expect("labels of the panel without words", [node for node in labels if not (node.get_name() or "").strip()], [])
    pictures = {node.get_name(): (node.get_role_name(), has_word(node.get_description()))
                for node in shown if node.get_name() in ("Percents by grade", "Marks by percent")}
    expect("the pictures of the panel", pictures,
           {"Percents by grade": ("image", True), "Marks by percent": ("image", True)})
    expect("the class window", faults_of(window) + focus_faults(window), [])
    expect("a round through it", tab_faults(program, window, listener), [])
    program.click(program.cell(2, 2))
    program.await_focus(ROLE.TABLE, "Students and grades")


def read_states(program):
    for row, (mark, words) in enumerate(SAID.items(), 2):
        cell = program.cell(row, 2)
        expect(f"the cell of {mark}", (cell.get_name(), cell.get_description()), (mark, words))
        expect(f"whose mark {mark} is", Atspi.Table.get_row_description(program.table(), row),
               f"{row - 1} Pupil {row - 1}, Ada")
    expect("whose column it is", Atspi.Table.get_column_description(program.table(), 2), "Q1")
    expect("the grade in full", "Fractions" in program.cell(1, 2).get_description(), True)


def lines(program):
    return list(children(program.widget(ROLE.LIST, "What was found")))


def chosen(program):
    return [i for i, line in enumerate(lines(program)) if states(line).contains(STATE.SELECTED)]


def walk_commands(program, listener):
    program.keys("ctrl+k")
    window = program.window("Command")
    expect("the command window", faults_of(window) + focus_faults(window), [])
    listener.forget()
    program.type("attendance")
    wait_for("lines", lambda: len(lines(program)) > 2)
    listener.await_told(f"1 of {len(lines(program))}")
    expect("the line that is chosen", chosen(program), [0])
    told = lines(program)[1].get_name()
    program.keys("Down")
    listener.await_told(f"{told}, 2 of {len(lines(program))}")
    wait_for("the next line", lambda: chosen(program) == [1])
    entry = next(line.get_name() for line in lines(program) if line.get_name().startswith("Daily Attendance"))
    expect("name, place and key", entry, "Daily Attendance, Records > Enter Records, Ctrl+D")
    program.keys("ctrl+a")
    program.type("delete summary")
    reason = "The class has no summary attendance yet."
    listener.await_told(reason)
    expect("why it is off", reason in lines(program)[0].get_name(), True)
    program.keys("Escape")
    program.gone("Command")


def find_a_student(program, listener):
    program.keys("ctrl+f")
    program.window("Find")
    listener.forget()
    program.type("pupil 7")
    listener.await_told("Pupil 7")
    program.keys("Return")
    program.gone("Find")
    program.await_focus(ROLE.TABLE, "Students and grades")
    wait_for("the student's row", lambda: states(program.cell(8, 2)).contains(STATE.FOCUSED))
    expect("the row is selected", states(program.cell(8, 2)).contains(STATE.SELECTED), True)


def doubt_while_typing(program, listener):
    program.keys("ctrl+g")
    program.window("Enter  Grades  Portal")
    program.keys(*"Rivers", "Tab", *"RIV", "Tab", *"20", "F5")
    listener.forget()
    program.keys(*"25")
    listener.await_told("25 is above the maximum of 20")
    marks = program.widget(ROLE.TABLE, "Marks")
    told = [(cell.get_name(), cell.get_description()) for cell in
            (Atspi.Table.get_accessible_at(marks, 1, col) for col in range(Atspi.Table.get_n_columns(marks)))]
    expect("the cell in doubt", ("25", "25 is above the maximum of 20") in told, True)
    listener.forget()
    program.keys("BackSpace")
    program.await_label("1 of 8 entered, average 2")
    listener.listen()
    told = [cell.get_description() for cell in
            (Atspi.Table.get_accessible_at(marks, 1, col) for col in range(Atspi.Table.get_n_columns(marks)))]
    expect("no doubt of 2", any("above" in words for words in told), False)


def message_of_a_command(program, listener):
    """What the status bar says is told at the cell in work."""
    listener.forget()
    program.keys("ctrl+s")
    listener.await_told("ROLL.TYR")


def tell(this):
    path = this.path("ROLL.TYR")
    build(path, CLASS)
    program = this.start(path)
    program.frame("ROLL.TYR")
    listener = Listener()
    xdotool("windowsize", "--sync", xdotool("getactivewindow"), 1400, 900)
    window = program.frame("ROLL.TYR")
    read_states(program)
    walk_commands(program, listener)
    read_panel(program, listener, window)
    find_a_student(program, listener)
    message_of_a_command(program, listener)
    doubt_while_typing(program, listener)


story.run(tell)
