// SPDX-License-Identifier: GPL-3.0-or-later
// A month of daily marks, and what is counted from it. The report on paper, as text and as HTML
// share it.
#pragma once

#include <array>
#include <vector>

#include "store/records.h"

namespace tallyroll {

struct Month {
  int year = 0;
  int month = 1;  // 1 to 12
};

// Every month from that of one day to that of another, both serials; none when they are turned
// round.
std::vector<Month> MonthsOf(double first, double last);
int DaysIn(const Month& month);
// 0 is Sunday.
std::size_t WeekdayOf(const Month& month, int day);

using MonthMarks = std::array<char, 32>;  // by day from 1; a blank where there is no mark
MonthMarks MarksOfMonth(const Student& student, const Month& month);

inline constexpr int kMonthTotals = 7;
// A, C, E, S, N, L, and the absences in all: A, C, S and N.
using MonthCounts = std::array<int, kMonthTotals>;
MonthCounts CountsOf(const MonthMarks& marks);

}  // namespace tallyroll
