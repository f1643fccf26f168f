// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/explained/needed_marks.h"

#include <algorithm>

#include "averages/explained/untouched_class.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/grade_types.h"

namespace tallyroll {
namespace {

constexpr std::size_t kRowsWithMinimum = 13;
constexpr Currency kQuarter = Currency::FromScaled(2500);
constexpr Currency kHundred = Currency::FromScaled(100'0000);
constexpr Currency kThousand = Currency::FromScaled(1000'0000);

// A mark has five characters: 99.75, then 100.5, then 1001.
Currency NextMark(Currency mark) {
  if (mark < kHundred) return mark + kQuarter;
  return mark + (mark < kThousand ? kQuarter + kQuarter : Currency::FromWhole(1));
}

std::vector<int> GradesWith(const ExplainedAverage& explained, StepRule rule) {
  std::vector<int> grades;
  for (const AverageStep& step : explained.steps)
    if (step.rule == rule) grades.push_back(step.grade);
  return grades;
}

std::vector<std::size_t> TypesWithout(const ExplainedAverage& explained) {
  std::vector<std::size_t> types;
  for (const AverageStep& step : explained.steps)
    if (step.rule == StepRule::kTypeEmpty) types.push_back(step.type);
  return types;
}

std::string Titles(const std::vector<int>& grades) {
  std::string text;
  for (const int grade : grades) {
    if (!text.empty()) text += ", ";
    if (grade < 1) continue;
    const Instrument& instrument = Current().Instruments[static_cast<std::size_t>(grade)];
    text += "\"" + std::string(Trim(instrument.title)) + "\"";
  }
  return text.empty() ? "no grade" : text;
}

template <typename Item>
bool Holds(const std::vector<Item>& items, const Item& item) {
  return std::find(items.begin(), items.end(), item) != items.end();
}

}  // namespace

std::vector<NeededMark> MarksNeeded(i16 student, int grade) {
  std::vector<NeededMark> needed(kRowsWithMinimum);
  for (std::size_t row = 0; row < needed.size(); ++row) needed[row].row = row;
  const Currency most =
      Currency::FromWhole(Current().Instruments[static_cast<std::size_t>(grade)].mvalue);
  const UntouchedClass untouched(student);
  OtherMark tried(student, grade, "0");
  std::size_t open = needed.size();  // the rows ahead of it are not reached yet
  for (Currency mark; mark <= most && open > 0; mark = NextMark(mark)) {
    tried.Set(PlainNumberText(mark));
    StudentAverage average;
    if (AverageStudent(average)) continue;
    while (open > average.grade.label) needed[--open].mark = mark;
  }
  return needed;
}

std::string WhyLower(const ExplainedAverage& before, const ExplainedAverage& after, int grade) {
  if (before.error || after.error || after.result.computed >= before.result.computed) return {};
  if (Holds(GradesWith(before, StepRule::kLeftOut), grade) &&
      !Holds(GradesWith(after, StepRule::kLeftOut), grade))
    return "The grade counts now; before it was left out.";
  const std::vector<int> dropped = GradesWith(before, StepRule::kDropped);
  const std::vector<int> drops = GradesWith(after, StepRule::kDropped);
  if (dropped != drops)
    return "Dropped is now " + Titles(drops) + ", before it was " + Titles(dropped) + ".";
  if (TypesWithout(before) != TypesWithout(after))
    return "The weights are redistributed in another way: a type has no grade that counts.";
  if (Holds(drops, grade)) return Titles({grade}) + " is itself dropped, with all that it counts.";
  const AverageStep* divided = after.Last(StepRule::kDivided);
  if (divided && divided->weight < Currency())
    return "The weights add up to more than 100, so less than nothing is left to divide by.";
  return {};
}

}  // namespace tallyroll
