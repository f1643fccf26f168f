// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/derived_values.h"

#include "store/class_defaults.h"
#include "store/sort_students.h"

namespace tallyroll {

void MakeDerivedValues(Class& c) {
  constexpr i16 kSkipRounding = 1;
  if (c.RoundMode == kSkipRounding) UseLetterValuesAsScale(c);
  SortStudents(c);
}

}  // namespace tallyroll
