// SPDX-License-Identifier: GPL-3.0-or-later
// The attendance calendar: firsts of months, and what range summaries count from the daily marks.
#pragma once

#include <string>

#include "store/records.h"

namespace tallyroll {

// The first of a month as date text in the order of the user's short dates, each number with one
// leading blank: "01/ 9/ 2026", " 9/01/ 2026", " 2026/ 9/01". To be read back before comparing.
std::string FirstOfMonthDate(int month, int year);

// Counts every summary of kind 2 of the current class anew from the daily marks. Runs when daily
// marks are stored, and when an older class file has been converted.
void RecalculateRangeSummaries();

}  // namespace tallyroll
