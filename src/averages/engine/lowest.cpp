// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/engine/lowest.h"

namespace tallyroll {

void FlagEveryType(TypeSums& type_weights) {
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    type_weights[t] = t == kExtraCreditType ? kNoDrop : kMayDrop;
  }
}

void PickSingleLowestType(const TypeSums& lowest, TypeSums& type_weights,
                          AverageListener* listener) {
  Currency best = kNoLowest;
  std::size_t type = 0;
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    type_weights[t] = kNoDrop;
    if (lowest[t] < best) {
      best = lowest[t];
      type = t;
    }
  }
  if (best > kLeftOutIsLowest && type != 0) type_weights[type] = kMayDrop;
  if (listener && best == kLeftOutIsLowest)
    listener->Take({.rule = StepRule::kNoneDropped, .type = type});
}

}  // namespace tallyroll
