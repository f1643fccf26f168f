// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/student_column.h"

#include "base/text.h"
#include "printing/page/report_choice.h"
#include "store/student_names.h"

namespace tallyroll {

std::string_view StudentColumnHead() {
  switch (Choice.shown) {
    case Shown::kId:
      return "  ID";
    case Shown::kName:
      return "NAME";
    default:
      return "NAME and ID";
  }
}

int BehindStudentColumn() {
  switch (Choice.shown) {
    case Shown::kId:
      return 25;
    case Shown::kName:
      return 38;
    default:
      return 50;
  }
}

std::string StudentColumnText(const Student& student) {
  std::string id(Trim(student.id));
  switch (Choice.shown) {
    case Shown::kId:
      return id;
    case Shown::kName:
      return PlainName(student);
    default:
      return id + "  " + PlainName(student);
  }
}

}  // namespace tallyroll
