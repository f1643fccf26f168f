// SPDX-License-Identifier: GPL-3.0-or-later
// Counts and lists after a reading that may have ended anywhere.
#include "store/read_records.h"

#include "base/run_time_error.h"

namespace tallyroll {
namespace {

template <typename Record>
void FitCount(List<Record>& list, i16& count) {
  count = static_cast<i16>(std::clamp<int>(count, 0, UpperBound(list)));
  if (UpperBound(list) > count) list.resize(static_cast<std::size_t>(count) + 1);
}

}  // namespace

void ClearRecords(Class& c) {
  c.Instruments.clear();
  c.AttendanceDays.clear();
  c.Summaries.clear();
  c.Students.clear();
}

int FaultOfCounts(const Class& c) {
  const bool negative = c.NumStudents < 0 || c.NumInstruments < 0 || c.NumDays < 0 ||
                        c.NumSummaries < 0 || c.NumCharts < 0;
  return negative ? kErrorDevice : 0;
}

void FitCounts(Class& c) {
  const bool cut = !c.Students.empty() && UpperBound(c.Students) == c.NumStudents + 1;
  if (cut && !c.Students.back().lastname.empty()) ++c.NumStudents;
  FitCount(c.Students, c.NumStudents);
  FitCount(c.Instruments, c.NumInstruments);
  FitCount(c.AttendanceDays, c.NumDays);
  FitCount(c.Summaries, c.NumSummaries);
  if (c.Students.empty()) ReDim(c.Students, 0);
  c.NumCharts = std::max<i16>(c.NumCharts, 0);
}

}  // namespace tallyroll
