// SPDX-License-Identifier: GPL-3.0-or-later
// What the steps of an average say in words.
#pragma once

#include <string>
#include <vector>

#include "averages/explained/explained_average.h"

namespace tallyroll {

// What a step says beside its grade; empty where the figures say it all.
std::string NoteOfStep(const AverageStep& step);

// From the tables to the exact average, and from there to the final grade: a sentence a step.
std::vector<std::string> SumInWords(const ExplainedAverage& explained);
std::vector<std::string> RoundingInWords(const ExplainedAverage& explained);

}  // namespace tallyroll
