// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/term_table.h"

#include <algorithm>

#include "attendance/calendar.h"
#include "attendance/daily_codes.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

std::size_t Place(int from_one) {
  return static_cast<std::size_t>(from_one) - 1;
}

double DateOf(int day) {
  return Current().AttendanceDays[static_cast<std::size_t>(day)].date;
}

}  // namespace

TermTable Grid2;

void TermTable::SetStudents(int students) {
  rows_.resize(static_cast<std::size_t>(students),
               std::string(static_cast<std::size_t>(days_), kNoMark));
}

void TermTable::SetDays(int days) {
  days_ = days;
  for (std::string& row : rows_) row.resize(static_cast<std::size_t>(days), kNoMark);
  dates_.resize(static_cast<std::size_t>(days));
}

char TermTable::Mark(int student, int day) const {
  return HasDay(day) ? rows_[Place(student)][Place(day)] : kNoMark;
}

void TermTable::SetMark(int student, int day, char mark) {
  if (HasDay(day)) rows_[Place(student)][Place(day)] = mark;
}

void TermTable::CopyDay(int from, int to) {
  if (!HasDay(to)) return;
  for (int i = 1; i <= Students(); ++i) SetMark(i, to, Mark(i, from));
  dates_[Place(to)] = HasDay(from) ? dates_[Place(from)] : Dates();
}

int TermTable::DatedDays() const {
  return std::min(days_, UpperBound(Current().AttendanceDays));
}

int TermTable::MarksOfDay(int day) const {
  int count = 0;
  for (const std::string& row : rows_) count += row[Place(day)] != kNoMark;
  return count;
}

int TermTable::MarkCount() const {
  int count = 0;
  for (int j = 1; j <= days_; ++j) count += MarksOfDay(j);
  return count;
}

void TermTable::TakeDates() {
  for (int j = 1; j <= DatedDays(); ++j) dates_[Place(j)].taken = DateOf(j);
}

int TermTable::MarksUnderOtherDates() const {
  int count = 0;
  for (int j = 1; j <= DatedDays(); ++j)
    if (dates_[Place(j)].taken != DateOf(j)) count += MarksOfDay(j);
  return count;
}

void TermTable::TakeStoredDates() {
  for (int j = 1; j <= DatedDays(); ++j) dates_[Place(j)].stored = DateOf(j);
  stored_first_ = DatedDays() > 0 ? DateOf(1) : 0;
}

// A class that was cut and made longer again lacks the marks of its end, though nothing has moved.
int TermTable::MarksAwaitingStore() const {
  int count = 0;
  for (int j = 1; j <= DatedDays(); ++j) {
    const double stored = dates_[Place(j)].stored;
    if (stored != DateOf(j)) continue;
    const bool moved = stored != stored_first_ + j - 1;
    for (int i = 1; i <= Students(); ++i) {
      const char mark = Mark(i, j), in_class = MarkOn(Current().Students[Place(i) + 1], j);
      count += mark != kNoMark && (moved || mark != in_class);
    }
  }
  return count;
}

void LoadTermGrid() {
  const Class& c = Current();
  Grid2 = TermTable();
  Grid2.SetStudents(c.NumStudents);
  Grid2.SetDays(c.NumDays);
  for (int i = 1; i <= c.NumStudents; ++i)
    for (int j = 1; j <= c.NumDays; ++j)
      Grid2.SetMark(i, j, MarkOn(c.Students[static_cast<std::size_t>(i)], j));
  Grid2.TakeDates();
  Grid2.TakeStoredDates();
}

void StoreDailyMarks() {
  Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i) {
    List<FixedText<1>>& marks = c.Students[static_cast<std::size_t>(i)].DailyMarks;
    ReDimPreserve(marks, c.NumDays);
    for (int j = 1; j <= c.NumDays; ++j)
      *marks[static_cast<std::size_t>(j)].data() = Grid2.Mark(i, j);
  }
  Grid2.TakeStoredDates();
  if (c.NumSummaries > 0) RecalculateRangeSummaries();
  c.Changed = kTrue;
}

void ResetAttendance() {
  Grid2 = TermTable();
}

}  // namespace tallyroll
