# SPDX-License-Identifier: GPL-3.0-or-later
"""Every entry of the class window's menus: the window that it opens, or why it opens none."""

ENTER, EDIT = ("Records", "Enter Records"), ("Records", "Edit Records")
IMPORT, EXPORT = ("File", "Text Files", "Import"), ("File", "Text Files", "Export")
TEXT_FILE = "Text File Portal"

# With the keys that lead on to windows within it.
FILES = {
    ("File", "Open..."): ("Open",),
    ("File", "Save As..."): ("Save As",),
    ("File", "Password", "Enter Password"): ("Password Window",),
    ("File", "Class Information"): ("Class Information Portal",),
    ("File", "Transfer File ( Name/ID/Supp Info) to New Class"): ("Note to the Teacher",),
    (*IMPORT, "Import Names, ID's and Supp Info"): (TEXT_FILE,),
    (*IMPORT, "Import Testing Instruments by ID"): (TEXT_FILE,),
    (*IMPORT, "Import Testing Instruments by Name"): (TEXT_FILE,),
    (*EXPORT, "Names and ID's"): (TEXT_FILE,),
    (*EXPORT, "Names, ID's plus Supp. Info."): (TEXT_FILE,),
    (*EXPORT, "Names, ID's plus Testing Instruments with Headers"): (TEXT_FILE,),
    (*EXPORT, "Names, ID's plus Testing Instruments without Headers"): (TEXT_FILE,),
    ("File", "Text Files", "School Systems..."): ("School Systems Portal",),
    ("File", "Printer Font"): ("Select Font",),
    ("File", "Printer Set Up..."): ("Page Setup",),
    ("File", "Printer Margins"): ("Printer Margins Portal",),
    ("Students", "Add Student"): ("Add Student Portal",),
    ("Students", "Add Comment"): ("Edit Portal",),
    ("Students", "Edit"): ("Edit Portal",),
    ("Students", "Delete Student"): ("Delete Portal",),
}

RECORDS = {
    (*ENTER, "Grades"): ("Enter  Grades  Portal",),
    (*ENTER, "Daily Attendance"): ("Enter Attendance Portal", (("alt+d",), "Attendance Settings Portal")),
    (*ENTER, "Summary Attendance"): ("Summary Attendance Portal",),
    (*ENTER, "Transfer Grade Between Classes"): ("Transfer",),
    (*EDIT, "Edit Grades", "By Title of Grade"): ("Edit Grades by Title Portal",),
    (*EDIT, "Edit Grades", "By Student Name"): ("Edit Grades by Student Name Portal",),
    (*EDIT, "Edit Modifiable Grade Type Categories"): ("Modify Grade Type Categories Portal",),
    (*EDIT, "Edit Numerical Values for Letter Grades"): ("Letter Values Portal",),
    (*EDIT, "Edit Order of Grade Title"): ("",),
    (*EDIT, "Edit/Delete Daily Attendance"): ("Edit Attendance Portal",),
    (*EDIT, "Edit Summary Attendance"): ("Edit  Summary Attendance Portal",),
    (*EDIT, "Delete Summary Attendance"): ("Delete Attendance Portal",),
    (*EDIT, "Delete Grades"): ("Delete Grades Portal",),
}

SCREENS = {
    ("Make Up Grades", "Assign Weights to Individual Items"): ("Weights Portal - Individual Items",),
    ("Make Up Grades", "Assign Weights by Type"): ("Weights Portals - Type",),
    ("Make Up Grades", "Use Points"): ("Points Portal", (("alt+v",), "Preview Change Portal")),
    ("Make Up Grades", "Use Points And Types"): ("Points Portal",),
    ("Make Up Grades", "Use Current Weights/Rounding Settings"):
        ("Current Weights and Rounding Summary Portal", (("alt+r",), "Rounding Modification Portal")),
    ("Edit", "Find..."): ("Find",),
    ("Edit", "Command..."): ("Command",),
    ("View", "Screen - All Information"): ("Show Information Portal", (("alt+n", "alt+g"), "Student Progress Portal")),
    ("View", "Screen - One Grade"): ("Display Single Grade Portal",),
    ("View", "Screen - Roll Book"): ("View  Roll Book Portal",),
    ("View", "Screen - Daily Attendance"): ("",),
    ("View", "Missing Grades"): ("Missing Grades Portal",),
    ("View", "Statistics"): ("Statistics Portal",),
    ("View", "Graph of this Grade"): ("Graph Portal",),
    ("Print", "Print Full Class"): ("Printer Portal",),
    ("Print", "Print Student Records"): ("Printer Portal",),
    ("Print", "Print Roster"): ("Printer Portal",),
    ("Print", "Print Computed Averages"): ("Current Weights and Rounding Summary Portal",),
    ("Tools", "Word Processing"): ("Tallyroll Word Processor", (("ctrl+f",), "Find and Replace Portal")),
    ("Tools", "Seating Chart"): ("Seating Chart Portal",),
    ("Insight", "Explain Average"): ("Explain Average Portal",),
    ("Insight", "History"): ("History Portal",),
    ("Insight", "History of this Student"): ("History Portal",),
    ("Insight", "Snapshots"): ("Snapshots Portal",),
    ("Insight", "Unusual Marks"): ("Unusual Marks Portal",),
    ("Help", "Contents"): ("Tallyroll Help",),
    ("Help", "About Tallyroll"): ("About Tallyroll",),
}

# They act at once and open nothing, or open another class, whose windows are these again.
AT_ONCE = {
    ("File", "New Class", "Use the Program"), ("File", "New Class", "Use the Wizard"),
    ("File", "Close"), ("File", "Close All"), ("File", "Save"), ("File", "Exit"),
    ("Display", "By Name", "Display With ID"), ("Display", "By Name", "Display Without ID"),
    ("Display", "By ID", "Display With Name"), ("Display", "By ID", "Display Without Name"),
    ("View", "Side Panel"),
    ("Window", "Cascade"), ("Window", "Horizontal Tile"), ("Window", "Vertical Tile"),
}
# The class has no password yet, and nothing was changed.
OFF = {("File", "Password", "Change Password"), ("File", "Password", "Delete Password"),
       ("Edit", "Undo"), ("Edit", "Redo")}
