// SPDX-License-Identifier: GPL-3.0-or-later
// Summary attendance periods: a title, a code and figures for each student, either typed in or
// counted from the daily marks between two dates.
#pragma once

#include <string>
#include <string_view>

#include "attendance/daily_codes.h"

namespace tallyroll {

inline constexpr i16 kDirectSummary = 1;
inline constexpr i16 kRangeSummary = 2;

inline constexpr int kMostSummaries = 20;
inline constexpr std::string_view kNoMoreSummaries =
    "You have entered the maximum number of summary attendance periods allowed for this class.";

// The days whose date texts these are; none when a date is no day of the class.
DayRange DaysFromTo(const std::string& start, const std::string& end);

// A student who came from elsewhere may lack places for figures of the class's periods.
void MakeRoomForSummaries(Student& student);

// Adds a period at the end of the class, and its place to the lists of every student.
AttendanceSummary& AddSummary();

// The number that a new range summary takes: one more than that of the last one that stands.
i16 NextRangeNumber();

// Takes a period out. Lists keep their length, and what stood last stays behind the counted ones.
void DeleteSummary(int index);

}  // namespace tallyroll
