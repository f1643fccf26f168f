// SPDX-License-Identifier: GPL-3.0-or-later
// Who wants to know how an average came about is told each step while it is taken, so that nothing
// that is explained was computed a second time. Without a listener a step costs one test.
#pragma once

#include "base/currency.h"

namespace tallyroll {

// What a step did. `before` and `after` are the running figure that the step moved.
enum class StepRule {
  kPossible,        // the points possible of the class; method 2 begins with them
  kCounted,         // a mark with its value: moves the sum that it counts in
  kZero,            // a special mark that counts as 0 and is never dropped
  kExtraMark,       // a mark of extra credit
  kLeftOut,         // a mark that has no part; moves what the average is divided by
  kExtraLeftOut,    // the same of extra credit, which no divisor holds
  kNotUsed,         // the grade does not count in the points
  kNoPart,          // the type of the grade has no weight, or there is no such type
  kLowest,          // the mark is the lowest of its type so far
  kAbsenceLowest,   // a left-out mark stands as the lowest of its type
  kDropped,         // the lowest of a type leaves the sum
  kNoneDropped,     // one was to be dropped in all, and an absence stands as the lowest
  kTypeWeighed,     // what a type gives at its weight
  kTypeBase,        // what it could have given; method 3
  kTypeExtra,       // what extra credit gives at its weight
  kTypeEmpty,       // a type without a grade takes its weight out of the divisor
  kDivisorKept,     // the divisor stays whole: weights are not redistributed
  kDivided,         // the sum, of the divisor in `weight`, in percent
  kShared,          // the weighted points, brought to the scale of what was possible
  kNothingToWeigh,  // nothing is left to divide by: there is no average
  kExtraAdded,      // extra credit, on top
  kAverage,         // the exact average
  kTwoDecimals,     // it is rounded to two decimals, a half up
  kWholeNumber,     // and to the whole number
  kLowAverage,      // 40 or less: no minimum is asked for
  kMinimumMissed,   // a minimum of the rounding scale, in `weight`, that is not reached
  kMinimumReached,  // the first that is reached; `row` counts the scale
  kNoMinimum,       // none is reached
  kFinalGrade,      // the number that stands on the report
};

struct AverageStep {
  StepRule rule = StepRule::kCounted;
  int grade = 0;         // Instruments index; 0 for a step on no single grade
  std::size_t type = 0;  // 1 to 26; 0 for a step on no single type
  Currency value{};      // of the mark, or the sum of a type
  Currency most{};       // what it is of: the mvalue, or the sum of them
  Currency percent{};
  Currency weight{};  // or the divisor, or the minimum
  Currency part{};    // what the step adds or takes
  Currency before{};
  Currency after{};
  std::size_t row = 0;  // of the rounding scale
};

class AverageListener {
 public:
  virtual ~AverageListener() = default;
  virtual void Take(const AverageStep& step) = 0;
};

}  // namespace tallyroll
