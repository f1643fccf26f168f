// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/month_table.h"

#include <cmath>
#include <string_view>

#include "base/date_serial.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kCounted = "ACESNL";
constexpr std::size_t kAllAbsences = 6;

}  // namespace

std::vector<Month> MonthsOf(double first, double last) {
  std::vector<Month> months;
  CivilDate date = DateOfSerial(first);
  const CivilDate end = DateOfSerial(last);
  while (date.year < end.year || (date.year == end.year && date.month <= end.month)) {
    months.push_back({date.year, date.month});
    date = DateOfSerial(DateSerial({date.year, date.month + 1, 1}));
  }
  return months;
}

int DaysIn(const Month& month) {
  return static_cast<int>(DateSerial({month.year, month.month + 1, 1}) -
                          DateSerial({month.year, month.month, 1}));
}

// Serial 1, 31 December 1899, was a Sunday.
std::size_t WeekdayOf(const Month& month, int day) {
  const auto serial = static_cast<int>(DateSerial({month.year, month.month, day}));
  return static_cast<std::size_t>(((serial - 1) % 7 + 7) % 7);
}

MonthMarks MarksOfMonth(const Student& student, const Month& month) {
  MonthMarks marks;
  marks.fill(' ');
  const List<AttendanceDay>& days = Current().AttendanceDays;
  for (std::size_t i = 1; i < days.size() && i < student.DailyMarks.size(); ++i) {
    const CivilDate date = DateOfSerial(days[i].date);
    if (date.year == month.year && date.month == month.month)
      marks[static_cast<std::size_t>(date.day)] = student.DailyMarks[i].view().front();
  }
  return marks;
}

MonthCounts CountsOf(const MonthMarks& marks) {
  MonthCounts counts{};
  for (std::size_t day = 1; day < marks.size(); ++day) {
    const std::size_t k = kCounted.find(marks[day]);
    if (k != std::string_view::npos) ++counts[k];
  }
  counts[kAllAbsences] = counts[0] + counts[1] + counts[3] + counts[4];
  return counts;
}

}  // namespace tallyroll
