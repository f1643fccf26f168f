// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "base/text.h"
#include "grades/marks.h"
#include "printing/reports/report_codes.h"
#include "printing/reports/reports.h"
#include "printing/reports/roll_book.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kMissing = 2, kClassInformation = 22;

bool AnyMissing(const Student& student) {
  for (int i = 1; i <= GradeCount(Current()); ++i)
    if (IsMissing(TrimRight(MarkOf(student, i)))) return true;
  return false;
}

bool AnyMissing() {
  const List<Student>& students = Current().Students;
  return std::any_of(students.begin() + 1, students.end(),
                     [](const Student& student) { return AnyMissing(student); });
}

}  // namespace

std::string NothingToReport() {
  const int code = Job.ReportCode;
  if (code != kClassInformation && Current().NumStudents == 0)
    return "There are no students in this class.";
  if (code == kMissing && !AnyMissing()) return "No student of this class is missing any Grades.";
  const bool roll_book = code == kRollBook || code == kRollBookTitles;
  if (roll_book && GradeCount(Current()) > 0 && RollBookGrades().empty())
    return "None of the grades is of the types or dates you chose.";
  return {};
}

}  // namespace tallyroll
