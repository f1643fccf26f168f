// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/compared_grades.h"

#include <algorithm>
#include <cmath>

#include "analysis/open_classes.h"
#include "averages/engine/arithmetic.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"

namespace tallyroll {
namespace {

const Instrument& GradeOf(const ComparedGrade& compared) {
  return Classes[static_cast<std::size_t>(compared.slot)]
      .Instruments[static_cast<std::size_t>(compared.grade)];
}

double PassingWhole(const Instrument& grade) {
  return std::nearbyint(LeadingNumber(PassingGrade(grade)));
}

std::vector<Currency> CountedValues(int grade) {
  const Class& c = Current();
  std::vector<Currency> values;
  for (int i = 1; i <= c.NumStudents; ++i) {
    const std::string_view mark = MarkOf(c.Students[static_cast<std::size_t>(i)], grade);
    if (!IsAbsence(mark)) values.push_back(GradeValue(mark));
  }
  return values;
}

void CountPresent(ComparedFigures& figures, int grade) {
  const Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i)
    ++(IsAbsence(MarkOf(c.Students[static_cast<std::size_t>(i)], grade)) ? figures.absent
                                                                         : figures.present);
}

// First the mean, then how far each grade is from it.
double DeviationFrom(Currency mean, const std::vector<Currency>& values) {
  Currency squares;
  for (const Currency value : values) squares += (value - mean) * (value - mean);
  return std::sqrt(squares.ToDouble() / static_cast<double>(values.size()));
}

double InHundredths(double value) {
  return std::nearbyint(value * 100) / 100;
}

void MakeFigures(ComparedFigures& figures, const Instrument& grade,
                 const std::vector<Currency>& values) {
  const double passing = PassingWhole(grade);
  figures.passed = static_cast<int>(std::count_if(
      values.begin(), values.end(), [&](Currency value) { return value.ToDouble() >= passing; }));
  figures.failed = figures.present - figures.passed;
  figures.perpassed = static_cast<int>(std::nearbyint(figures.passed * 100.0 / figures.present));
  figures.perfailed = 100 - figures.perpassed;
  figures.lowest = *std::min_element(values.begin(), values.end());
  figures.highest = *std::max_element(values.begin(), values.end());
  Currency sum;
  for (const Currency value : values) sum += value;
  // Rounded once, as where the grade stands alone: rounding the mean first would show another one.
  const double mean = Divided(sum.ToDouble(), figures.present);
  figures.average = Currency::FromDouble(InHundredths(mean));
  const double deviation = DeviationFrom(Currency::FromDouble(mean), values);
  figures.deviation = InHundredths(Currency::FromDouble(deviation).ToDouble());
}

template <typename Number>
std::string TextOf(const std::optional<Number>& number) {
  return number ? SignedNumberText(*number) : std::string();
}

std::string Count(const ComparedFigures& figures, int value) {
  return figures.too_large ? std::string() : SignedNumberText(value);
}

std::string Percent(const ComparedFigures& figures, int value) {
  return figures.present == 0 || figures.too_large ? std::string() : SignedNumberText(value) + " %";
}

}  // namespace

bool StillThere(const ComparedGrade& compared) {
  if (!IsOpen(compared.slot)) return false;
  const Class& c = Classes[static_cast<std::size_t>(compared.slot)];
  return c.FileName == compared.file && compared.grade >= 1 && compared.grade <= GradeCount(c) &&
         TrimRight(GradeOf(compared).title) == compared.title;
}

ComparedFigures FiguresOf(const ComparedGrade& compared) {
  const InClass in_class(compared.slot);
  ComparedFigures figures;
  CountPresent(figures, compared.grade);
  if (figures.present == 0) return figures;
  try {
    MakeFigures(figures, GradeOf(compared), CountedValues(compared.grade));
  } catch (const RunTimeError&) {  // who was present is counted; the rest can't be told
    figures.too_large = true;
  }
  return figures;
}

ComparedFigures TotalsOf(const std::vector<ComparedFigures>& all) {
  ComparedFigures totals;
  for (const ComparedFigures& each : all) {
    totals.present += each.present;
    totals.absent += each.absent;
    if (each.too_large) continue;
    totals.passed += each.passed;
    totals.failed += each.failed;
  }
  return totals;
}

RangeCounts RangesOf(const ComparedGrade& compared) {
  const InClass in_class(compared.slot);
  return CountRanges(compared.grade);
}

std::array<std::string, 10> PanelTexts(const ComparedFigures& figures) {
  return {TextOf(figures.deviation),
          TextOf(figures.average),
          Count(figures, figures.passed),
          Percent(figures, figures.perpassed),
          Count(figures, figures.failed),
          Percent(figures, figures.perfailed),
          TextOf(figures.lowest),
          TextOf(figures.highest),
          SignedNumberText(figures.present),
          SignedNumberText(figures.absent)};
}

std::array<std::string, 10> TotalsTexts(const ComparedFigures& totals) {
  return {"",
          "",
          SignedNumberText(totals.passed),
          "",
          SignedNumberText(totals.failed),
          "",
          "",
          "",
          SignedNumberText(totals.present),
          SignedNumberText(totals.absent)};
}

std::string JoinedNames(const std::vector<ComparedGrade>& compared) {
  std::string joined;
  for (const ComparedGrade& each : compared) joined += (joined.empty() ? "" : ", ") + each.name;
  return joined;
}

std::string ListedClass(std::size_t number, const ComparedGrade& compared) {
  return PlainNumberText(static_cast<std::int64_t>(number)) + ".   " + compared.name;
}

std::string ListedTitle(std::size_t number, const ComparedGrade& compared) {
  const Instrument& grade = GradeOf(compared);
  return ListedClass(number, compared) + ":  " + std::string(Trim(grade.title)) + " & " +
         std::string(Trim(grade.code));
}

}  // namespace tallyroll
