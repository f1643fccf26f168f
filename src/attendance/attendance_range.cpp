// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/attendance_range.h"

#include <algorithm>
#include <cmath>

#include "attendance/calendar.h"
#include "attendance/term_table.h"
#include "base/date_serial.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

double DateOfDay(int j) {
  return Current().AttendanceDays[static_cast<std::size_t>(j)].date;
}

std::optional<double> DateOf(std::string_view text) {
  return DateFromText(Trim(text), Platform().ShortDateOrder());
}

// The month of a text that a teacher may have typed; today's where it holds no date.
TermMonth MonthOfText(std::string_view text) {
  return MonthOf(DateOf(text).value_or(std::floor(Platform().Now())));
}

std::string TextOfDate(double day) {
  return DateText(day, Platform().ShortDateOrder());
}

std::string EndNextText(const RangeChoice& choice) {
  const int chosen = choice.end.year, opened = choice.openedendyear;
  if (choice.end.month < 12) return FirstOfMonthDate(choice.end.month + 1, chosen);
  return FirstOfMonthDate(1, opened > chosen ? opened : opened + 1);
}

void DateDays(double start, int count) {
  List<AttendanceDay>& days = Current().AttendanceDays;
  for (int j = 1; j <= count; ++j) days[static_cast<std::size_t>(j)].date = start + j - 1;
}

}  // namespace

TermMonth MonthOf(double day) {
  const CivilDate date = DateOfSerial(day);
  return {date.month, date.year};
}

TermMonth Stepped(TermMonth month, int by) {
  month.month += by;
  if (month.month < 1) return {12, month.year - 1};
  if (month.month > 12) return {1, month.year + 1};
  return month;
}

RangeChoice ChoiceOfClass() {
  const Class& c = Current();
  const bool has_range = c.NumDays > 0;
  RangeChoice choice;
  choice.start = has_range ? MonthOf(DateOfDay(1)) : MonthOfText(c.termstart);
  choice.end = has_range ? MonthOf(DateOfDay(c.NumDays)) : MonthOfText(c.termend);
  choice.openedendyear = choice.end.year;
  return choice;
}

std::optional<RangeDates> DatesOf(const RangeChoice& choice) {
  RangeDates dates;
  dates.end_next_text = EndNextText(choice);
  const auto start = DateOf(FirstOfMonthDate(choice.start.month, choice.start.year));
  const auto end_next = DateOf(dates.end_next_text);
  if (!start || !end_next || *end_next <= *start) return std::nullopt;
  dates.start = *start;
  dates.end_next = *end_next;
  return dates;
}

void SetUpRange(const RangeDates& dates) {
  Class& c = Current();
  c.Changed = kTrue;
  c.NumDays = static_cast<i16>(dates.Days());
  ReDim(c.AttendanceDays, c.NumDays);
  DateDays(dates.start, c.NumDays);
  for (int i = 1; i <= c.NumStudents; ++i)
    ReDim(c.Students[static_cast<std::size_t>(i)].DailyMarks, c.NumDays);
  c.termstart = TextOfDate(dates.start);
  c.termend = TextOfDate(dates.end_next);
}

RangeMove MoveTo(const RangeDates& dates) {
  const int count = Current().NumDays;
  const double old_next = DateOfDay(count) + 1;
  RangeMove move;
  move.old_first = MonthOf(DateOfDay(1));
  move.old_last = MonthOf(DateOfDay(count));
  move.old_count = count;
  move.new_count = dates.Days();
  move.keep_from_start = static_cast<int>(std::abs(old_next - dates.start));
  move.added_at_start = static_cast<int>(DateOfDay(1) - dates.start);
  return move;
}

bool StartsLater(const RangeChoice& choice, const RangeMove& move) {
  const TermMonth &start = choice.start, &old = move.old_first;
  return (start.month < old.month && start.year > old.year) ||
         (start.month > old.month && start.year == old.year);
}

bool EndsEarlier(const RangeChoice& choice, const RangeMove& move) {
  const TermMonth &end = choice.end, &old = move.old_last;
  return (end.month < old.month && end.year == old.year) ||
         (end.month > old.month && end.year < old.year);
}

bool StartsEarlier(const RangeChoice& choice, const RangeMove& move) {
  const TermMonth &start = choice.start, &old = move.old_first;
  return (start.month < old.month && start.year == old.year) ||
         (start.month > old.month && start.year < old.year);
}

void MoveMarksToLaterStart(const RangeMove& move) {
  const int kept = move.keep_from_start;
  for (int j = 1; j <= kept; ++j) Grid2.CopyDay(move.old_count - kept + j, j);
  for (int j = kept + 1; j <= move.old_count; ++j) Grid2.ClearDay(j);
}

void MoveMarksToEarlierStart(const RangeMove& move) {
  Grid2.SetDays(move.new_count);
  for (int j = move.new_count; j >= 1; --j) Grid2.CopyDay(j - move.added_at_start, j);
}

void AdoptRange(const RangeDates& dates) {
  Class& c = Current();
  const int count = dates.Days();
  Grid2.SetDays(count);
  ReDimPreserve(c.AttendanceDays, count);
  c.Changed = kTrue;
  c.NumDays = static_cast<i16>(count);
  DateDays(dates.start, count);
  for (int i = 1; i <= c.NumStudents; ++i)
    ReDimPreserve(c.Students[static_cast<std::size_t>(i)].DailyMarks, count);
  c.termstart = TextOfDate(dates.start);
  c.termend = dates.end_next_text;
}

}  // namespace tallyroll
