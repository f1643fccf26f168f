// SPDX-License-Identifier: GPL-3.0-or-later
// Grades counted and summed by their types.
#pragma once

#include <array>

#include "grades/grade_types.h"
#include "store/records.h"

namespace tallyroll {

using TypeCounts = std::array<i16, kGradeTypes + 1>;
using TypeSums = std::array<Currency, kGradeTypes + 1>;

// Over all Instruments of the current class: how many each type has, and the sum of their mvalue.
// `earned` stays empty. A grade whose code is no type's is not counted.
void ClassTotalsByType(TypeCounts& counts, TypeSums& earned, TypeSums& maxes);

// The same over the marks of CurrentStudent, with the sum of their values, without those that are
// left out. Returns 0, or 6 when a mark or a sum is beyond Currency: all three are empty then.
int StudentTotalsByType(TypeCounts& counts, TypeSums& earned, TypeSums& maxes);

}  // namespace tallyroll
