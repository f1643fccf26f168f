// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/mark_doubts.h"

#include <optional>

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/marks.h"

namespace tallyroll {
namespace {

enum class MarkDoubt { kNone, kAbove, kLetterAbove, kNoMark };

MarkDoubt DoubtAbout(std::string_view text, double maximum) {
  if (text.empty() || KindOfMark(text) != MarkKind::kGraded) return MarkDoubt::kNone;
  if (!IsGrade(text)) return MarkDoubt::kNoMark;
  if (maximum <= 0) return MarkDoubt::kNone;
  const std::optional<double> number = WholeNumberText(text);
  if (number) return *number > maximum ? MarkDoubt::kAbove : MarkDoubt::kNone;
  return GradeValue(text).ToDouble() > maximum ? MarkDoubt::kLetterAbove : MarkDoubt::kNone;
}

std::string ValueText(std::string_view text) {
  try {
    return PlainNumberText(GradeValue(text));
  } catch (const RunTimeError&) {
    return "more than any average can hold";
  }
}

}  // namespace

std::string DoubtOfMark(std::string_view mark, double maximum) {
  const std::string_view text = Trim(mark);
  const std::string shown(text);
  switch (DoubtAbout(text, maximum)) {
    case MarkDoubt::kAbove:
      return shown + " is above the maximum of " + PlainNumberText(maximum);
    case MarkDoubt::kLetterAbove:
      return shown + " counts as " + ValueText(text) + " of " + PlainNumberText(maximum);
    case MarkDoubt::kNoMark:
      return shown + " is no mark and counts as " + ValueText(text);
    case MarkDoubt::kNone:
      break;
  }
  return {};
}

CellNote NoteOfTypedMark(std::string_view mark, const MarkBounds& bounds) {
  switch (DoubtAbout(Trim(mark), bounds.maximum)) {
    case MarkDoubt::kLetterAbove:
      return {CellMark::kAbove, "a letter that counts above the maximum"};
    case MarkDoubt::kNoMark:
      return {CellMark::kAbove, "no mark as it stands"};
    case MarkDoubt::kAbove:
    case MarkDoubt::kNone:
      break;
  }
  return NoteOfMark(mark, bounds);
}

}  // namespace tallyroll
