// SPDX-License-Identifier: GPL-3.0-or-later
// The working values of the averages that outlive one student.
#pragma once

#include "store/program_state.h"

namespace tallyroll {

// The average of CurrentStudent: set by the engine, rounded to two decimals by RoundedGrade.
extern Currency ExactAverage;

// The points possible of the class in work, without extra credit: what the grades that count add up
// to. Made afresh for each average, so that it follows every change of a grade. Throws RunTimeError
// for more than 32767 points: such a class has no average by points.
i16 TotalPossible();

// Puts everything above to its start value.
void ResetAverages();

}  // namespace tallyroll
