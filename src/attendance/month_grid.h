// SPDX-License-Identifier: GPL-3.0-or-later
// The month grid: students down, the days of one month across, behind them the totals of each
// student, and below the totals of each day.
#pragma once

#include <functional>

#include "platform/grid.h"

namespace tallyroll {

inline constexpr int kFirstDayColumn = 2;

// The month shown, as a stretch of the term.
struct MonthWindow {
  int monthdays = 0;
  int monthoffset = 0;  // day d of the month is day monthoffset + d of the term
};

// Sizes the grid and writes all labels; the rows of the daily totals are hidden.
void BuildMonthGrid(Grid& grid, const MonthWindow& month);
// Writes heads and marks; the columns of the student totals are hidden.
void FillMonthGrid(Grid& grid, const MonthWindow& month);
// The marks of the month go back into the term table.
void StoreMonth(const Grid& grid, const MonthWindow& month);

// What the month tells beside its texts; the grid and the month must outlive it. `first` gives the
// day serial of the first of the month.
GridNotes NotesOfMonth(const Grid& grid, const MonthWindow& month,
                       const std::function<double()>& first);

// A student's day, where a mark can stand.
bool IsDayCell(const Grid& grid, int row, int col);

// Counts one student's month, one day. Nothing else is counted when a key changes a mark.
void studentSummaryone(Grid& grid, int row);
void dailysummaryone(Grid& grid, int col);

// Shows or hides the totals, with what is seen of the grid then.
void ShowStudentTotals(Grid& grid, bool on);
void ShowDailyTotals(Grid& grid, bool on);

}  // namespace tallyroll
