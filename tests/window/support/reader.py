# SPDX-License-Identifier: GPL-3.0-or-later
"""A window as a screen reader and the Tab key meet it: what they would stumble over, one line each."""
import time

from gi.repository import Atspi, GLib
from support.program import children, is_shown, states, wait_for

ROLE = Atspi.Role
STATE = Atspi.StateType
FIELDS = {ROLE.TEXT, ROLE.PASSWORD_TEXT, ROLE.LIST, ROLE.COMBO_BOX, ROLE.SPIN_BUTTON, ROLE.TABLE,
          ROLE.TREE, ROLE.TREE_TABLE}
CONTROLS = FIELDS | {ROLE.CHECK_BOX, ROLE.RADIO_BUTTON, ROLE.PUSH_BUTTON, ROLE.TOGGLE_BUTTON,
                     ROLE.PAGE_TAB, ROLE.PAGE_TAB_LIST, ROLE.CHART, ROLE.DOCUMENT_FRAME, ROLE.SLIDER,
                     ROLE.MENU_ITEM, ROLE.LINK}
WHOLE = {ROLE.TABLE, ROLE.LIST, ROLE.TREE, ROLE.TREE_TABLE, ROLE.COMBO_BOX, ROLE.SPIN_BUTTON,
         ROLE.DOCUMENT_FRAME}  # what stands inside is told by the control itself
ROWS_READ = 4
LETTERS_OF_A_NAME = 2  # "+", "..." and "1" say nothing


def has_word(name):
    return sum(letter.isalpha() for letter in name or "") >= LETTERS_OF_A_NAME


def shown_nodes(node):
    """All that is shown, without what stands inside a control."""
    yield node
    if node.get_role() in WHOLE:
        return
    for child in children(node):
        if is_shown(child):
            yield from shown_nodes(child)


def place(node):
    return f"{node.get_role_name()} {node.get_name()!r}"


def can_be_used(node):
    """By keys: a label is text to be copied, a window holds what is used, and a toolbar is one place."""
    state = states(node)
    if not state.contains(STATE.FOCUSABLE) or not state.contains(STATE.SENSITIVE):
        return False
    if node.get_role() == ROLE.FILLER and any(child.get_role() == ROLE.PAGE_TAB_LIST for child in children(node)):
        return False  # the pages, whose tabs have the focus
    return node.get_role() not in (ROLE.LABEL, ROLE.STATIC, ROLE.FRAME, ROLE.WINDOW, ROLE.DIALOG)


def in_toolbar(node):
    parent = node.get_parent()
    return parent is not None and parent.get_role() == ROLE.TOOL_BAR


def name_of(node):
    """What it is for. A choice is called by what is chosen: it needs a label, or a description."""
    if node.get_role() != ROLE.COMBO_BOX:
        return node.get_name()
    for relation in node.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            return relation.get_target(0).get_name()
    return node.get_description()


def control_faults(node):
    if not has_word(name_of(node)):
        yield f"{place(node)} has no name"
    if node.get_role() not in CONTROLS:
        yield f"{place(node)} is of no kind that can be used"


def label_faults(label):
    """What the label belongs to is called by its words."""
    words = label.get_name().rstrip(": ").casefold()
    for relation in label.get_relation_set():
        if relation.get_relation_type() != Atspi.RelationType.LABEL_FOR:
            continue
        for i in range(relation.get_n_targets()):
            field = relation.get_target(i)
            if field.get_role() not in CONTROLS:
                continue  # a figure
            if words not in (field.get_name() or "").casefold() and not has_word(name_of(field)):
                yield f"label {label.get_name()!r} belongs to {place(field)}"


def table_faults(table):
    """Dimensions, the names of rows and columns, and the places of the cells."""
    rows, columns = Atspi.Table.get_n_rows(table), Atspi.Table.get_n_columns(table)
    if rows == 0 or columns == 0:
        if not has_word(table.get_description()):
            yield f"{place(table)} has no cell and does not say why"
        return
    for col in range(columns):
        cells = [Atspi.Table.get_accessible_at(table, row, col) for row in range(min(rows, ROWS_READ))]
        body = [cell for cell in cells if cell.get_role() == ROLE.TABLE_CELL]
        if any(cell.get_name() for cell in body) and not Atspi.Table.get_column_description(table, col):
            if any(cell.get_role() == ROLE.COLUMN_HEADER for cell in cells):
                yield f"{place(table)}: column {col} has no name"
    if not any(Atspi.Table.get_row_description(table, row) for row in range(rows)):
        yield f"{place(table)}: no row has a name"


