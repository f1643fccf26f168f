// SPDX-License-Identifier: GPL-3.0-or-later
// The working values of the averages that outlive one student.
#pragma once

#include <array>

#include "store/program_state.h"

namespace tallyroll {

// The average of CurrentStudent: set by the engine, rounded to two decimals by RoundedGrade.
extern Currency ExactAverage;

// By slot: the points possible of the class without extra credit, for method 2. Set when the Points
// Portal is accepted, and made afresh at opening; of its own for each slot, so that one class never
// changes the averages of another.
extern std::array<i16, kClassSlots> TotalPossible;

// Makes TotalPossible of the current class by what counts in it, as the Points Portal sums it.
// Returns 0, or 6 for a class of more than 32767 points, whose total is 0 then.
int MakeTotalPossible();

// Puts everything above to its start value.
void ResetAverages();

}  // namespace tallyroll
