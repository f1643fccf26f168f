// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/consecutive.h"

#include <utility>

#include "store/program_state.h"

namespace tallyroll {
namespace {

bool IsAbsence(char mark) {
  return mark == 'A' || mark == 'C' || mark == 'S' || mark == 'N';
}

std::vector<int> MarkedDays(DayRange range) {
  const Class& c = Current();
  std::vector<int> days;
  for (int j = range.first; j <= range.last; ++j) {
    bool marked = false;
    for (std::size_t i = 1; i < c.Students.size() && !marked; ++i)
      marked = IsDailyCode(MarkOn(c.Students[i], j));
    if (marked) days.push_back(j);
  }
  return days;
}

}  // namespace

std::vector<AbsenceRun> AbsencesInARow(DayRange range, int at_least) {
  const Class& c = Current();
  const std::vector<int> marked = MarkedDays(range);
  std::vector<AbsenceRun> runs;
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    AbsenceRun run{i, {}};
    const auto close = [&] {
      if (static_cast<int>(run.dates.size()) >= at_least) runs.push_back(run);
      run.dates.clear();
    };
    for (const int j : marked) {
      if (IsAbsence(MarkOn(student, j)))
        run.dates.push_back(c.AttendanceDays[static_cast<std::size_t>(j)].date);
      else
        close();
    }
    close();
  }
  return runs;
}

}  // namespace tallyroll
