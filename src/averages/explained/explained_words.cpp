// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/explained/explained_words.h"

#include "base/number_text.h"
#include "base/text.h"

namespace tallyroll {
namespace {

constexpr i16 kRoundsToWhole = 1;  // RoundMode

std::string Number(Currency value) {
  return PlainNumberText(value);
}

std::string NameOfType(std::size_t type) {
  TypeTexts names;
  MakeTypeNames(names);
  return std::string(Trim(names[type]));
}

std::string TitleOf(int grade) {
  if (grade < 1) return "a grade";
  return "\"" + std::string(Trim(Current().Instruments[static_cast<std::size_t>(grade)].title)) +
         "\"";
}

bool ByPoints() {
  return Current().Method == 2;
}
bool ByPointsAndTypes() {
  return Current().Method == 3;
}
bool ByTypes() {
  return Current().Method == 1;
}

std::string DividedInWords(const AverageStep& step) {
  if (ByPoints() || ByPointsAndTypes())
    return "Points earned: " + Number(step.before) + " of " + Number(step.weight) +
           " possible. In percent: " + Number(step.after) + ".";
  const std::string what =
      ByTypes() ? "What the types count adds up to " : "What the grades count adds up to ";
  return what + Number(step.before) + ", of a weight of " + Number(step.weight) +
         ". Of 100 that is " + Number(step.after) + ".";
}

std::string NothingInWords() {
  if (ByPoints()) return "No points were possible, so the average is 0.";
  if (ByPointsAndTypes())
    return "Nothing was earned in a type with a weight, so the average is 0. Extra credit alone "
           "earns nothing.";
  return "Less than 1 of the weight of 100 is left, so the average is 0. Extra credit alone earns "
         "nothing.";
}

std::string DroppedInWords(const AverageStep& step) {
  const std::string of = Current().AverageFlag2 ? "the lowest of all" : "the lowest of its type";
  return TitleOf(step.grade) + " is dropped: at " + Number(step.percent) + " percent it is " + of +
         ". The sum goes from " + Number(step.before) + " to " + Number(step.after) + ".";
}

std::string LeftOverInWords(const AverageStep& step) {
  return NameOfType(step.type) + " has no grade that counts: its weight of " + Number(step.weight) +
         " leaves the " + Number(step.before) + ", " + Number(step.after) +
         " remain for the others.";
}

// Empty for a step that is told elsewhere.
std::string SumStepInWords(const AverageStep& step) {
  switch (step.rule) {
    case StepRule::kPossible:
      return "The grades that count add up to " + Number(step.after) + " points.";
    case StepRule::kDropped:
      return DroppedInWords(step);
    case StepRule::kNoneDropped:
      return TitleOf(step.grade) +
             " stands as the lowest grade, since it was left out: no other grade is dropped.";
    case StepRule::kTypeEmpty:
      return LeftOverInWords(step);
    case StepRule::kDivisorKept:
      return "Weights are not redistributed: " + Number(step.after) + " divides, not " +
             Number(step.before) + ".";
    case StepRule::kDivided:
      return DividedInWords(step);
    case StepRule::kShared:
      return "The weighted points are " + Number(step.before) + " of " + Number(step.weight) +
             ". Of the " + Number(step.most) + " points that were possible that is " +
             Number(step.after) + ".";
    case StepRule::kNothingToWeigh:
      return NothingInWords();
    case StepRule::kExtraAdded:
      return "Extra credit adds " + Number(step.part) + ": " + Number(step.after) + ".";
    case StepRule::kAverage:
      return "The average is " + Number(step.after) + ".";
    default:
      return {};
  }
}

// "90 (A-/EX/4.0)"; under whole numbers the letter stands alone, since the number is the average.
std::string GradeOfRow(std::size_t row) {
  const std::string label(Trim(FinalLabels[row]));
  return Current().RoundMode == kRoundsToWhole ? label
                                               : PlainNumberText(FinalValues[row]) + " " + label;
}

std::string MinimumInWords(const AverageStep& reached, const AverageStep* missed) {
  std::string text = Number(reached.before) + " reaches the minimum of " + Number(reached.weight) +
                     " for " + GradeOfRow(reached.row);
  if (missed)
    text += ", but not that of " + Number(missed->weight) + " for " + GradeOfRow(missed->row);
  return text + ".";
}

}  // namespace

std::string NoteOfStep(const AverageStep& step) {
  switch (step.rule) {
    case StepRule::kZero:
      return "counts as 0 and is never dropped";
    case StepRule::kExtraMark:
      return "extra credit";
    case StepRule::kLeftOut:
      if (ByPoints()) return "left out; its points are not asked for";
      return ByTypes() || ByPointsAndTypes() ? "left out"
                                             : "left out; its weight goes to the others";
    case StepRule::kExtraLeftOut:
      return "extra credit, left out";
    case StepRule::kNotUsed:
      return "does not count";
    case StepRule::kNoPart:
      return "its type has no weight";
    case StepRule::kDropped:
      return Current().AverageFlag2 ? "dropped, the lowest of all"
                                    : "dropped, the lowest of its type";
    case StepRule::kAbsenceLowest:
      return "stands as the lowest of its type";
    default:
      return {};
  }
}

std::vector<std::string> SumInWords(const ExplainedAverage& explained) {
  std::vector<std::string> sentences;
  for (const AverageStep& step : explained.steps)
    if (std::string sentence = SumStepInWords(step); !sentence.empty())
      sentences.push_back(std::move(sentence));
  return sentences;
}

std::vector<std::string> RoundingInWords(const ExplainedAverage& explained) {
  std::vector<std::string> sentences;
  if (const AverageStep* step = explained.Last(StepRule::kTwoDecimals))
    sentences.push_back("Rounded to two decimals, a half up: " + Number(step->before) +
                        " becomes " + Number(step->after) + ".");
  if (const AverageStep* step = explained.Last(StepRule::kWholeNumber))
    sentences.push_back("Rounded to the whole number, a half up: " + Number(step->before) +
                        " becomes " + Number(step->after) + ".");
  if (const AverageStep* step = explained.Last(StepRule::kMinimumReached))
    sentences.push_back(MinimumInWords(*step, explained.Last(StepRule::kMinimumMissed)));
  if (const AverageStep* step = explained.Last(StepRule::kNoMinimum))
    sentences.push_back(Number(step->before) + " reaches no minimum.");
  if (explained.Last(StepRule::kLowAverage))
    sentences.push_back("An average of 40 or less has no letter.");
  return sentences;
}

}  // namespace tallyroll
