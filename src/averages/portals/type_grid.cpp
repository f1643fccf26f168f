// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/type_grid.h"

#include "base/text.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kNameWidth = 3000;
constexpr int kCodeWidth = 750;
constexpr int kFigureWidth = 1250;

}  // namespace

void HeadColumns(Grid& grid, std::initializer_list<std::string_view> headings) {
  int col = 0;
  for (const std::string_view heading : headings) {
    grid.SetTextMatrix(grid.FixedRows - 1, col, heading);
    grid.SetColWidth(col, col == 0 ? kNameWidth : col == 1 ? kCodeWidth : kFigureWidth);
    grid.SetColAlignment(col, col < 2 ? ColumnAlign::kLeft : ColumnAlign::kRight);
    ++col;
  }
}

void ShowTitles(Grid& grid) {
  const Class& c = Current();
  for (int i = 1; i <= GradeCount(c); ++i) {
    const Instrument& instrument = c.Instruments[static_cast<std::size_t>(i)];
    const int row = grid.FixedRows + i - 1;
    grid.SetTextMatrix(row, 0, Trim(instrument.title));
    grid.SetTextMatrix(row, 1, Trim(instrument.typecode));
  }
}

bool GoToNextRow(Grid& grid) {
  if (grid.Row + 1 < grid.Rows()) ++grid.Row;
  return true;
}

std::vector<std::vector<std::string>> RowsToPrint(const Grid& grid) {
  std::vector<std::vector<std::string>> rows;
  for (int row = grid.FixedRows; row < grid.Rows(); ++row) {
    rows.emplace_back();
    for (int col = 0; col < grid.Cols(); ++col) rows.back().emplace_back(grid.TextMatrix(row, col));
  }
  return rows;
}

void PrintGrid(const PrintedTable& table) {
  if (PrintTable) PrintTable(table);
}

TypeNames::TypeNames() {
  MakeTypeCodes(codes_);
  MakeTypeNames(names_);
}

std::string_view TypeNames::Name(std::size_t type) const {
  return Trim(names_[type]);
}

std::string_view TypeNames::Code(std::size_t type) const {
  return Trim(codes_[type].view());
}

void TypeNames::Show(Grid& grid, int row, std::size_t type) const {
  grid.SetTextMatrix(row, 0, Name(type));
  grid.SetTextMatrix(row, 1, Code(type));
}

}  // namespace tallyroll
