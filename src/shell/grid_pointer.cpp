// SPDX-License-Identifier: GPL-3.0-or-later
// What a double click on the class grid does, and what the status bar says it would do.
#include "roster/frmEdit.h"
#include "shell/form1.h"
#include "shell/undo_command.h"

namespace tallyroll {
namespace {

enum class Spot { kNothing, kNewStudent, kStudent, kNewGrade, kGrade };

// The headings start something new; the rows below them edit. Nothing stands under the codes'
// row in the two left columns.
Spot SpotAt(int row, int col) {
  if (row < 0 || col < 0) return Spot::kNothing;
  if (col >= 2) return row == 0 ? Spot::kNewGrade : Spot::kGrade;
  if (row == 0) return Spot::kNewStudent;
  return row >= 2 ? Spot::kStudent : Spot::kNothing;
}

bool IsIdColumn(int col) {
  return (NameMode >= 73) == (col == 0);
}

i16 ItemOrNone(int item, int count) {
  return static_cast<i16>(item <= count ? item : 0);
}

}  // namespace

std::string_view NameOfDoubleClick(int row, int col) {
  switch (SpotAt(row, col)) {
    case Spot::kNewStudent:
      return "Enter a &New Student";
    case Spot::kNewGrade:
      return "Enter a &New Grade";
    case Spot::kGrade:
      return "&Edit this Grade";
    case Spot::kStudent:
      return "&Edit Name, ID or Supplementary Info";
    case Spot::kNothing:
      break;
  }
  return {};
}

void Form1::Grid1_DblClick() {
  if (Tag.empty()) return;
  TakeUpClass();
  const int row = Grid1.MouseRow;
  const int col = Grid1.MouseCol;
  switch (SpotAt(row, col)) {
    case Spot::kNothing:
      return;
    case Spot::kNewStudent:
      return ClickMenu("mnuAdd");
    case Spot::kNewGrade:
      return ClickMenu("mnuMarks");
    case Spot::kStudent: {
      const StepOfCommand step(NameOfCommand("mnuEdit", ""));
      CurrentStudent = ItemOrNone(row - 1, Current().NumStudents);
      return RunPortal("frmEdit", kEditStudent, AfterPortal::kRefill);
    }
    case Spot::kGrade: {
      const StepOfCommand step(NameOfCommand("mnuEMarksT", ""));
      CurrentStudent = ItemOrNone(col - 1, Current().NumInstruments);
      return RunPortal("frmEmarks", ItemOrNone(row - 1, Current().NumStudents),
                       AfterPortal::kRefill);
    }
  }
}

void Form1::Grid1_MouseMove() {
  const int col = Grid1.MouseCol;
  switch (SpotAt(Grid1.MouseRow, col)) {
    case Spot::kNothing:
      return ShowHint("");
    case Spot::kNewStudent:
      return ShowHint(IsIdColumn(col) ? "Double Click - Enter a New Student"
                                      : "Double Click to Enter a New Student");
    case Spot::kNewGrade:
      return ShowHint("Double Click to Enter a New Grade");
    case Spot::kGrade:
      return ShowHint("Double Click on a Grade to Edit");
    case Spot::kStudent:
      return ShowHint(IsIdColumn(col)
                          ? "Double Click on an ID to Edit a Name, ID or Supplementary Info"
                          : "Double Click on a Name to Edit a Name, ID or Supplementary Info");
  }
}

}  // namespace tallyroll
