// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/rounding.h"

#include <cmath>

#include "base/number_text.h"
#include "base/run_time_error.h"

namespace tallyroll {
namespace {

constexpr i16 kSkipRounding = 1;
constexpr std::size_t kLastMinimum = 12;
constexpr Currency kHalf = Currency::FromScaled(5000);
constexpr Currency kSmallest = Currency::FromScaled(1);
constexpr Currency kLowAverage = Currency::FromScaled(40'0000);
constexpr float kLargestMinimum = 9e14f;  // that Currency holds

double TowardMinusInfinity(Currency value) {
  constexpr std::int64_t kUnit = 10000;
  const std::int64_t rest = value.scaled() % kUnit;
  const std::int64_t whole = value.scaled() / kUnit - (rest < 0 ? 1 : 0);
  return static_cast<double>(whole);
}

// A half goes up.
Currency ToTwoDecimals(Currency average) {
  const Currency hundredfold = Currency::FromWhole(100) * average;
  return Currency::FromDouble(TowardMinusInfinity(hundredfold + kHalf) / 100);
}

// A minimum is read to the four decimals of an average, so that 92.3 is reached by 92.3, which no
// Single holds exactly. One beyond Currency, from a damaged file, is compared as it is.
bool Reaches(Currency value, float minimum) {
  if (!(std::abs(minimum) < kLargestMinimum)) return value.ToDouble() >= double{minimum};
  return value >= Currency::FromDouble(double{minimum});
}

void TellMinimum(AverageListener& listener, StepRule rule, Currency value, std::size_t row,
                 float minimum) {
  const bool shown = std::abs(minimum) < kLargestMinimum;
  listener.Take({.rule = rule,
                 .weight = shown ? Currency::FromDouble(double{minimum}) : Currency(),
                 .before = value,
                 .row = row});
}

// The rows are tried from the top; nothing asks that the minimums fall.
std::size_t FirstRowReached(Currency value, AverageListener* listener) {
  const Class& c = Current();
  const bool known = c.RoundScale >= 0 && static_cast<std::size_t>(c.RoundScale) < 5;
  const auto& scale = c.RoundTable[known ? static_cast<std::size_t>(c.RoundScale) : 0];
  std::size_t row = 0;
  while (row <= kLastMinimum && !Reaches(value, scale[row])) {
    if (listener) TellMinimum(*listener, StepRule::kMinimumMissed, value, row, scale[row]);
    ++row;
  }
  if (listener && row <= kLastMinimum)
    TellMinimum(*listener, StepRule::kMinimumReached, value, row, scale[row]);
  if (listener && row > kLastMinimum)
    listener->Take({.rule = StepRule::kNoMinimum, .before = value, .row = row});
  return row;
}

// The whole number plays no part where a table of minimums decides.
void TellRounding(AverageListener& listener, Currency average, i16 whole) {
  listener.Take({.rule = StepRule::kTwoDecimals, .before = ExactAverage, .after = average});
  if (average > kLowAverage && Current().RoundMode != kSkipRounding) return;
  listener.Take(
      {.rule = StepRule::kWholeNumber, .before = average, .after = Currency::FromWhole(whole)});
}

FinalGrade GradeOf(Currency average, i16 whole, AverageListener* listener) {
  if (average <= kLowAverage) {
    if (listener)
      listener->Take({.rule = StepRule::kLowAverage,
                      .before = average,
                      .after = Currency::FromWhole(whole),
                      .row = kLowAverageLabel});
    const ShortText number = SignedNumberText(whole);
    return {number, number, kLowAverageLabel};
  }
  const bool skip = Current().RoundMode == kSkipRounding;
  const std::size_t row = FirstRowReached(skip ? Currency::FromWhole(whole) : average, listener);
  const int value = skip ? whole : FinalValues[row];
  if (listener)
    listener->Take({.rule = StepRule::kFinalGrade,
                    .before = average,
                    .after = Currency::FromWhole(value),
                    .row = row});
  return {PlainNumberText(value), SignedNumberText(value), row};
}

}  // namespace

std::string FinalGrade::Text() const {
  const std::string_view between = label == kLowAverageLabel ? "" : " ";
  return number.str().append(between).append(FinalLabels[label]);
}

AverageError RoundedGrade(FinalGrade& grade, AverageListener* listener) {
  Class& c = Current();
  try {
    if (CurrentStudent < 1 || CurrentStudent > UpperBound(c.Students)) {
      throw RunTimeError{kErrorSubscript};
    }
    const Currency average = ToTwoDecimals(ExactAverage);
    // The smallest addition makes every .50 go up.
    const i16 whole = (average + kSmallest).ToWhole16();
    if (listener) TellRounding(*listener, average, whole);
    grade = GradeOf(average, whole, listener);
    ExactAverage = average;
  } catch (const RunTimeError& fault) {
    return {fault.number, CurrentStudent, 0};
  }
  auto& marks = c.Students[static_cast<std::size_t>(CurrentStudent)].Marks;
  if (!marks.empty()) marks[0] = grade.mark;
  return {};
}

AverageError AverageStudent(StudentAverage& student, AverageListener* listener) {
  const TypeSums type_weights = Current().TypeWeights;
  const Currency before = ExactAverage;
  student = StudentAverage();
  AverageError error = ComputeAverage(student.points, student.totals, listener);
  if (error) return error;
  student.computed = ExactAverage;
  error = RoundedGrade(student.grade, listener);
  student.exact = ExactAverage;
  if (!error) return error;
  student = StudentAverage();
  Current().TypeWeights = type_weights;
  ExactAverage = before;
  return error;
}

}  // namespace tallyroll
