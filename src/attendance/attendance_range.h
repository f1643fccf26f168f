// SPDX-License-Identifier: GPL-3.0-or-later
// The attendance range, in whole months: how it is set up, and how its ends are moved together
// with the marks of the term table.
#pragma once

#include <optional>
#include <string>

#include "store/records.h"

namespace tallyroll {

struct TermMonth {
  int month = 1;  // 1 to 12
  int year = 2000;

  friend bool operator==(const TermMonth&, const TermMonth&) = default;
};

TermMonth MonthOf(double day);
// One month forward or back; there is no last one.
TermMonth Stepped(TermMonth month, int by);

// What the teacher chooses.
struct RangeChoice {
  TermMonth start, end;
  int openedendyear = 2000;  // of the end before anything was chosen
};

// The range of the class; before it is set up, that of the term in the class information, and
// failing that the month of today.
RangeChoice ChoiceOfClass();

struct RangeDates {
  double start = 0;
  double end_next = 0;        // the day after the last
  std::string end_next_text;  // as termend keeps it

  int Days() const { return static_cast<int>(end_next - start); }
};

// Nothing when the start does not precede the end. A December end takes its year from
// openedendyear and not from the choice.
std::optional<RangeDates> DatesOf(const RangeChoice& choice);

// The range of a class that has none: days without marks.
void SetUpRange(const RangeDates& dates);

// A move of the range of a class that has one.
struct RangeMove {
  TermMonth old_first, old_last;
  int old_count = 0;  // days
  int new_count = 0;
  int keep_from_start = 0;  // days from the new start to the old end
  int added_at_start = 0;   // days from the new start to the old one
};

RangeMove MoveTo(const RangeDates& dates);

// These tell how a range moves by month and year, and do not know every move across a year: what
// none of them knows moves no mark, and the marks are dated anew.
bool StartsLater(const RangeChoice& choice, const RangeMove& move);
bool EndsEarlier(const RangeChoice& choice, const RangeMove& move);
bool StartsEarlier(const RangeChoice& choice, const RangeMove& move);

// The marks of the term table keep their dates, those before the new start are gone.
void MoveMarksToLaterStart(const RangeMove& move);
// The marks keep their dates behind the empty days of the new start, those behind the new end are
// gone.
void MoveMarksToEarlierStart(const RangeMove& move);

// Dates the days anew and sizes the term table and the daily marks to them.
void AdoptRange(const RangeDates& dates);

}  // namespace tallyroll
