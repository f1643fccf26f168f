// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/FRMROLLBOOK.h"

#include <algorithm>

#include "analysis/grade_order.h"
#include "analysis/grade_tip.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/mark_notes.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kFixed = 2;  // columns of the students
constexpr int kGradeWidth = 1120;

}  // namespace

bool FailsInRollBook(std::string_view mark, double lowpass) {
  if (mark == "NON" || mark == "CUT" || mark == "F  ") return true;
  const bool number = !mark.empty() && mark.front() >= '0' && mark.front() <= '9';
  return number && LeadingNumber(mark) < lowpass;
}

FRMROLLBOOK::FRMROLLBOOK() : Portal("FRMROLLBOOK") {
  Caption = "View  Roll Book Portal";
  HelpContext = 640;
  roster.with_id.Caption = "With &ID";
  roster.without_id.Caption = "&Without ID";
  roster.with_name.Caption = "With &Name";
  roster.without_name.Caption = "&Without Name";
  mnudate.Caption = "By &Date";
  mnutype.Caption = "By &Type";
  mnunone.Caption = "&No Sort";
  Grid1.Notes.Of = [this](int row, int col) { return NoteOf(row, col); };
  Grid1.Notes.Tip = [this](int row, int col) {
    return row == 0 && col >= kFixed ? TipOfGrade(GradeIn(col)) : std::string();
  };
}

int FRMROLLBOOK::GradeIn(int col) const {
  return grades_[static_cast<std::size_t>(col - kFixed)];
}

// What is red here is the roll book's own rule, which its styles tell; an absence keeps the usual
// colour.
CellNote FRMROLLBOOK::NoteOf(int row, int col) const {
  if (row < 1 || col < kFixed) return {};
  const Instrument& grade = Current().Instruments[static_cast<std::size_t>(GradeIn(col))];
  const CellNote note = NoteOfMark(Grid1.TextMatrix(row, col), BoundsOf(grade));
  const bool fails = Grid1.Style(row, col) == CellStyle::kFailing;
  if (note.mark == CellMark::kAlarm || note.mark == CellMark::kAbove) return note;
  return {CellMark::kNone, fails ? "failing" : note.mark == CellMark::kFailing ? "" : note.words};
}

void FRMROLLBOOK::Declare(ControlTable& table) {
  table.Add("mnunameid", roster.with_id).Click([this] { Show(68); });
  table.Add("mnunamenoid", roster.without_id).Click([this] { Show(57); });
  table.Add("mnuidandname", roster.with_name).Click([this] { Show(82); });
  table.Add("mnuidnoname", roster.without_name).Click([this] { Show(73); });
  table.Add("mnudate", mnudate).Click([this] { Sort(mnudate); });
  table.Add("mnutype", mnutype).Click([this] { Sort(mnutype); });
  table.Add("mnunone", mnunone).Click([this] { Sort(mnunone); });
  table.Add("mnuexit", mnuexit).Click([this] { Unload(); });
  table.Add("Grid1", Grid1);
}

void FRMROLLBOOK::Load() {
  roster.Begin();
  Sort(mnunone);
  SetFocus(Grid1);
}

void FRMROLLBOOK::Sort(CheckBox& entry) {
  mnudate.Value = mnutype.Value = mnunone.Value = false;
  entry.Value = true;
  Fill();
}

void FRMROLLBOOK::Show(i16 mode) {
  roster.Set(mode);
  Fill();
}

void FRMROLLBOOK::Fill() {
  const Class& c = Current();
  grades_ = GradesAsTheyStand();
  if (mnudate.Value) SortByDate(grades_);
  if (mnutype.Value) SortByType(grades_);
  Grid1.SetRedraw(false);
  Grid1.SetSize(c.NumStudents + 1, static_cast<int>(grades_.size()) + kFixed);
  Grid1.FixedRows = 1;
  Grid1.FixedCols = kFixed;
  Grid1.Row = std::clamp(Grid1.Row, std::min(1, Grid1.Rows() - 1), Grid1.Rows() - 1);
  Grid1.Col = std::clamp(Grid1.Col, std::min(kFixed, Grid1.Cols() - 1), Grid1.Cols() - 1);
  Grid1.LeftCol = std::max(Grid1.LeftCol, kFixed);
  LayOutStudentColumns(Grid1, roster.mode);
  for (int i = 1; i <= c.NumStudents; ++i)
    FillStudentCells(Grid1, i, roster.mode, i, c.Students[static_cast<std::size_t>(i)]);
  for (std::size_t k = 0; k < grades_.size(); ++k)
    FillGrade(static_cast<int>(k) + kFixed, grades_[k]);
  Grid1.SetRedraw(true);
}

void FRMROLLBOOK::FillGrade(int col, int grade) {
  const Class& c = Current();
  const Instrument& instrument = c.Instruments[static_cast<std::size_t>(grade)];
  const double lowpass = LeadingNumber(Trim(instrument.lowpass));
  Grid1.SetColWidth(col, kGradeWidth);
  Grid1.SetColAlignment(col, ColumnAlign::kRight);
  Grid1.SetTextMatrix(0, col, Trim(instrument.code));
  for (int i = 1; i <= c.NumStudents; ++i) {
    const std::string_view mark = Trim(MarkOf(c.Students[static_cast<std::size_t>(i)], grade));
    Grid1.SetTextMatrix(i, col, mark);
    const bool fails = FailsInRollBook(mark, lowpass);
    Grid1.SetStyle(i, col, fails ? CellStyle::kFailing : CellStyle::kPlain);
  }
}

}  // namespace tallyroll
