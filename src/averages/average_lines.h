// SPDX-License-Identifier: GPL-3.0-or-later
// The two lines that reports print for a student's average.
#pragma once

#include <functional>
#include <string_view>

#include "averages/engine/engine.h"

namespace tallyroll {

// Takes one line of a report, without a line end.
using LineWriter = std::function<void(std::string_view)>;

// Each rounds the average by RoundedGrade and writes its lines, or none after an arithmetic error.
// Under the methods 0 and 1 the first two take ExactAverage as the caller left it.
AverageError PrintAverageLines(const LineWriter& line);
// The same with an empty line ahead, for text files.
AverageError WriteAverageLines(const LineWriter& line);
// Computes the average by every method first.
AverageError PrintAverageAndCompute(const LineWriter& line, TypeTotals& totals);

}  // namespace tallyroll
