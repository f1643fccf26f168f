// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/grade_glance.h"

#include <algorithm>
#include <cmath>

#include "analysis/grade_figures.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/mark_notes.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

std::size_t TenOf(std::string_view mark, int mvalue) {
  return static_cast<std::size_t>(
      std::clamp(PercentOfMark(mark, mvalue) / 10, 0, static_cast<int>(kTens) - 1));
}

// As the statistics decide who has passed, extra credit too.
bool HasFailed(std::string_view mark, Currency passing) {
  try {
    return GradeValue(mark) < passing;
  } catch (const RunTimeError&) {
    return false;
  }
}

Currency PassingValue(const Instrument& grade) {
  try {
    return LeadingCurrency(PassingGrade(grade));
  } catch (const RunTimeError&) {
    return {};
  }
}

void CountMarks(GradeGlance& glance, const Instrument& grade) {
  const Class& c = Current();
  const Currency passing = PassingValue(grade);
  for (int s = 1; s <= c.NumStudents; ++s) {
    const std::string_view mark =
        TrimRight(MarkOf(c.Students[static_cast<std::size_t>(s)], glance.grade));
    if (IsMissing(mark)) ++glance.missing;
    if (IsAbsence(mark)) continue;
    MarksInTen& ten = glance.tens[TenOf(mark, grade.mvalue)];
    ++ten.count;
    ++glance.counted;
    if (!HasFailed(mark, passing)) continue;
    ++ten.failing;
    ++glance.failed;
  }
}

void TakeFigures(GradeGlance& glance) {
  if (const std::optional<GradeFigures> figures = FiguresOfGrade(glance.grade))
    glance.average = PlainNumberText(figures->average);
  const GradeQuartiles quartiles = QuartilesOfGrade(glance.grade);
  if (quartiles.n > 0)
    glance.median = PlainNumberText(std::nearbyint(quartiles.median * 100) / 100);
}

void TakeMark(GradeGlance& glance, const Instrument& grade, int student) {
  const Class& c = Current();
  if (student < 1 || student > c.NumStudents) return;
  const std::string_view mark =
      TrimRight(MarkOf(c.Students[static_cast<std::size_t>(student)], glance.grade));
  glance.mark = Trim(mark);
  glance.failing = NoteOfMark(mark, BoundsOf(grade)).mark == CellMark::kFailing;
  if (!IsAbsence(mark)) glance.own = static_cast<int>(TenOf(mark, grade.mvalue));
}

}  // namespace

GradeGlance LookAtGrade(int grade, int student) {
  const Class& c = Current();
  GradeGlance glance;
  if (grade < 1 || grade > GradeCount(c)) return glance;
  const Instrument& instrument = c.Instruments[static_cast<std::size_t>(grade)];
  glance.grade = grade;
  glance.title = Trim(instrument.title);
  glance.code = Trim(instrument.code);
  glance.date = Trim(instrument.testdate);
  glance.maximum = instrument.mvalue;
  glance.to_pass = PassingGrade(instrument);
  TakeFigures(glance);
  CountMarks(glance, instrument);
  TakeMark(glance, instrument, student);
  return glance;
}

}  // namespace tallyroll
