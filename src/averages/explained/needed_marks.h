// SPDX-License-Identifier: GPL-3.0-or-later
// What it would take: marks that a student has not got, tried by the engine itself.
#pragma once

#include <optional>
#include <vector>

#include "averages/explained/explained_average.h"

namespace tallyroll {

// What a final grade asks of one grade.
struct NeededMark {
  std::size_t row = 0;           // of FinalLabels
  std::optional<Currency> mark;  // the lowest that reaches the row or a better one; none does
};

// For the rows from the best to the last that has a minimum. Every mark is tried that can be typed
// from 0 to the most that the grade gives, in quarter points as far as five characters hold them.
std::vector<NeededMark> MarksNeeded(i16 student, int grade);

// By which rule an average is lower than before though the mark is higher; empty where no rule of
// its own made it so.
std::string WhyLower(const ExplainedAverage& before, const ExplainedAverage& after, int grade);

}  // namespace tallyroll
