# SPDX-License-Identifier: GPL-3.0-or-later
# What a screen reader finds: menus, toolbar, the grid cell by cell, and the fields of the Portals.
from gi.repository import Atspi
from support import story
from support.program import children, expect, is_shown, states, walk

ROLE = Atspi.Role
INPUTS = {ROLE.TEXT, ROLE.PASSWORD_TEXT, ROLE.LIST, ROLE.COMBO_BOX, ROLE.CHECK_BOX,
          ROLE.RADIO_BUTTON, ROLE.SPIN_BUTTON, ROLE.PUSH_BUTTON, ROLE.PAGE_TAB, ROLE.TABLE}
MENUS = ["File", "Students", "Records", "Make Up Grades", "Display", "Edit", "View", "Print",
         "Tools", "Insight", "Window", "Help"]
TOOLS = ["New Class by the Wizard", "Open a Class", "Save this Class", "Add Students",
         "Edit Students", "Enter Grades", "Edit Grades", "Enter Daily Attendance",
         "Edit Daily Attendance", "All Information on a Student", "Print", "Make Up Grades",
         "Statistics and Graph", "Leave Tallyroll", "Help"]


def read_menus(window):
    bar = next(node for node in walk(window) if node.get_role() == ROLE.MENU_BAR)
    shown = [entry for entry in children(bar) if is_shown(entry)]
    expect("menus", [entry.get_name() for entry in shown], MENUS)
    unnamed = [entry.get_name() for menu in shown for entry in walk(menu)
               if entry.get_role() == ROLE.MENU_ITEM and not entry.get_name()
               and states(entry).contains(Atspi.StateType.VISIBLE)]
    expect("entries without a name", unnamed, [])


def read_toolbar(window):
    bar = next(node for node in walk(window) if node.get_role() == ROLE.TOOL_BAR)
    names = [b.get_name() for b in children(bar)
             if b.get_role() == ROLE.PUSH_BUTTON and is_shown(b)]
    expect("toolbar", names, TOOLS)


def read_grid(program):
    table = program.table()
    expect("rows", Atspi.Table.get_n_rows(table), 30)
    expect("columns", Atspi.Table.get_n_columns(table), 16)
    expect("headings", [program.cell_text(0, col) for col in range(3)],
           ["NAME", "ID", "Testing Instruments"])
    expect("codes", [program.cell_text(1, col) for col in (2, 3, 15)], ["QZ1", "HW1", "FE"])
    students = [program.cell_text(row, 0) for row in range(2, 30)]
    expect("numbered students", [text.split()[0] for text in students if text],
           [str(i + 1) for i in range(sum(map(bool, students)))])
    expect("a mark can be read", program.cell_text(2, 2) != "", True)


def unnamed_inputs(window):
    return [node.get_role().value_nick for node in walk(window)
            if node.get_role() in INPUTS and is_shown(node) and not node.get_name()]


def read_portal(program, keys, title, fields):
    program.keys(*keys)
    window = program.window(title)
    expect(f"{title}: fields without a name", unnamed_inputs(window), [])
    for field in fields:
        program.field(field, window)
    focused = [node for node in walk(window) if states(node).contains(Atspi.StateType.FOCUSED)]
    expect(f"{title}: something has the focus", len(focused) > 0, True)
    program.keys("Escape")
    program.gone(title)
    program.frame("MATH.TYR")


def tell(this):
    program = this.start(this.sample())
    window = program.frame("MATH.TYR")
    read_menus(window)
    read_toolbar(window)
    read_grid(program)
    read_portal(program, ["ctrl+Insert"], "Add Student Portal",
                ["Last name", "First name", "ID", "Comments"])
    read_portal(program, ["ctrl+e"], "Edit Portal", ["Last name", "First name", "ID", "Comments"])
    read_portal(program, ["alt+f", "i"], "Class Information Portal",
                ["Description", "School", "Room", "Teacher", "Time or period"])
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
