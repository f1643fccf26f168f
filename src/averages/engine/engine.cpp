// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/engine/engine.h"

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/marks.h"

namespace tallyroll {
namespace {

std::string ReasonOf(int number) {
  switch (number) {
    case kErrorOverflow:
      return "a number is too large";
    case kErrorDivisionByZero:
      return "the maximum score is 0";
    case kErrorSubscript:
      return "there is no such student";
    default:
      return "error " + PlainNumberText(number);
  }
}

}  // namespace

std::string AverageErrorText(const AverageError& error) {
  const Class& c = Current();
  std::string text = "The average";
  if (error.student >= 1 && error.student <= UpperBound(c.Students)) {
    const Student& student = c.Students[static_cast<std::size_t>(error.student)];
    text +=
        " of " + std::string(Trim(student.lastname)) + ", " + std::string(Trim(student.firstname));
  }
  text += " can't be computed: " + ReasonOf(error.number);
  if (error.grade >= 1 && error.grade <= GradeCount(c)) {
    const Instrument& instrument = c.Instruments[static_cast<std::size_t>(error.grade)];
    text += " in the grade \"" + std::string(Trim(instrument.title)) + "\"";
  }
  return text + ".";
}

AverageError ComputeAverage(TypeTotals& totals) {
  Points dropped;
  return ComputeAverage(dropped, totals);
}

AverageError ComputeAverage(Points& points, TypeTotals& totals, AverageListener* listener) {
  points = Points();
  switch (Current().Method) {
    case 1:
      return AverageByTypes(totals, listener);
    case 2:
      return AverageByPoints(points, totals, listener);
    case 3:
      return AverageByPointsAndTypes(points, totals, listener);
    default:
      return AverageByItems(totals, listener);
  }
}

}  // namespace tallyroll
