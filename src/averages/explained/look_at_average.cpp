// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/explained/look_at_average.h"

#include "averages/explained/untouched_class.h"
#include "base/text.h"
#include "grades/marks.h"

namespace tallyroll {

AverageError LookAtAverage(i16 student, StudentAverage& average) {
  const UntouchedClass untouched(student);
  return AverageStudent(average);
}

bool HasMarkThatCounts(const Student& student) {
  for (int i = 1; i <= GradeCount(Current()); ++i)
    if (KindOfMark(Trim(MarkOf(student, i))) != MarkKind::kLeftOut) return true;
  return false;
}

}  // namespace tallyroll
