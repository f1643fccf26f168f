// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/explained/explained_average.h"

#include <algorithm>

#include "averages/explained/untouched_class.h"

namespace tallyroll {
namespace {

class StepKeeper : public AverageListener {
 public:
  explicit StepKeeper(std::vector<AverageStep>& steps) : steps_(steps) {}
  void Take(const AverageStep& step) override { steps_.push_back(step); }

 private:
  std::vector<AverageStep>& steps_;
};

// A drop names the grade that was the lowest of the type when all were looked at.
void NameDroppedGrades(std::vector<AverageStep>& steps) {
  std::array<int, kGradeTypes + 1> lowest{};
  for (AverageStep& step : steps) {
    if (step.rule == StepRule::kLowest || step.rule == StepRule::kAbsenceLowest)
      lowest[step.type] = step.grade;
    if (step.rule == StepRule::kDropped || step.rule == StepRule::kNoneDropped)
      step.grade = lowest[step.type];
  }
}

}  // namespace

const AverageStep* ExplainedAverage::Last(StepRule rule) const {
  const auto found = std::find_if(steps.rbegin(), steps.rend(),
                                  [rule](const AverageStep& step) { return step.rule == rule; });
  return found == steps.rend() ? nullptr : &*found;
}

ExplainedAverage ExplainAverage(i16 student) {
  const UntouchedClass untouched(student);
  ExplainedAverage explained{.student = student, .error = {}, .steps = {}, .result = {}};
  StepKeeper keeper(explained.steps);
  explained.error = AverageStudent(explained.result, &keeper);
  NameDroppedGrades(explained.steps);
  return explained;
}

ExplainedAverage ExplainAverageWith(i16 student, int grade, std::string_view mark) {
  const OtherMark other(student, grade, mark);
  return ExplainAverage(student);
}

std::string_view NameOfRule(StepRule rule) {
  switch (rule) {
    case StepRule::kPossible:
      return "points possible";
    case StepRule::kCounted:
      return "counted";
    case StepRule::kZero:
      return "counted as 0";
    case StepRule::kExtraMark:
      return "extra credit";
    case StepRule::kLeftOut:
      return "left out";
    case StepRule::kExtraLeftOut:
      return "extra credit left out";
    case StepRule::kNotUsed:
      return "does not count";
    case StepRule::kNoPart:
      return "type without weight";
    case StepRule::kLowest:
      return "lowest so far";
    case StepRule::kAbsenceLowest:
      return "absence as lowest";
    case StepRule::kDropped:
      return "dropped";
    case StepRule::kNoneDropped:
      return "none dropped";
    case StepRule::kTypeWeighed:
      return "type weighed";
    case StepRule::kTypeBase:
      return "type possible";
    case StepRule::kTypeExtra:
      return "extra credit weighed";
    case StepRule::kTypeEmpty:
      return "type without grades";
    case StepRule::kDivisorKept:
      return "not redistributed";
    case StepRule::kDivided:
      return "divided";
    case StepRule::kShared:
      return "brought to scale";
    case StepRule::kNothingToWeigh:
      return "nothing to divide by";
    case StepRule::kExtraAdded:
      return "extra credit added";
    case StepRule::kAverage:
      return "average";
    case StepRule::kTwoDecimals:
      return "rounded to two decimals";
    case StepRule::kWholeNumber:
      return "rounded to the whole number";
    case StepRule::kLowAverage:
      return "40 or less";
    case StepRule::kMinimumMissed:
      return "minimum missed";
    case StepRule::kMinimumReached:
      return "minimum reached";
    case StepRule::kNoMinimum:
      return "no minimum reached";
    case StepRule::kFinalGrade:
      return "final grade";
  }
  return "";
}

}  // namespace tallyroll
