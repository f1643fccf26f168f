// SPDX-License-Identifier: GPL-3.0-or-later
// What the charts of grades show.
#pragma once

#include <string>
#include <vector>

#include "analysis/grade_figures.h"
#include "platform/chart.h"

namespace tallyroll {

// The heads of the ranges from the lowest up, as they stand below the points.
std::vector<std::string> RangeLabels();
// The counts from the lowest range up.
std::vector<double> RangeValues(const RangeCounts& counts);

// The nine ranges of a grade, from the lowest up. The values alone: each kind of chart brings its
// own texts.
void FillRanges(Chart& chart, int grade);
void MakeBarOrLine(Chart& chart, ChartKind kind);
void MakePie(Chart& chart);

// A dot a student above his range; answers the student of each.
std::vector<int> AddStudentDots(Chart& chart, int grade);

// The percents of a student in these grades, 0 for a special mark.
void FillProgress(Chart& chart, int student, const std::vector<int>& grades);
// Behind them the average percent of all who were present; a grade without any leaves a gap.
void AddClassLine(Chart& chart, const std::vector<int>& grades);

// Paints the chart on the printer in use: half a page wide, from a quarter of the page on.
void PrintChart(const Chart& chart, const std::vector<std::string>& lines_below = {});

}  // namespace tallyroll
