// SPDX-License-Identifier: GPL-3.0-or-later
// The figures of one grade of the current class, and its marks counted into ranges.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/currency.h"
#include "grades/mark_notes.h"
#include "store/records.h"

namespace tallyroll {

// "NON", "CUT", "EXC", "NEW" and "ABS" are students who were not present; every other text of a
// mark is a grade, an empty one too.
bool IsAbsence(std::string_view mark);

struct GradeHead {
  std::string title;
  std::string code;
  std::string lpassv;
};
GradeHead HeadOfGrade(const Instrument& grade);

struct GradeFigures {
  i16 present = 0, absent = 0;
  i16 passed = 0, failed = 0;
  i16 perpassed = 0, perfailed = 0;
  Currency lowest, highest, average;
  double deviation = 0;
};

// Nothing when the arithmetic fails: nobody was present, a figure does not fit in 16 bits, or the
// sums are so near to each other that their difference has the wrong sign.
std::optional<GradeFigures> FiguresOfGrade(int grade);

// The nine ranges of percents, from the highest down: 1 to 9. The eighth is twice as wide.
inline constexpr int kRanges = 9;
inline constexpr std::array<std::string_view, kRanges + 1> kRangeHeads = {
    "", "95-100", "90-94", "85-89", "80-84", "75-79", "70-74", "65-69", "55-64", "0-54"};
inline constexpr std::array<std::string_view, kRanges + 1> kRangeTableHeads = {
    "",         "95 - 100", "90 - 94 ", "85 - 89 ", "80 - 84 ",
    "75 - 79 ", "70 - 74 ", "65 - 69 ", "55 - 64 ", "0  - 54 "};
using RangeCounts = std::array<int, kRanges + 1>;

// 0 for a negative percent, which is in no range.
int RangeOfPercent(int percent);

// A mark's percent of the maximum, rounded to a whole number, a tie to the even one. What 16 bits
// cannot hold is as much as they can.
int PercentOfMark(std::string_view mark, int mvalue);
// Those of the students who were present.
RangeCounts CountRanges(int grade);

// From the marks themselves, never from ranges: the middle one, and the quartiles by linear
// interpolation between the two marks around a place (type 7 of Hyndman and Fan).
struct GradeQuartiles {
  std::size_t n = 0;
  double lower = 0, median = 0, upper = 0;
};
GradeQuartiles QuartilesOf(std::vector<Currency> values);
// Of the students who were present; a mark whose value does not fit is left out.
GradeQuartiles QuartilesOfGrade(int grade);

}  // namespace tallyroll
