// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/daily_codes.h"

namespace tallyroll {

CodeCounts CountDays(const Student& student, DayRange range) {
  CodeCounts counts;
  for (int j = range.first; j <= range.last; ++j) counts.Count(MarkOn(student, j));
  return counts;
}

}  // namespace tallyroll
