// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/student_grid.h"

#include <string>
#include <string_view>

#include "base/text.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kNameWidth = 3360;
constexpr int kIdWidth = 1440;
constexpr int kMarkWidth = 1100;

bool IdFirst() {
  return NameMode >= 73;
}
bool OneColumn() {
  return NameMode == 57 || NameMode == 73;
}

void LayOut(Grid& grid) {
  grid.SetSize(Current().NumStudents + 1, kMarkColumn + 1);
  grid.FixedRows = 1;
  grid.FixedCols = kMarkColumn;
  grid.SetColWidth(0, IdFirst() ? kIdWidth : kNameWidth);
  grid.SetColWidth(1, OneColumn() ? 0 : IdFirst() ? kNameWidth : kIdWidth);
  grid.SetColWidth(kMarkColumn, kMarkWidth);
  grid.SetColAlignment(kMarkColumn, ColumnAlign::kRight);
  grid.Row = grid.TopRow = 1;
  grid.Col = grid.LeftCol = kMarkColumn;
}

}  // namespace

void FillStudentGrid(Grid& grid) {
  const Class& c = Current();
  grid.SetRedraw(false);
  LayOut(grid);
  grid.SetTextMatrix(0, 0, IdFirst() ? "ID" : "NAME");
  grid.SetTextMatrix(0, 1, IdFirst() ? "     NAME" : "      ID ");
  grid.SetTextMatrix(0, kMarkColumn, "GR.");
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    const std::string_view id = Trim(student.id);
    const std::string name = PlainName(student);
    grid.SetTextMatrix(i, 0, IdFirst() ? id : name);
    grid.SetTextMatrix(i, 1, IdFirst() ? name : id);
    grid.SetTextMatrix(i, kMarkColumn, "");
  }
  grid.SetRedraw(true);
}

}  // namespace tallyroll
