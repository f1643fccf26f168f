// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/average_lines.h"

#include "averages/rounding.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

bool IsPointMethod(i16 method) {
  return method == 2 || method == 3;
}

AverageError ComputePoints(Points& points, TypeTotals& totals) {
  return Current().Method == 2 ? AverageByPoints(points, totals)
                               : AverageByPointsAndTypes(points, totals);
}

// Exactly two decimals, a half going away from zero.
std::string TwoDecimals(Currency value) {
  const std::int64_t half = value.scaled() < 0 ? -50 : 50;
  const std::int64_t cents = (value.scaled() + half) / 100;
  std::string digits = PlainNumberText(cents < 0 ? -cents : cents);
  if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
  return (cents < 0 ? "-" : "") + digits.substr(0, digits.size() - 2) + "." +
         digits.substr(digits.size() - 2);
}

AverageError WriteLines(const LineWriter& line, const Points& points, bool blank_ahead) {
  FinalGrade grade;
  if (const AverageError error = RoundedGrade(grade)) return error;
  const std::string average = PlainNumberText(ExactAverage);
  if (blank_ahead) line("");
  if (IsPointMethod(Current().Method)) {
    line("TOTAL POINTS: " + TwoDecimals(points.earned) + "/" + PlainNumberText(points.possible) +
         "  AVERAGE = " + average);
  } else {
    line("AVERAGE IS: " + average);
  }
  line("ROUNDED AVERAGE/GRADE: " + grade.Text());
  return {};
}

AverageError LinesOf(const LineWriter& line, bool blank_ahead) {
  Points points;
  TypeTotals totals;
  if (IsPointMethod(Current().Method)) {
    if (const AverageError error = ComputePoints(points, totals)) return error;
  }
  return WriteLines(line, points, blank_ahead);
}

}  // namespace

AverageError PrintAverageLines(const LineWriter& line) {
  return LinesOf(line, false);
}

AverageError WriteAverageLines(const LineWriter& line) {
  return LinesOf(line, true);
}

AverageError PrintAverageAndCompute(const LineWriter& line, TypeTotals& totals) {
  Points points;
  const AverageError error =
      IsPointMethod(Current().Method) ? ComputePoints(points, totals) : ComputeAverage(totals);
  return error ? error : WriteLines(line, points, false);
}

}  // namespace tallyroll
