// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/summary_periods.h"

#include <algorithm>

#include "base/date_serial.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

// 0 when no day has that date.
int DayOfText(std::string_view date) {
  const Class& c = Current();
  for (int j = 1; j <= c.NumDays; ++j) {
    const double day = c.AttendanceDays[static_cast<std::size_t>(j)].date;
    if (DateText(day, Platform().ShortDateOrder()) == Trim(date)) return j;
  }
  return 0;
}

template <typename T>
void MakeRoom(List<T>& list) {
  if (UpperBound(list) < Current().NumSummaries) ReDimPreserve(list, Current().NumSummaries);
}

// Everything behind the index moves one place to the front.
template <typename T>
void CloseGap(List<T>& list, int index) {
  for (int k = index; k < UpperBound(list); ++k)
    list[static_cast<std::size_t>(k)] = list[static_cast<std::size_t>(k) + 1];
}

}  // namespace

DayRange DaysFromTo(const std::string& start, const std::string& end) {
  const DayRange range{DayOfText(start), DayOfText(end)};
  return range.first == 0 ? DayRange() : range;
}

void MakeRoomForSummaries(Student& student) {
  MakeRoom(student.SummaryAbsent);
  MakeRoom(student.SummaryLate);
  MakeRoom(student.SummaryDetail);
}

AttendanceSummary& AddSummary() {
  Class& c = Current();
  const int count = ++c.NumSummaries;
  ReDimPreserve(c.Summaries, count);
  c.Summaries.back() = AttendanceSummary();
  for (int i = 1; i <= c.NumStudents; ++i) {
    Student& s = c.Students[static_cast<std::size_t>(i)];
    ReDimPreserve(s.SummaryAbsent, count);
    ReDimPreserve(s.SummaryLate, count);
    ReDimPreserve(s.SummaryDetail, count);
  }
  return c.Summaries.back();
}

i16 NextRangeNumber() {
  const Class& c = Current();
  i16 last = 0;
  for (int k = 1; k <= c.NumSummaries; ++k) {
    const AttendanceSummary& summary = c.Summaries[static_cast<std::size_t>(k)];
    if (summary.kind == kRangeSummary) last = summary.rangenumber;
  }
  return static_cast<i16>(last + 1);
}

void DeleteSummary(int index) {
  Class& c = Current();
  c.Changed = kTrue;
  --c.NumSummaries;
  for (int i = 1; i <= c.NumStudents; ++i) {
    Student& s = c.Students[static_cast<std::size_t>(i)];
    CloseGap(s.SummaryAbsent, index);
    CloseGap(s.SummaryLate, index);
    CloseGap(s.SummaryDetail, index);
  }
  CloseGap(c.Summaries, index);
}

}  // namespace tallyroll
