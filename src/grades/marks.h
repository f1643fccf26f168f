// SPDX-License-Identifier: GPL-3.0-or-later
// What the text of a mark means.
#pragma once

#include <string_view>

#include "store/class_defaults.h"
#include "store/records.h"

namespace tallyroll {

enum class MarkKind {
  kLeftOut,  // "NEW", "ABS", "EXC": no grade yet, or none wanted
  kZero,     // "CUT", "NON": a 0 that is never dropped
  kGraded,   // everything else has a value
};

// A grade that the student has not got: "CUT", "ABS", "NEW", "NON". An excused one is not missing.
bool IsMissing(std::string_view mark);

// By the text as it stands: the caller trims it as far as its rule says.
MarkKind KindOfMark(std::string_view mark);

// The value of a mark in the current class: that of its letter, otherwise the number that it begins
// with, 0 when there is none. Blanks behind the mark do not count. A number that Currency cannot
// hold throws RunTimeError{kErrorOverflow}, as Currency's own operations do.
Currency GradeValue(std::string_view mark);

// Whether a teacher who reads it sees a grade: a number and nothing else, a letter, or a special
// mark. Everything else counts by the number that it begins with, or as 0.
bool IsGrade(std::string_view mark);

// What NumInstruments can hold, and what a Portal says that cannot add another one.
inline constexpr int kMostGrades = 32767;
inline constexpr std::string_view kNoMoreGrades = "You may only have 32767 grades in a class.";

// NumInstruments, and never more than the list holds.
int GradeCount(const Class& c);

// Marks[i] of a student; one that a damaged list lacks is "NEW".
inline std::string_view MarkOf(const Student& student, int i) {
  const auto index = static_cast<std::size_t>(i);
  return index < student.Marks.size() ? student.Marks[index].view() : kNewMark;
}

}  // namespace tallyroll
