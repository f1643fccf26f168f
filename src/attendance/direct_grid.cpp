// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/direct_grid.h"

#include <algorithm>

#include "base/text.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kFigureWidth = 780;

}  // namespace

void DirectGrid::Declare(ControlTable& table) {
  table.Add("Grid1", grid_)
      .Change([this] { EnterCell(); })
      .Click([this] { EnterCell(); })
      .KeyDown([this](Key key) { return KeyDown(key); })
      .KeyPress([this](unsigned char key) { return KeyPress(key); });
}

void DirectGrid::LayOut(const LabelTable& labels) {
  grid_.SetRedraw(false);
  grid_.Clear();
  grid_.SetSize(Current().NumStudents + 1, kLateColumn + 1);
  grid_.FixedRows = 1;
  grid_.FixedCols = kLabelColumns;
  FillLabels(grid_, labels);
  grid_.SetTextMatrix(0, kAbsentColumn, "ABS");
  grid_.SetTextMatrix(0, kLateColumn, "LATE");
  for (const int col : {kAbsentColumn, kLateColumn}) {
    grid_.SetColWidth(col, kFigureWidth);
    grid_.SetColAlignment(col, ColumnAlign::kRight);
  }
  GoToFirst();
  grid_.SetRedraw(true);
}

void DirectGrid::GoToFirst() {
  typing_.first_key = true;
  grid_.Row = grid_.TopRow = 1;
  grid_.Col = grid_.LeftCol = kAbsentColumn;
}

bool DirectGrid::IsFilled() const {
  for (int i = 1; i < grid_.Rows(); ++i)
    for (const int col : {kAbsentColumn, kLateColumn})
      if (grid_.TextMatrix(i, col).empty() || grid_.TextMatrix(i, col) == " ") return false;
  return true;
}

bool DirectGrid::HasBlankRow() const {
  for (int i = 1; i < grid_.Rows(); ++i)
    if (Trim(grid_.TextMatrix(i, kAbsentColumn)).empty() &&
        Trim(grid_.TextMatrix(i, kLateColumn)).empty())
      return true;
  return false;
}

// Headings and labels take no key: their row and column begin behind them.
void DirectGrid::EnterCell() {
  typing_.first_key = true;
  grid_.Row = std::max(grid_.Row, 1);
  grid_.Col = std::max(grid_.Col, kAbsentColumn);
}

bool DirectGrid::KeyPress(unsigned char key) {
  if (!typed_() || grid_.Row >= grid_.Rows()) return true;
  const std::string text = typing_.Type(grid_.TextMatrix(grid_.Row, grid_.Col), key);
  grid_.SetTextMatrix(grid_.Row, grid_.Col, text);
  return true;
}

bool DirectGrid::KeyDown(Key key) {
  if (key == Key::kUp || key == Key::kDown) typing_.first_key = true;
  return (key == Key::kTab && StepCell(1)) || (key == Key::kBackTab && StepCell(-1));
}

// From absences to lates, and on to the next student, or the way back; at either end Tab leaves
// the grid.
bool DirectGrid::StepCell(int by) {
  if (grid_.Cols() > kLateColumn + 1) return false;
  const bool at_late = grid_.Col >= kLateColumn;
  const bool changes_row = by > 0 ? at_late : !at_late;
  const int row = grid_.Row + (changes_row ? by : 0);
  if (row < 1 || row >= grid_.Rows()) return false;
  grid_.Row = row;
  grid_.Col = at_late ? kAbsentColumn : kLateColumn;
  EnterCell();
  return true;
}

void RemindOfSummary(Portal& portal, TextBox& title, TextBox& code, Grid& grid,
                     DirectGrid& figures) {
  ShowMessage(
      "You must fill in the TITLE and CODE of the attendance period, and the ATTENDANCE for each "
      "student.\nUse TAB to move from one entry to the next.\nUse ARROW KEYS to move between "
      "student names.",
      BoxIcon::kCritical);
  if (title.Text.empty()) return portal.SetFocusAndSelect(title);
  if (code.Text.empty()) return portal.SetFocusAndSelect(code);
  figures.GoToFirst();
  portal.SetFocus(grid);
}

}  // namespace tallyroll
