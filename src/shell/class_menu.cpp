// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/class_menu.h"

#include <utility>

#include "find/frmfind.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "roster/frmEdit.h"
#include "shell/current_window.h"
#include "shell/shell_state.h"
#include "shell/undo_command.h"
#include "store/frmpassword.h"
#include "store/settings.h"
#include "store/text/grade_file.h"
#include "store/text/text_export.h"

namespace tallyroll {
namespace {

constexpr auto kSaveIfDone = AfterPortal::kSaveIfDone;

void EditStudent(Form1& window, int open_state) {
  CurrentStudent = 0;
  window.RunPortal("frmEdit", open_state, AfterPortal::kRefill);
}

void EditByTitle(Form1& window) {
  CurrentStudent = 0;
  window.RunPortal("frmEmarks", 0, AfterPortal::kRefill);
}

template <int kIndex>
void OpenRecentEntry(Form1&) {
  FrameForm->mnuFileList_Click(kIndex);
}

template <int kPlace>
void BringWindowEntry(Form1&) {
  BringListedWindow(kPlace);
}

// Captions are what teachers know by heart, their blanks included.
// clang-format off
constexpr ClassMenuRow kRows[] = {
    {.level = 0, .name = "mnuFile", .caption = "&File"},
    {.level = 1, .name = "mnuNew", .caption = "&New Class"},
    {.level = 2, .name = "mnuown", .caption = "Use the &Program", .status = "Start a class by entering its students",
     .shortcut = "Ctrl+N", .action = [](Form1&) { FrameForm->NewClass(10); }},
    {.level = 2, .name = "mnuwizard", .caption = "Use the &Wizard", .status = "Start a class step by step",
     .shortcut = "Ctrl+Shift+N", .action = [](Form1&) { FrameForm->NewClass(15); }},
    {.level = 1, .name = "mnuOpen", .caption = "&Open...", .status = "Open a class file",
     .shortcut = "Ctrl+O", .action = [](Form1&) { FrameForm->mnuOpen_Click(); }},
    {.level = 1, .name = "mnuclose", .caption = "&Close ", .status = "Close this class",
     .shortcut = "Ctrl+W", .action = [](Form1& window) { FrameForm->CloseWindow(window); }},
    {.level = 1, .name = "mnucloseall", .caption = "Clos&e All ", .status = "Close every open class",
     .action = [](Form1&) { FrameForm->mnucloseall_Click(); }},
    {.level = 1},
    {.level = 1, .name = "mnusave", .caption = "&Save", .status = "Save this class",
     .shortcut = "Ctrl+S", .action = [](Form1& window) { window.mnusave_Click(); }},
    {.level = 1, .name = "mnusaveas", .caption = "Save &As...", .status = "Save this class under another name",
     .shortcut = "Ctrl+Shift+S", .action = [](Form1& window) { window.mnusaveas_Click(); }},
    {.level = 1, .name = "mnuPassword", .caption = "Pass&word"},
    {.level = 2, .name = "mnupassenter", .caption = "Ente&r  Password", .status = "Lock this class with a password",
     .portal = "frmpassword", .open_state = kNewPassword, .after = kSaveIfDone},
    {.level = 2, .name = "mnupasschange", .caption = "&Change Password", .status = "Give this class another password",
     .portal = "frmpassword", .open_state = kChangePassword, .after = kSaveIfDone},
    {.level = 2, .name = "mnupassdelete", .caption = "&Delete Password", .status = "Open this class without a password again",
     .portal = "frmpassword", .open_state = kDeletePassword, .after = kSaveIfDone},
    {.level = 1, .name = "mnuclassinfo", .caption = "Class &Information", .status = "School, teacher, room and term of this class",
     .portal = "frmclassinfo"},
    {.level = 1},
    {.level = 1, .name = "mnuTransfer", .caption = "&Transfer File ( Name/ID/Supp Info) to New Class",
     .status = "Start a new class with the students of this one", .action = [](Form1& window) { window.mnuTransfer_Click(); }},
    {.level = 1, .name = "mnuText", .caption = "Text Fi&les"},
    {.level = 2, .name = "mnuImport", .caption = "&Import"},
    {.level = 3, .name = "mnuimportnames", .caption = "Import Names, ID's and Supp Info", .status = "Add students from a text file",
     .portal = "frmtxt", .action = [](Form1& window) { window.ImportText(); }},
    {.level = 3, .name = "mnugradesid", .caption = "Import Testing Instruments  by  ID", .status = "Add grades from a text file, found by ID",
     .portal = "frmtxt", .action = [](Form1& window) { window.ImportGrades(kGradesById); }},
    {.level = 3, .name = "mnugradesname", .caption = "Import Testing Instruments by Name", .status = "Add grades from a text file, found by name",
     .portal = "frmtxt", .action = [](Form1& window) { window.ImportGrades(kGradesByName); }},
    {.level = 2, .name = "mnuExport", .caption = "&Export"},
    {.level = 3, .name = "mnuNametext", .caption = "Names and ID's", .status = "Write names and IDs to a text file",
     .portal = "frmtxt", .action = [](Form1& window) { window.ExportStudents(kExportNames); }},
    {.level = 3, .name = "mnuBio", .caption = "Names, ID's plus Supp. Info.", .status = "Write the students' information to a text file",
     .portal = "frmtxt", .action = [](Form1& window) { window.ExportStudents(kExportInfo); }},
    {.level = 3, .name = "mnutestingInst", .caption = "Names, ID's plus Testing Instruments with Headers",
     .status = "Write all grades and their titles to a text file", .portal = "frmtxt", .action = [](Form1& window) { window.ExportStudents(kExportGrades); }},
    {.level = 3, .name = "mnutestingInstwithout", .caption = "Names, ID's plus Testing Instruments without Headers",
     .status = "Write all grades to a text file", .portal = "frmtxt", .action = [](Form1& window) { window.ExportStudents(kExportGradesPlain); }},
    {.level = 2, .name = "mnuSchoolSystems", .caption = "&School Systems...", .status = "Take marks from another school system, or give them out to it",
     .portal = "frmexchange"},
    {.level = 1},
    {.level = 1, .name = "mnuFont", .caption = "Printer &Font", .status = "Choose the font of printed pages",
     .action = [](Form1&) { Platform().FontDialog(PrinterFontName, PrinterFontSize); }},
    {.level = 1, .name = "mnuPrinterSetUp", .caption = "&Printer Set Up...", .status = "Choose the printer and its paper",
     .action = [](Form1&) { Platform().PrinterSetUpDialog(); }},
    {.level = 1, .name = "mnumargins", .caption = "Printer &Margins", .status = "Set the margins of printed pages",
     .portal = "frmmargins"},
    {.level = 1},
    {.level = 1, .name = "mnuFileList0", .status = "Open this class again", .action = OpenRecentEntry<0>},
    {.level = 1, .name = "mnuFileList1", .status = "Open this class again", .action = OpenRecentEntry<1>},
    {.level = 1, .name = "mnuFileList2", .status = "Open this class again", .action = OpenRecentEntry<2>},
    {.level = 1, .name = "mnuFileList3", .status = "Open this class again", .action = OpenRecentEntry<3>},
    {.level = 1, .name = "mnuFileList4", .status = "Open this class again", .action = OpenRecentEntry<4>},
    {.level = 1},
    {.level = 1, .name = "mnuExit", .caption = "E&xit", .status = "Leave Tallyroll",
     .shortcut = "Ctrl+Q", .action = [](Form1& window) { if (FrameForm->CloseWindow(window)) FrameForm->mnuExit_Click(); }},

    {.level = 0, .name = "mnuStudents", .caption = "&Students"},
    {.level = 1, .name = "mnuAdd", .caption = "&Add Student", .status = "Enter new students",
     .shortcut = "Ctrl+Ins", .portal = "frmAdd"},
    {.level = 1, .name = "mmucomment", .caption = "Add &Comment", .status = "Write a comment on a student",
     .portal = "frmEdit", .action = [](Form1& window) { EditStudent(window, kEditAtComment); }},
    {.level = 1, .name = "mnuEdit", .caption = "&Edit ", .status = "Edit names, IDs and supplementary information",
     .shortcut = "Ctrl+E", .portal = "frmEdit", .action = [](Form1& window) { EditStudent(window, kEditStudent); }},
    {.level = 1, .name = "mnuDelete", .caption = "&Delete Student", .status = "Take a student off the roster",
     .portal = "frmdelete"},

    {.level = 0, .name = "mnuRecords", .caption = "&Records"},
    {.level = 1, .name = "mnuEnterRecords", .caption = "&Enter Records"},
    {.level = 2, .name = "mnuMarks", .caption = "&Grades", .status = "Enter a new grade for every student",
     .shortcut = "Ctrl+G", .portal = "frmMarks"},
    {.level = 2, .name = "mnuAttend", .caption = "Daily &Attendance", .status = "Enter the attendance of a day",
     .shortcut = "Ctrl+D", .portal = "frmAtt", .open_state = 15},
    {.level = 2, .name = "mnuattsumm", .caption = "&Summary Attendance", .status = "Enter the attendance of a period",
     .portal = "frmAtsum", .action = [](Form1& window) { window.mnuattsumm_Click(); }},
    {.level = 2, .name = "mnuTransfergrade", .caption = "T&ransfer Grade Between Classes", .status = "Carry a grade to another class",
     .portal = "frmdGrade", .open_state = 157},
    {.level = 1, .name = "mnuEditRecords", .caption = "E&dit Records"},
    {.level = 2, .name = "mnuEMarks", .caption = "Edit &Grades"},
    {.level = 3, .name = "mnuEMarksT", .caption = "By &Title of Grade", .status = "Edit a grade of all students",
     .shortcut = "Ctrl+T", .portal = "frmEmarks", .action = EditByTitle},
    {.level = 3, .name = "mnuEMarksS", .caption = "By &Student Name", .status = "Edit all grades of a student",
     .portal = "frmEMarksS"},
    {.level = 2, .name = "mnucat", .caption = "Edit &Modifiable Grade Type Categories", .status = "Name the grade types of this class",
     .portal = "frmcategories"},
    {.level = 2, .name = "mnuLetter", .caption = "Edit &Numerical Values for  Letter Grades", .status = "Set what each letter grade counts",
     .portal = "frmletter"},
    {.level = 2, .name = "mnureorder", .caption = "Edit &Order of Grade Title", .status = "Put the grades in another order",
     .portal = "frmdGrade", .open_state = 269},
    {.level = 2, .name = "mnuedaily", .caption = "Ed&it/Delete  Daily Attendance", .status = "Edit or delete daily attendance",
     .portal = "frmAtt", .open_state = 25},
    {.level = 2, .name = "mnuEAttend", .caption = "E&dit Summary Attendance ", .status = "Edit the attendance of a period",
     .portal = "frmEatt"},
    {.level = 2, .name = "mnuDAttend", .caption = "Delete Summary A&ttendance", .status = "Delete the attendance of a period",
     .portal = "frmDatt"},
    {.level = 2, .name = "mnuDMarks", .caption = "De&lete Grades", .status = "Delete a grade of all students",
     .portal = "frmdGrade", .open_state = 121},

    {.level = 0, .name = "mnuequalW", .caption = "&Make Up Grades"},
    {.level = 1, .name = "mnuindweights", .caption = "Assign Weights to &Individual Items ", .status = "Averages by a weight for each grade",
     .portal = "frmweights", .method = 0},
    {.level = 1, .name = "mnupercent", .caption = "Assign Weights by &Type", .status = "Averages by a weight for each grade type",
     .portal = "frmpercents", .method = 1},
    {.level = 1, .name = "mnupoints", .caption = "Use &Points ", .status = "Averages by points earned",
     .portal = "frmpoints", .method = 2},
    {.level = 1, .name = "mnuPointsType", .caption = "Use Points &And Types ", .status = "Averages by points within grade types",
     .portal = "frmpoints", .method = 3},
    {.level = 1},
    {.level = 1, .name = "mnuoptions", .caption = "Use &Current Weights/Rounding Settings", .status = "Averages by the settings in force",
     .portal = "frmoptions", .open_state = 82},

    {.level = 0, .name = "mnudisplay", .caption = "&Display"},
    {.level = 1, .name = "mnubyname", .caption = "By &Name"},
    {.level = 2, .name = "mnunamefirst", .caption = "Display With &ID", .status = "Sort by name and show IDs",
     .action = [](Form1& window) { window.SetNameMode(68); }},
    {.level = 2, .name = "mnuname", .caption = " Display &Without ID", .status = "Sort by name and show names alone",
     .action = [](Form1& window) { window.SetNameMode(57); }},
    {.level = 1, .name = "mnubyid", .caption = "By &ID"},
    {.level = 2, .name = "mnuidfirst", .caption = " Display With &Name", .status = "Sort by ID and show names",
     .action = [](Form1& window) { window.SetNameMode(82); }},
    {.level = 2, .name = "mnuid", .caption = "Display &Without  Name", .status = "Sort by ID and show IDs alone",
     .action = [](Form1& window) { window.SetNameMode(73); }},

    {.level = 0, .name = "mnuEditing", .caption = "&Edit"},
    {.level = 1, .name = "mnuundo", .caption = "&Undo", .status = "Take the last change of this class back",
     .shortcut = "Ctrl+Z", .action = [](Form1& window) { window.mnuundo_Click(); }},
    {.level = 1, .name = "mnuredo", .caption = "&Redo", .status = "Make the change again that was taken back",
     .shortcut = "Ctrl+Shift+Z", .action = [](Form1& window) { window.mnuredo_Click(); }},
    {.level = 1, .name = "mnuFind", .caption = "&Find...", .status = "Find a student, a grade, a command or a class",
     .shortcut = "Ctrl+F", .action = [](Form1&) { RunFind(FindFirst::kStudents); }},
    {.level = 1, .name = "mnuCommand", .caption = "&Command...", .status = "Give any command by its name",
     .shortcut = "Ctrl+K", .action = [](Form1&) { RunFind(FindFirst::kCommands); }},

    {.level = 0, .name = "mnuScreens", .caption = "&View"},
    {.level = 1, .name = "mnuVScreen", .caption = "Screen - &All Information", .status = "Everything about a student",
     .shortcut = "Ctrl+I", .portal = "frminfo"},
    {.level = 1, .name = "mnuonegrade", .caption = "Screen - &One Grade", .status = "One grade of all students",
     .portal = "frmsingles"},
    {.level = 1, .name = "mnuRollBook", .caption = "Screen - &Roll Book", .status = "The roll book of this class",
     .portal = "FRMROLLBOOK"},
    {.level = 1, .name = "mnuattscreen", .caption = "Screen - &Daily Attendance", .status = "The attendance of each day",
     .portal = "frmAtt", .open_state = 112},
    {.level = 1, .name = "mnuMGrades", .caption = "&Missing Grades", .status = "Who is missing which grade",
     .portal = "frmMgrade"},
    {.level = 1},
    {.level = 1, .name = "mnupanel", .caption = "Side Pane&l", .status = "The student and the grade of the current cell, beside the table",
     .shortcut = "F4", .action = [](Form1& window) { Screen->TogglePanel(window); }},
    {.level = 1, .name = "mnuStatistic", .caption = "&Statistics", .status = "Statistics and graph of a grade",
     .portal = "frmstatistic", .action = [](Form1& window) { window.mnuStatistic_Click(); }},
    {.level = 1, .name = "mnugradegraph", .caption = "&Graph of this Grade", .status = "Graph of the grade in whose column you are",
     .portal = "frmgraph", .action = [](Form1& window) { window.ShowGraphOfGrade(); }},

    {.level = 0, .name = "mnuPrint", .caption = "&Print"},
    {.level = 1, .name = "mnuView", .caption = "&Print Full Class", .status = "Reports of the whole class",
     .shortcut = "Ctrl+P", .portal = "frmprintall", .open_state = 1},
    {.level = 1, .name = "mnuVPrinter", .caption = "Print &Student Records", .status = "Reports of single students",
     .portal = "frmprintall", .open_state = 2},
    {.level = 1, .name = "mnuroster", .caption = "Print &Roster", .status = "Rosters and supplementary information",
     .portal = "frmprintall", .open_state = 3},
    {.level = 1, .name = "mnuprtgrade", .caption = "Print &Computed Averages", .status = "Reports of averages and final grades",
     .portal = "frmoptions", .open_state = 69},

    {.level = 0, .name = "mnuTools", .caption = "&Tools"},
    {.level = 1, .name = "mnuwordproc", .caption = "&Word Processing", .status = "Write letters to students and parents",
     .portal = "frmwrdproc"},
    {.level = 1, .name = "mnuSeating", .caption = "&Seating Chart", .status = "Seat the students of this class",
     .portal = "frmseating"},

    {.level = 0, .name = "mnuInsight", .caption = "&Insight"},
    {.level = 1, .name = "mnuexplain", .caption = "&Explain Average", .status = "How the average of a student came about, and what it would take",
     .shortcut = "Ctrl+Shift+E", .portal = "frmexplain", .action = [](Form1& window) { window.ExplainStudent(); }},
    {.level = 1, .name = "mnuhistory", .caption = "&History", .status = "What changed from save to save",
     .shortcut = "Ctrl+H", .portal = "frmhistory"},
    {.level = 1, .name = "mnustudenthistory", .caption = "History of this &Student", .status = "What changed of the student in whose row you are",
     .portal = "frmhistory", .action = [](Form1& window) { window.ShowHistoryOfStudent(); }},
    {.level = 1, .name = "mnusnapshots", .caption = "Sna&pshots", .status = "The class as it was at each save, and back to it",
     .portal = "frmsnapshots", .action = [](Form1& window) { window.ShowSnapshots(); }},
    {.level = 1, .name = "mnuunusual", .caption = "&Unusual Marks", .status = "Marks that may be slips of the hand",
     .portal = "frmunusual", .action = [](Form1& window) { window.ShowUnusual(); }},

    {.level = 0, .name = "mnuWindow", .caption = "&Window"},
    {.level = 1, .name = "mnucascade", .caption = "&Cascade", .status = "Lay the class windows one behind the other",
     .action = [](Form1&) { Screen->Arrange(Arrangement::kCascade); }},
    {.level = 1, .name = "mnhorizontal", .caption = "&Horizontal Tile", .status = "Lay the class windows one below the other",
     .action = [](Form1&) { Screen->Arrange(Arrangement::kTileHorizontal); }},
    {.level = 1, .name = "mnuvertical", .caption = "&Vertical Tile", .status = "Lay the class windows side by side",
     .action = [](Form1&) { Screen->Arrange(Arrangement::kTileVertical); }},
    {.level = 1},
    {.level = 1, .name = "mnuWindowList0", .status = "Bring this class to the front", .action = BringWindowEntry<0>},
    {.level = 1, .name = "mnuWindowList1", .status = "Bring this class to the front", .action = BringWindowEntry<1>},
    {.level = 1, .name = "mnuWindowList2", .status = "Bring this class to the front", .action = BringWindowEntry<2>},
    {.level = 1, .name = "mnuWindowList3", .status = "Bring this class to the front", .action = BringWindowEntry<3>},
    {.level = 1, .name = "mnuWindowList4", .status = "Bring this class to the front", .action = BringWindowEntry<4>},

    {.level = 0, .name = "mnuHelp", .caption = "&Help"},
    {.level = 1, .name = "CommandsItem", .caption = "&Contents", .status = "Open the help",
     .shortcut = "F1", .action = [](Form1&) { Platform().ShowHelp(0); }},
    {.level = 1, .name = "mnuAbout", .caption = "&About Tallyroll", .status = "About this program",
     .action = [](Form1&) { Screen->ShowAbout(); }},
};
// clang-format on

void Run(Form1& window, const ClassMenuRow& row) {
  const StepOfCommand step(NameOfCommand(row.name, row.caption));
  if (row.method >= 0) DefaultMethod = static_cast<i16>(row.method);
  if (row.action)
    row.action(window);
  else
    window.RunPortal(row.portal, row.open_state, row.after);
}

}  // namespace

std::span<const ClassMenuRow> ClassMenuRows() {
  return kRows;
}

Menu MakeClassMenu(Form1& window) {
  Menu menu;
  for (const ClassMenuRow& row : kRows) {
    std::function<void()> click;
    if (row.action || !row.portal.empty()) click = [&window, &row] { Run(window, row); };
    menu.Add({.name = std::string(row.name),
              .caption = std::string(row.caption),
              .level = row.level,
              .shortcut = std::string(row.shortcut),
              .status = std::string(row.status),
              .click = std::move(click)});
  }
  return menu;
}

}  // namespace tallyroll
