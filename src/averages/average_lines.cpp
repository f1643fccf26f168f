// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/average_lines.h"

#include "averages/rounding.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

bool IsPointMethod(i16 method) {
  return method == 2 || method == 3;
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

void PutLines(const LineWriter& line, const StudentAverage& student) {
  const std::string average = PlainNumberText(ExactAverage);
  const auto& [earned, possible] = student.points;
  if (IsPointMethod(Current().Method)) {
    line("TOTAL POINTS: " + TwoDecimals(earned) + "/" + PlainNumberText(possible) +
         "  AVERAGE = " + average);
  } else {
    line("AVERAGE IS: " + average);
  }
  line("ROUNDED AVERAGE/GRADE: " + student.grade.Text());
}

AverageError LinesOf(const LineWriter& line, bool blank_ahead) {
  StudentAverage student;
  const AverageError error =
      IsPointMethod(Current().Method) ? AverageStudent(student) : RoundedGrade(student.grade);
  if (error) return error;
  if (blank_ahead) line("");
  PutLines(line, student);
  return {};
}

}  // namespace

AverageError PrintAverageLines(const LineWriter& line) {
  return LinesOf(line, false);
}

AverageError WriteAverageLines(const LineWriter& line) {
  return LinesOf(line, true);
}

AverageError PrintAverageAndCompute(const LineWriter& line, TypeTotals& totals) {
  StudentAverage student;
  const AverageError error = AverageStudent(student);
  totals = student.totals;
  if (!error) PutLines(line, student);
  return error;
}

}  // namespace tallyroll
