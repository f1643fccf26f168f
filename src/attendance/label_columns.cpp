// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/label_columns.h"

#include <string>

#include "base/text.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

std::size_t RowOfMode() {
  switch (NameMode) {
    case 'I':
      return 0;
    case 'R':
      return 1;
    case 'D':
      return 2;
    default:
      return 3;
  }
}

std::string LabelOf(const Student& student, LabelColumn::Holds holds) {
  if (holds == LabelColumn::Holds::kId) return std::string(TrimRight(student.id));
  return std::string(TrimRight(student.lastname)) + ", " +
         std::string(TrimRight(student.firstname));
}

}  // namespace

void FillLabels(Grid& grid, const LabelTable& table) {
  const Class& c = Current();
  for (int col = 0; col < kLabelColumns; ++col) {
    const LabelColumn& column = table[RowOfMode()][static_cast<std::size_t>(col)];
    grid.SetColWidth(col, column.width);
    grid.SetColAlignment(col, ColumnAlign::kLeft);
    grid.SetTextMatrix(0, col, column.head);
    if (column.holds == LabelColumn::Holds::kNothing) continue;
    for (int i = 1; i <= c.NumStudents; ++i)
      grid.SetTextMatrix(i, col, LabelOf(c.Students[static_cast<std::size_t>(i)], column.holds));
  }
}

}  // namespace tallyroll
