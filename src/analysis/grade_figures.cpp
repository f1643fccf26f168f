// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/grade_figures.h"

#include <algorithm>
#include <cmath>

#include "averages/engine/arithmetic.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

const Instrument& GradeAt(int grade) {
  return Current().Instruments[static_cast<std::size_t>(grade)];
}

// Hands each mark that counts on.
template <typename Visitor>
void ForEachCountedMark(int grade, Visitor&& visit) {
  const Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i) {
    const std::string_view mark = MarkOf(c.Students[static_cast<std::size_t>(i)], grade);
    if (!IsAbsence(mark)) visit(mark);
  }
}

struct Sums {
  Currency sum, squares;
  Currency lowest = Currency::FromWhole(10000);
  Currency highest = Currency::FromWhole(-10000);
  int counted = 0, passed = 0;
};

Sums SumUp(int grade) {
  const Currency passing = LeadingCurrency(PassingGrade(GradeAt(grade)));
  Sums sums;
  ForEachCountedMark(grade, [&](std::string_view mark) {
    const Currency value = GradeValue(mark);
    sums.highest = std::max(sums.highest, value);
    sums.lowest = std::min(sums.lowest, value);
    sums.sum += value;
    if (value >= passing) ++sums.passed;
    sums.squares += value * value;
    ++sums.counted;
  });
  return sums;
}

i16 Narrowed(int value) {
  return static_cast<i16>(value);
}

Currency AverageOf(const Sums& sums) {
  const double hundredfold = Divided(sums.sum.ToDouble(), sums.counted) * 100;
  return Currency::FromDouble(RoundToInt16(hundredfold) / 100.0);
}

// From the sum of the squares: near to zero the roundings may leave a negative difference, of which
// there is no root.
double DeviationOf(const Sums& sums) {
  const Currency mean_part =
      Currency::FromDouble(Divided((sums.sum * sums.sum).ToDouble(), sums.counted));
  const double variance = (sums.squares - mean_part).ToDouble() / sums.counted;
  const Currency deviation = Currency::FromDouble(std::sqrt(variance));  // not a number overflows
  return Hundredfold(deviation).ToWhole16() / 100.0;
}

double Between(const std::vector<Currency>& sorted, double share) {
  const double place = share * static_cast<double>(sorted.size() - 1);
  const auto below = static_cast<std::size_t>(place);
  const std::size_t above = std::min(below + 1, sorted.size() - 1);
  const double low = sorted[below].ToDouble(), high = sorted[above].ToDouble();
  return low + (high - low) * (place - static_cast<double>(below));
}

}  // namespace

bool IsAbsence(std::string_view mark) {
  return KindOfMark(TrimRight(mark)) != MarkKind::kGraded;
}

GradeHead HeadOfGrade(const Instrument& grade) {
  return {std::string(TrimRight(grade.title)), grade.code, PassingGrade(grade)};
}

std::optional<GradeFigures> FiguresOfGrade(int grade) {
  try {
    const Sums sums = SumUp(grade);
    GradeFigures figures;
    figures.present = Narrowed(sums.counted);
    figures.absent = Narrowed(Current().NumStudents - sums.counted);
    figures.average = AverageOf(sums);
    figures.deviation = DeviationOf(sums);
    figures.passed = Narrowed(sums.passed);
    figures.failed = Narrowed(sums.counted - sums.passed);
    figures.perpassed = RoundToInt16(sums.passed * 100.0 / sums.counted);
    figures.perfailed = Narrowed(100 - figures.perpassed);
    figures.lowest = sums.lowest;
    figures.highest = sums.highest;
    return figures;
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

int RangeOfPercent(int percent) {
  if (percent < 0) return 0;
  if (percent < 55) return 9;
  if (percent < 65) return 8;
  return std::max(1, 7 - (percent - 65) / 5);
}

int PercentOfMark(std::string_view mark, int mvalue) {
  try {
    return RoundToInt16(Divided(Hundredfold(GradeValue(mark)).ToDouble(), mvalue));
  } catch (const RunTimeError& error) {
    if (error.number == kErrorDivisionByZero) return 0;
    return LeadingNumber(mark) < 0 ? -32768 : 32767;
  }
}

RangeCounts CountRanges(int grade) {
  RangeCounts counts{};
  const int mvalue = GradeAt(grade).mvalue;
  ForEachCountedMark(grade, [&](std::string_view mark) {
    ++counts[static_cast<std::size_t>(RangeOfPercent(PercentOfMark(mark, mvalue)))];
  });
  counts[0] = 0;
  return counts;
}

GradeQuartiles QuartilesOf(std::vector<Currency> values) {
  if (values.empty()) return {};
  std::sort(values.begin(), values.end());
  return {values.size(), Between(values, 0.25), Between(values, 0.5), Between(values, 0.75)};
}

GradeQuartiles QuartilesOfGrade(int grade) {
  std::vector<Currency> values;
  ForEachCountedMark(grade, [&](std::string_view mark) {
    try {
      values.push_back(GradeValue(mark));
    } catch (const RunTimeError&) {  // a number beyond all scores has no place among them
      return;
    }
  });
  return QuartilesOf(std::move(values));
}

}  // namespace tallyroll
