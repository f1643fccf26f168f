// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/daily_codes.h"

#include "store/program_state.h"

namespace tallyroll {

CodeCounts CountDays(const Student& student, DayRange range) {
  CodeCounts counts;
  for (int j = range.first; j <= range.last; ++j) counts.Count(MarkOn(student, j));
  return counts;
}

DayRange DaysBetween(double first, double last) {
  const Class& c = Current();
  DayRange range{c.NumDays + 1, 0};
  for (int j = 1; j <= c.NumDays; ++j) {
    const double date = c.AttendanceDays[static_cast<std::size_t>(j)].date;
    if (date >= first && range.first > c.NumDays) range.first = j;
    if (date <= last) range.last = j;
  }
  return range;
}

}  // namespace tallyroll
