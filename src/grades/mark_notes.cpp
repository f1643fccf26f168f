// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/mark_notes.h"

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/grade_types.h"
#include "grades/marks.h"

namespace tallyroll {
namespace {

constexpr double kUsualPassingPercent = 65;

CellNote NoteOfSpecialMark(std::string_view mark) {
  if (mark == "CUT") return {CellMark::kAlarm, "cut, counts as 0"};
  if (mark == "NON") return {CellMark::kAlarm, "not done, counts as 0"};
  if (mark == "ABS") return {CellMark::kWarning, "absent"};
  if (mark == "EXC") return {CellMark::kSoft, "excused"};
  if (mark == "NEW") return {CellMark::kMuted, "no grade yet"};
  return {};
}

}  // namespace

std::string PassingGrade(const Instrument& grade) {
  std::string lowpass(Trim(grade.lowpass));
  return lowpass.empty() ? PlainNumberText(grade.mvalue * kUsualPassingPercent / 100) : lowpass;
}

MarkBounds BoundsOf(const Instrument& grade) {
  const bool extra = Trim(grade.typecode) == kExtraCreditCode;
  return BoundsOf(extra ? "0" : PassingGrade(grade), PlainNumberText(grade.mvalue));
}

MarkBounds BoundsOf(std::string_view lowpass, std::string_view mvalue) {
  MarkBounds bounds;
  bounds.maximum = LeadingNumber(mvalue);
  try {
    bounds.passing = LeadingCurrency(lowpass);
  } catch (const RunTimeError&) {
    bounds.passing = Currency();
  }
  return bounds;
}

CellNote NoteOfMark(std::string_view mark, const MarkBounds& bounds) {
  const std::string_view text = Trim(mark);
  if (text.empty()) return {};
  if (KindOfMark(text) != MarkKind::kGraded) return NoteOfSpecialMark(text);
  const std::optional<double> number = WholeNumberText(text);
  if (number && bounds.maximum > 0 && *number > bounds.maximum)
    return {CellMark::kAbove, "above the maximum"};
  try {
    if (GradeValue(text) < bounds.passing) return {CellMark::kFailing, "failing"};
  } catch (const RunTimeError&) {
    return {};  // a number beyond all values has no place among them
  }
  return {};
}

}  // namespace tallyroll
