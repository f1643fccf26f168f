// SPDX-License-Identifier: GPL-3.0-or-later
// The lowest grades, of which one a type, or one in all, is dropped.
#pragma once

#include "averages/engine/average_listener.h"
#include "grades/type_totals.h"

namespace tallyroll {

// What stands in TypeWeights: the lowest grade of the type may be dropped, or not.
inline constexpr Currency kMayDrop = Currency::FromScaled(2'0000);
inline constexpr Currency kNoDrop = Currency::FromScaled(1'0000);
// The sum of a type that holds no grade.
inline constexpr Currency kNoGrade = Currency::FromScaled(-1'0000);

// The lowest percent of a type before a grade of it was looked at: none is chosen from here on.
inline constexpr Currency kNoLowest = Currency::FromScaled(1000'0000);
// The lowest percent of a type in which a left-out mark stands as the lowest.
inline constexpr Currency kLeftOutIsLowest = Currency::FromScaled(-50'0000);

// Lays the drop flag on every type but extra credit, which loses it, for the choice of a single
// lowest grade.
void FlagEveryType(TypeSums& type_weights);

// Leaves the drop flag on the one type whose lowest percent is least; the earlier on a tie. Where
// a left-out mark stands as the lowest no type keeps it: the absence is what was dropped.
void PickSingleLowestType(const TypeSums& lowest, TypeSums& type_weights,
                          AverageListener* listener = nullptr);

}  // namespace tallyroll
