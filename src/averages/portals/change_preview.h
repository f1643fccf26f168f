// SPDX-License-Identifier: GPL-3.0-or-later
// What a change of weights, points or rounding would make of the averages, before it is taken.
#pragma once

#include <functional>
#include <vector>

#include "averages/rounding.h"

namespace tallyroll {

struct ChangedAverage {
  i16 student = 0;
  bool had = false, has = false;  // an average that could be computed
  Currency before, after;         // rounded to two decimals
  FinalGrade grade_before, grade_after;

  bool GradeChanges() const;
  bool Changes() const { return had != has || before != after || GradeChanges(); }
};

// Every student of the class in work, those first whose final grade changes. `as_before` puts the
// class into the state that counts as the old one, `change` into the new one; the class then is as
// it was.
std::vector<ChangedAverage> AveragesOfChange(const std::function<void()>& as_before,
                                             const std::function<void()>& change);

// What the Preview Change Portal shows; set from the press of a button to its end.
extern std::vector<ChangedAverage> PreviewedChange;

// Shows the Portal.
void PreviewChange(const std::function<void()>& as_before, const std::function<void()>& change);

}  // namespace tallyroll
