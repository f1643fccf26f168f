// SPDX-License-Identifier: GPL-3.0-or-later
// One grade of each of several classes, side by side. The passing grade is a whole number here, and
// the deviation is made from the distances to the mean: both differ from the figures of one grade.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/grade_figures.h"

namespace tallyroll {

struct ComparedGrade {
  int slot = 0;
  int grade = 0;
  std::string name;  // of the class
  // What stood there when it was chosen: the slot's file and the grade's title.
  std::string file = {}, title = {};
};

struct ComparedFigures {
  int present = 0, absent = 0, passed = 0, failed = 0;
  int perpassed = 0, perfailed = 0;
  bool too_large = false;  // a mark is beyond Currency: nobody can say who passed
  // Nothing where nobody was present, or where a number is beyond Currency.
  std::optional<Currency> lowest, highest, average;
  std::optional<double> deviation;
};

// The class is still open in its slot, and the grade stands where it stood.
bool StillThere(const ComparedGrade& compared);

ComparedFigures FiguresOf(const ComparedGrade& compared);
// The counts alone, summed.
ComparedFigures TotalsOf(const std::vector<ComparedFigures>& all);
RangeCounts RangesOf(const ComparedGrade& compared);

// The labels of a panel as they stand, and its figures in that order; what there is not is empty.
inline constexpr std::array<std::string_view, 10> kPanelLabels = {
    "Deviation ", "Average ", "# Passed ", "% Passed ",  "# Failed ",
    "% Failed ",  "Lowest ",  "Hightest ", "# Present ", "# Absent "};
inline constexpr std::string_view kTotalsPanel = "     Totals";
std::array<std::string, 10> PanelTexts(const ComparedFigures& figures);
std::array<std::string, 10> TotalsTexts(const ComparedFigures& totals);

// The heads of the table's ranges, from the lowest up.
inline constexpr std::array<std::string_view, kRanges> kComparedRanges = {
    "00-54", "55-64", "65-69", "70-74", "75-79", "80-84", "85-89", "90-94", "95-100"};

// The names of the classes in one line.
std::string JoinedNames(const std::vector<ComparedGrade>& compared);
// "1.   MATH.TYR:  Quiz 1 & Q1", or without the grade.
std::string ListedClass(std::size_t number, const ComparedGrade& compared);
std::string ListedTitle(std::size_t number, const ComparedGrade& compared);

}  // namespace tallyroll
