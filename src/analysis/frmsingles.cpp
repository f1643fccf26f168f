// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/frmsingles.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "analysis/grade_order.h"
#include "analysis/grade_tip.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/mark_notes.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kMark = 2;  // column
constexpr int kMarkWidth = 1120;

// A number beyond all values ranks beyond all others.
Currency ValueForRank(std::string_view mark) {
  try {
    return GradeValue(mark);
  } catch (const RunTimeError&) {
    constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
    return Currency::FromScaled(LeadingNumber(mark) < 0 ? -kMost : kMost);
  }
}

}  // namespace

frmsingles::frmsingles() : Portal("frmsingles") {
  Caption = "Display Single Grade Portal";
  HelpContext = 650;
  roster.with_id.Caption = "With &ID";
  roster.without_id.Caption = "&Without ID";
  roster.with_name.Caption = "With &Name";
  roster.without_name.Caption = "&Without Name";
  mnuheighest.Caption = "Rank - &Highest to Lowest";
  mnulowest.Caption = "Rank - &Lowest to Highest";
  mnunone.Caption = "&No Sort";
  grid1.Notes.Of = [this](int row, int col) {
    if (row < 1 || col != kMark || grade_ == 0) return CellNote();
    const Instrument& grade = Current().Instruments[static_cast<std::size_t>(grade_)];
    return NoteOfMark(grid1.TextMatrix(row, col), BoundsOf(grade));
  };
  grid1.Notes.Tip = [this](int row, int col) {
    return row == 0 && col == kMark && grade_ > 0 ? TipOfGrade(grade_) : std::string();
  };
}

void frmsingles::Declare(ControlTable& table) {
  table.Add("mnunamewith", roster.with_id).Click([this] { Show(68); });
  table.Add("mnunamewithout", roster.without_id).Click([this] { Show(57); });
  table.Add("mnuidwith", roster.with_name).Click([this] { Show(82); });
  table.Add("mnuidwithout", roster.without_name).Click([this] { Show(73); });
  table.Add("mnuheighest", mnuheighest).Click([this] { Rank(mnuheighest); });
  table.Add("mnulowest", mnulowest).Click([this] { Rank(mnulowest); });
  table.Add("mnunone", mnunone).Click([this] { Rank(mnunone); });
  table.Add("mnunext", mnunext).Click([this] { ShowGrade(grade_ + 1); });
  table.Add("mnuprevious", mnuprevious).Click([this] { ShowGrade(std::max(grade_ - 1, 1)); });
  table.Add("mnuExit", mnuExit).Click([this] { Unload(); });
  const auto pick = [this] {
    if (lstName.ListIndex >= 0) ShowGrade(lstName.ListIndex + 1);
  };
  table.Add("lstName", lstName).Change(pick).Click(pick);
  table.Add("title", title);
  table.Add("code", code);
  table.Add("typecat", typecat);
  table.Add("testdate", testdate);
  table.Add("grid1", grid1);
}

void frmsingles::Load() {
  roster.Begin();
  mnunone.Value = true;
  for (const int grade : GradesAsTheyStand())
    lstName.List.emplace_back(
        TrimRight(Current().Instruments[static_cast<std::size_t>(grade)].title));
  FillGrid();
  SetFocus(lstName);
}

void frmsingles::ShowGrade(int grade) {
  const int shown = std::min(grade, GradeCount(Current()));
  if (shown < 1 || shown == grade_) return;
  grade_ = shown;
  lstName.ListIndex = grade_ - 1;
  FillBoxes();
  FillGrid();
}

void frmsingles::Rank(CheckBox& entry) {
  mnuheighest.Value = mnulowest.Value = mnunone.Value = false;
  entry.Value = true;
  FillGrid();
}

void frmsingles::Show(i16 mode) {
  roster.Set(mode);
  FillGrid();
}

void frmsingles::FillBoxes() {
  const Instrument& grade = Current().Instruments[static_cast<std::size_t>(grade_)];
  title.Caption = Trim(grade.title);
  code.Caption = Trim(grade.code);
  typecat.Caption = TypeNameOf(grade.typecode);
  testdate.Caption = Trim(grade.testdate);
}

std::vector<int> frmsingles::Ranked() const {
  const Class& c = Current();
  std::vector<std::pair<Currency, int>> rows;
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    rows.emplace_back(grade_ == 0 ? Currency() : ValueForRank(MarkOf(student, grade_)), i);
  }
  const auto rises = [](const auto& a, const auto& b) { return a.first < b.first; };
  const auto falls = [](const auto& a, const auto& b) { return a.first > b.first; };
  if (mnulowest.Value) std::stable_sort(rows.begin(), rows.end(), rises);
  if (mnuheighest.Value) std::stable_sort(rows.begin(), rows.end(), falls);
  std::vector<int> students;
  students.reserve(rows.size());
  for (const auto& [value, student] : rows) students.push_back(student);
  return students;
}

void frmsingles::FillGrid() {
  const Class& c = Current();
  const std::vector<int> students = Ranked();
  grid1.SetRedraw(false);
  grid1.SetSize(c.NumStudents + 1, kMark + 1);
  grid1.FixedRows = 1;
  grid1.FixedCols = kMark;
  grid1.Col = grid1.LeftCol = kMark;
  LayOutStudentColumns(grid1, roster.mode);
  grid1.SetColWidth(kMark, kMarkWidth);
  grid1.SetColAlignment(kMark, ColumnAlign::kRight);
  grid1.SetTextMatrix(0, kMark, code.Caption);
  for (std::size_t k = 0; k < students.size(); ++k) {
    const int row = static_cast<int>(k) + 1;
    const Student& student = c.Students[static_cast<std::size_t>(students[k])];
    FillStudentCells(grid1, row, roster.mode, row, student);
    grid1.SetTextMatrix(row, kMark,
                        grade_ == 0 ? std::string_view() : Trim(MarkOf(student, grade_)));
  }
  grid1.SetRedraw(true);
}

}  // namespace tallyroll
