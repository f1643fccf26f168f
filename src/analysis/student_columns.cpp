// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/student_columns.h"

#include <string>

#include "base/text.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kNameWidth = 3360;
constexpr int kIdWidth = 1440;
constexpr std::string_view kIdHead = "       ID";
constexpr std::string_view kNameHead = "     NAME";

bool IdFirst(i16 mode) {
  return mode >= 73;
}
bool OneColumn(i16 mode) {
  return mode == 57 || mode == 73;
}

}  // namespace

void RosterMenu::Begin() {
  Set(NameMode);
}

void RosterMenu::ClearChecks() {
  with_id.Value = without_id.Value = with_name.Value = without_name.Value = false;
}

void RosterMenu::Set(i16 wanted) {
  mode = wanted;
  ClearChecks();
  (mode == 57   ? without_id
   : mode == 82 ? with_name
   : mode == 73 ? without_name
                : with_id)
      .Value = true;
}

void LayOutStudentColumns(Grid& grid, i16 mode) {
  grid.SetColWidth(0, IdFirst(mode) ? kIdWidth : kNameWidth);
  grid.SetColWidth(1, OneColumn(mode) ? 0 : IdFirst(mode) ? kNameWidth : kIdWidth);
  grid.SetTextMatrix(0, 0, IdFirst(mode) ? kIdHead : kNameHead);
  grid.SetTextMatrix(0, 1, IdFirst(mode) ? kNameHead : kIdHead);
}

void FillStudentCells(Grid& grid, int row, i16 mode, int number, const Student& student) {
  const std::string id = std::string(Trim(student.id)) + " ";
  const std::string name = mode == 57 ? PlainName(student) : NumberedName(number, student);
  grid.SetTextMatrix(row, 0, IdFirst(mode) ? id : name);
  grid.SetTextMatrix(row, 1, IdFirst(mode) ? name : id);
}

}  // namespace tallyroll