def list_faults(node):
    for i in range(min(node.get_child_count(), 50)):
        line = node.get_child_at_index(i)
        if line.get_role() == ROLE.LIST_ITEM and not (line.get_name() or "").strip():
            yield f"{place(node)}: line {i} is empty"


def faults_of(window):
    """What a reader stumbles over in the window as it stands."""
    faults = []
    for node in shown_nodes(window):
        role = node.get_role()
        if can_be_used(node) and node is not window:
            faults += control_faults(node)
        if role == ROLE.LABEL:
            faults += label_faults(node)
        elif role == ROLE.TABLE:
            faults += table_faults(node)
        elif role == ROLE.LIST:
            faults += list_faults(node)
    return faults


class Listener:
    """Hears where the focus goes and what is described there, as a screen reader does."""

    def __init__(self):
        # What a listener has heard is kept by the library, and asked for no more.
        Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)
        self.focused = []
        self.told = []
        self.listener = Atspi.EventListener.new(self.hear)
        self.listener.register("object:state-changed:focused")
        self.listener.register("object:property-change:accessible-description")

    def hear(self, event):
        if "description" in event.type:
            self.told.append((event.source.get_name(), event.source.get_description()))
        elif event.detail1:
            self.focused.append(event.source)

    def listen(self):
        while GLib.MainContext.default().iteration(False):
            pass

    def forget(self):
        self.listen()
        self.focused.clear()
        self.told.clear()

    def stops(self):
        """The controls that the focus came to, each once in a row."""
        self.listen()
        stops = []
        for node in self.focused:
            control = control_of(node)
            if not stops or stops[-1] != control:
                stops.append(control)
        return stops

    def await_told(self, words):
        def arrived():
            self.listen()
            return any(words in (told or "") for _, told in self.told)
        wait_for(f"{words!r} to be told, not {self.told}", arrived)


def control_of(node):
    """The list of a line, the table of a cell, the choice of its field."""
    inside = {ROLE.LIST_ITEM, ROLE.TABLE_CELL, ROLE.COLUMN_HEADER, ROLE.ROW_HEADER, ROLE.PAGE_TAB,
              ROLE.TABLE_COLUMN_HEADER, ROLE.TABLE_ROW_HEADER, ROLE.TREE_ITEM}
    while node.get_role() in inside and node.get_parent() is not None:
        node = node.get_parent()
    parent = node.get_parent()
    return parent if parent is not None and parent.get_role() in (ROLE.COMBO_BOX, ROLE.SPIN_BUTTON) else node


def await_whole(window):
    """A window that is still coming has neither all of its controls nor the focus."""
    before, end = -1, time.monotonic() + 3
    while time.monotonic() < end:
        now = sum(1 for _ in shown_nodes(window))
        if now == before and not focus_faults(window):
            return
        before = now
        time.sleep(0.1)


def focus_faults(window):
    """What only hands the focus on, as a row of buttons does to the first of them, has it too."""
    focused = [node for node in shown_nodes(window) if states(node).contains(STATE.FOCUSED)
               and node.get_role() not in (ROLE.FRAME, ROLE.WINDOW, ROLE.DIALOG, ROLE.FILLER)]
    if any(has_word(name_of(node)) for node in focused):
        return []
    return [f"the focus is on {place(node)}" for node in focused] or ["nothing has the focus"]


def tab_faults(program, window, listener):
    """A round by Tab comes to every control once, and back to the first. A group of options is one
    stop, and so are its tabs."""
    wanted = [node for node in shown_nodes(window)
              if can_be_used(node) and node is not window and node.get_role() != ROLE.PAGE_TAB
              and not in_toolbar(node)]
    if len(wanted) < 2:
        return []
    listener.forget()
    program.strokes(["Tab"] * (len(wanted) + 1))

    def round_is_over():
        stops = listener.stops()
        return stops if any(stop in stops[:i] for i, stop in enumerate(stops)) else None
    try:
        stops = wait_for("the round by Tab to end", round_is_over, patience=3)
    except Exception:
        return [f"Tab never comes back: {[place(stop) for stop in listener.stops()]}"]
    first_again = next(i for i, stop in enumerate(stops) if stop in stops[:i])
    faults = []
    if stops[first_again] != stops[0]:
        faults.append(f"Tab comes to {place(stops[first_again])} twice before {place(stops[0])}")
    missed = [node for node in wanted if node not in stops[:first_again] and is_shown(node)
              and can_be_used(node) and node.get_role() != ROLE.RADIO_BUTTON]
    faults += [f"Tab leaves out {place(node)}" for node in missed]
    return faults
