// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/roll_book.h"

#include <algorithm>

#include "base/date_serial.h"
#include "base/text.h"
#include "grades/marks.h"
#include "platform/surroundings.h"
#include "printing/page/report_choice.h"
#include "printing/reports/report_parts.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

std::string_view TypeOf(int grade) {
  return Trim(GradeInReport(grade).typecode);
}

// A date that cannot be read stands before all others.
double DateOf(int grade) {
  return DateFromText(GradeInReport(grade).testdate, Platform().ShortDateOrder()).value_or(0);
}

bool IsShown(int grade) {
  switch (Choice.roll_order) {
    case RollBookOrder::kSomeTypes:
      return std::find(Choice.types.begin(), Choice.types.end(), TypeOf(grade)) !=
             Choice.types.end();
    case RollBookOrder::kSomeDates:
      return DateOf(grade) >= Choice.date_first && DateOf(grade) <= Choice.date_last;
    default:
      return true;
  }
}

}  // namespace

std::vector<int> RollBookGrades() {
  std::vector<int> grades;
  for (int i = 1; i <= GradeCount(Current()); ++i)
    if (IsShown(i)) grades.push_back(i);
  const RollBookOrder order = Choice.roll_order;
  if (order == RollBookOrder::kAllTypes || order == RollBookOrder::kSomeTypes)
    std::stable_sort(grades.begin(), grades.end(),
                     [](int a, int b) { return TypeOf(a) < TypeOf(b); });
  if (order == RollBookOrder::kAllDates || order == RollBookOrder::kSomeDates)
    std::stable_sort(grades.begin(), grades.end(),
                     [](int a, int b) { return DateOf(a) < DateOf(b); });
  return grades;
}

std::string DateWithoutYear(int grade) {
  constexpr std::size_t kShort = 3;
  const std::string date = WholeDateWithoutYear(grade);
  const bool cut = date.size() < Trim(GradeInReport(grade).testdate).size();
  return cut ? date : date.substr(0, kShort);
}

std::string WholeDateWithoutYear(int grade) {
  const std::string_view date = Trim(GradeInReport(grade).testdate);
  std::size_t end = date.rfind('/');
  if (end == std::string_view::npos) end = date.rfind('.');
  return std::string(date.substr(0, end));
}

}  // namespace tallyroll
