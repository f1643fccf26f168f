// SPDX-License-Identifier: GPL-3.0-or-later
// The working values of the averages that outlive one student.
#pragma once

#include <array>
#include <optional>

#include "store/program_state.h"

namespace tallyroll {

// The average of CurrentStudent: set by the engine, rounded to two decimals by RoundedGrade.
extern Currency ExactAverage;

// By slot: the points possible of the class without extra credit, for method 2; nothing for a class
// of more than 32767 points, which has no average by points. Of its own for each slot, so that one
// class never changes the averages of another.
//
// Set when the Points Portal is accepted, and made at opening from what the file holds. A class
// that is opened again has the total that was accepted, unless the flags were not saved then, or a
// maximum score was changed after.
extern std::array<std::optional<i16>, kClassSlots> TotalPossible;

// Makes TotalPossible of the current class by what counts in it, as the Points Portal sums it.
void MakeTotalPossible();

// Puts everything above to its start value.
void ResetAverages();

}  // namespace tallyroll
