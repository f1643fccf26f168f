// SPDX-License-Identifier: GPL-3.0-or-later
// One student's average with the steps by which it came about.
#pragma once

#include <string_view>
#include <vector>

#include "averages/rounding.h"

namespace tallyroll {

struct ExplainedAverage {
  i16 student = 0;
  AverageError error;  // there is no average, and no step behind the one that failed counts
  std::vector<AverageStep> steps;
  StudentAverage result;

  // The last step of a rule; null where there was none.
  const AverageStep* Last(StepRule rule) const;
};

// Averages a student of the class in work by the engine itself and keeps what it tells. The class,
// CurrentStudent and ExactAverage stay as they were: looking at an average changes nothing.
ExplainedAverage ExplainAverage(i16 student);

// The same with another mark in one grade.
ExplainedAverage ExplainAverageWith(i16 student, int grade, std::string_view mark);

// A rule by its name, as the command line tells it.
std::string_view NameOfRule(StepRule rule);

}  // namespace tallyroll
