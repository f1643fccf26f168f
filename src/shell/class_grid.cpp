// SPDX-License-Identifier: GPL-3.0-or-later
// The grid of the class window: the whole roster and every mark.
#include <algorithm>

#include "base/text.h"
#include "shell/form1.h"
#include "store/derived_values.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kFixedRows = 2;
constexpr int kFixedCols = 2;
constexpr int kNameWidth = 3360;
constexpr int kIdWidth = 1440;
constexpr int kLastHeadedColumn = 8;  // the heading over the grades reaches at least so far
constexpr std::string_view kNameTitle = "     NAME";
constexpr std::string_view kIdTitle = "       ID";
constexpr std::string_view kGradesTitle = "              Testing Instruments  ";

bool IdFirst() {
  return NameMode >= 73;
}
bool OneColumn() {
  return NameMode == 57 || NameMode == 73;
}

int RowsFor(const Class& c) {
  return c.NumStudents >= 27 ? c.NumStudents + kFixedRows : 28;
}

int ColsFor(const Class& c) {
  if (c.NumInstruments >= 8) return c.NumInstruments + kFixedCols;
  return NameMode == 73 ? 13 : 11;
}

void LayOut(Grid& grid, const Class& c) {
  grid.SetSize(RowsFor(c), ColsFor(c));
  grid.FixedRows = kFixedRows;
  grid.FixedCols = kFixedCols;
  grid.SetRowHeight(1, 2 * Grid::kDefaultRowHeight);
  grid.SetColWidth(0, IdFirst() ? kIdWidth : kNameWidth);
  grid.SetColWidth(1, OneColumn() ? 0 : IdFirst() ? kNameWidth : kIdWidth);
  // Marks are mostly numbers: they stand right, their titles over them.
  for (int col = kFixedCols; col < grid.Cols(); ++col)
    grid.SetColAlignment(col, ColumnAlign::kRight);
  grid.SetMergeRow(0);
  // A class that lost students or grades must not leave the current cell outside.
  grid.Row = std::clamp(grid.Row, kFixedRows, grid.Rows() - 1);
  grid.Col = std::clamp(grid.Col, kFixedCols, grid.Cols() - 1);
  grid.TopRow = std::clamp(grid.TopRow, kFixedRows, grid.Rows() - 1);
  grid.LeftCol = std::clamp(grid.LeftCol, kFixedCols, grid.Cols() - 1);
}

void FillTitles(Grid& grid, const Class& c) {
  grid.SetTextMatrix(0, 0, IdFirst() ? kIdTitle : kNameTitle);
  grid.SetTextMatrix(0, 1, IdFirst() ? kNameTitle : kIdTitle);
  const int last = std::max(kLastHeadedColumn, c.NumInstruments + 1);
  for (int col = kFixedCols; col < grid.Cols(); ++col)
    grid.SetTextMatrix(0, col, col <= last ? kGradesTitle : std::string_view());
}

void FillCodes(Grid& grid, const Class& c) {
  for (int col = 0; col < kFixedCols; ++col) grid.SetTextMatrix(1, col, "");
  for (int col = kFixedCols; col < grid.Cols(); ++col) {
    const int i = col - 1;
    grid.SetTextMatrix(1, col,
                       i <= c.NumInstruments
                           ? std::string_view(c.Instruments[static_cast<std::size_t>(i)].code)
                           : "");
  }
}

void FillStudent(Grid& grid, const Class& c, int i) {
  const Student& student = c.Students[static_cast<std::size_t>(i)];
  const int row = i + 1;
  const std::string id = std::string(Trim(student.id)) + " ";
  grid.SetTextMatrix(row, 0, IdFirst() ? id : NumberedName(i, student));
  grid.SetTextMatrix(row, 1, IdFirst() ? PlainName(student) : id);
  const int marks = std::min<int>(c.NumInstruments, UpperBound(student.Marks));
  for (int col = kFixedCols; col < grid.Cols(); ++col) {
    const int j = col - 1;
    grid.SetTextMatrix(
        row, col,
        j <= marks ? Trim(student.Marks[static_cast<std::size_t>(j)]) : std::string_view());
  }
}

void FillBlankRow(Grid& grid, int row) {
  for (int col = 0; col < grid.Cols(); ++col) grid.SetTextMatrix(row, col, "");
}

}  // namespace

// A Portal may have renamed or reordered students, so they are sorted before they are shown: the
// row that a key or a click reaches is the student who stands in it. Each cell is set once, blank
// ones too: what did not change costs a comparison and no more.
void Form1::showform3() {
  if (Tag.empty()) return;
  Class& c = Classes[static_cast<std::size_t>(Slot())];
  MakeDerivedValues(c);
  ++Refills;
  Grid1.SetRedraw(false);
  LayOut(Grid1, c);
  FillTitles(Grid1, c);
  FillCodes(Grid1, c);
  for (int i = 1; i <= c.NumStudents; ++i) FillStudent(Grid1, c, i);
  for (int row = c.NumStudents + kFixedRows; row < Grid1.Rows(); ++row) FillBlankRow(Grid1, row);
  Grid1.SetRedraw(true);
}

}  // namespace tallyroll
