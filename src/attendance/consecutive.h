// SPDX-License-Identifier: GPL-3.0-or-later
// Who was absent on several days in a row. Only marked days count: those on which any student of
// the class has a mark, so that weekends and holidays do not part a row.
#pragma once

#include <vector>

#include "attendance/daily_codes.h"

namespace tallyroll {

struct AbsenceRun {
  int student = 0;
  std::vector<double> dates;  // day serials
};

// The rows of at least that many days within the range, student by student.
std::vector<AbsenceRun> AbsencesInARow(DayRange range, int at_least);

}  // namespace tallyroll
