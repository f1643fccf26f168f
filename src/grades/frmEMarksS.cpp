// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmEMarksS.h"

#include "base/text.h"
#include "grades/mark_notes.h"
#include "grades/marks.h"
#include "grades/student_grid.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kTitleWidth = 3360;
constexpr int kCodeWidth = 900;
constexpr int kMarkOfGradeWidth = 1100;

void FillTitles(Grid& grid) {
  const Class& c = Current();
  grid.SetSize(GradeCount(c) + 1, kMarkColumn + 1);
  grid.FixedRows = 1;
  grid.FixedCols = kMarkColumn;
  grid.SetColWidth(0, kTitleWidth);
  grid.SetColWidth(1, kCodeWidth);
  grid.SetColWidth(kMarkColumn, kMarkOfGradeWidth);
  grid.SetColAlignment(kMarkColumn, ColumnAlign::kRight);
  grid.Row = grid.TopRow = 1;
  grid.Col = grid.LeftCol = kMarkColumn;
  grid.SetTextMatrix(0, 0, "  TITLES");
  grid.SetTextMatrix(0, 1, "CODE");
  grid.SetTextMatrix(0, kMarkColumn, "GR.");
  for (int k = 1; k < grid.Rows(); ++k) {
    const Instrument& grade = c.Instruments[static_cast<std::size_t>(k)];
    grid.SetTextMatrix(k, 0, Trim(grade.title));
    grid.SetTextMatrix(k, 1, Trim(grade.code));
  }
}

}  // namespace

frmEMarksS::frmEMarksS()
    : Portal("frmEMarksS"),
      marks(*this, grdgrade, kMarkColumn, [this] { DataChanged = true; }),
      live(
          {*this, grdgrade, marks, kMarkColumn},
          [](int row) { return BoundsOf(Current().Instruments[static_cast<std::size_t>(row)]); },
          [this] { DataChanged = true; }) {
  Caption = "Edit Grades by Student Name Portal";
  HelpContext = 320;
  Exitt.Caption = "E&xit";
  cancel.Caption = "&Cancel";
  live.ShowsAverage = false;  // every mark is of another grade
}

void frmEMarksS::Declare(ControlTable& table) {
  table.Add("namecaption", namecaption);
  table.Add("lstName", lstName).Change([this] { lstName_Change(); }).Click([this] {
    lstName_Change();
  });
  marks.Declare(table, "grdgrade");
  live.Declare(table);
  table.Add("Exitt", Exitt).Click([this] { Exitt_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
  live.Follow(table);
}

void frmEMarksS::Load() {
  const Class& c = Current();
  namecaption.Caption = NameMode >= 73 ? "Id 's" : "Names";
  for (int i = 1; i <= c.NumStudents; ++i)
    lstName.List.push_back(StudentListLine(c.Students[static_cast<std::size_t>(i)]));
  FillTitles(grdgrade);
  marks.Enable(false);
  live.StartOver();
  SetFocus(lstName);
}

Student& frmEMarksS::Shown() {
  return Current().Students[static_cast<std::size_t>(shown_)];
}

void frmEMarksS::Show(int student) {
  shown_ = student;
  lstName.ListIndex = student - 1;
  for (int k = 1; k < grdgrade.Rows(); ++k)
    grdgrade.SetTextMatrix(k, kMarkColumn, ShownMark(MarkOf(Shown(), k)));
  marks.StartOver();
  marks.Enable(true);
  live.StartOver();
  DataChanged = false;
}

// The list already shows the line that was picked: it goes back when the shown marks are refused.
void frmEMarksS::lstName_Change() {
  const int picked = lstName.ListIndex + 1;
  if (picked < 1 || picked == shown_) return;
  if (DataChanged) {
    if (!Check()) {
      lstName.ListIndex = shown_ - 1;
      return;
    }
    Store();
  }
  Show(picked);
}

bool frmEMarksS::Check() {
  live.TellDoubts();
  for (int k = 1; k < grdgrade.Rows(); ++k) {
    if (!Trim(grdgrade.TextMatrix(k, kMarkColumn)).empty()) continue;
    ShowMessage(
        "You must fill in a GRADE for each testing instruement.\nUse TAB to move from one column "
        "to the next.\nUse ARROW KEYS to move between grade titles.");
    marks.GoTo(k);
    SetFocus(grdgrade);
    return false;
  }
  return true;
}

void frmEMarksS::Store() {
  List<ShortText>& row = Shown().Marks;
  if (UpperBound(row) < grdgrade.Rows() - 1)
    ReDimPreserve(row, grdgrade.Rows() - 1, ShortText(kNewMark));
  for (int k = 1; k < grdgrade.Rows(); ++k) {
    const std::string_view cell = grdgrade.TextMatrix(k, kMarkColumn);
    ShortText& mark = row[static_cast<std::size_t>(k)];
    if (cell != ShownMark(mark)) mark = cell;
  }
  Current().Changed = kTrue;
  DataChanged = false;
}

void frmEMarksS::Exitt_Click() {
  if (shown_ > 0 && !Check()) return;
  if (DataChanged) Store();
  Unload();
}

void frmEMarksS::cancel_Click() {
  if (DataChanged && Ask("Data has been entered. Are you sure you want to CANCEL?",
                         BoxButtons::kYesNo, BoxIcon::kQuestion, "CANCEL") != BoxAnswer::kYes)
    return;
  Unload();
}

}  // namespace tallyroll
