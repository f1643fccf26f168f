// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/student_names.h"

#include "base/number_text.h"
#include "base/text.h"
#include "store/program_state.h"

namespace tallyroll {

std::string PlainName(const Student& student) {
  return std::string(Trim(student.lastname)) + ", " + std::string(Trim(student.firstname));
}

std::string NumberedName(int number, const Student& student) {
  return SignedNumberText(number) + " " + PlainName(student);
}

std::string StudentListLine(const Student& student) {
  std::string id(Trim(student.id));
  switch (NameMode) {
    case 57:
      return PlainName(student);
    case 82:
      return id + "\t" + PlainName(student);
    case 73:
      return id;
    default:
      return PlainName(student) + "\t" + id;
  }
}

}  // namespace tallyroll
