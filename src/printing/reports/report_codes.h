// SPDX-License-Identifier: GPL-3.0-or-later
// The reports that more than their own writer must tell apart, by code. reports.h lists them all.
#pragma once

#include <algorithm>
#include <initializer_list>

namespace tallyroll {

inline constexpr int kFullGrades = 1;
inline constexpr int kRollBook = 3, kRollBookTitles = 4, kMonths = 8, kOneSummary = 9;
inline constexpr int kOneGrade = 10, kFullClass = 11, kAveragesOfOne = 12, kGradesOfOne = 13;
inline constexpr int kExplainedAverage = 25;

inline bool IsOneOf(int code, std::initializer_list<int> codes) {
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

}  // namespace tallyroll
