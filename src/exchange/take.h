// SPDX-License-Identifier: GPL-3.0-or-later
// Carries out what a preview lists.
#pragma once

#include <string>

#include "exchange/preview.h"

namespace tallyroll {

struct TakenChanges {
  std::string refusal;  // why nothing was taken, as a sentence
  int grades = 0;       // added
  int marks = 0;        // set
  int maximums = 0;     // changed
};

// Whether a line can be ticked: it says what would be done, and the grade that it is about is there
// or is ticked itself.
bool CanTick(const Change& change);

// Does to the class in work exactly what the ticked lines say, and nothing else. A mark of a new
// grade whose own line is not ticked is not taken. The new grades of the preview get their places
// in grade_of.
TakenChanges TakeTicked(ExchangePreview& preview);

}  // namespace tallyroll
