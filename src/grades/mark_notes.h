// SPDX-License-Identifier: GPL-3.0-or-later
// How a mark stands to its grade, told to the screens that show marks.
#pragma once

#include <string>
#include <string_view>

#include "base/currency.h"
#include "platform/grid_notes.h"
#include "store/records.h"

namespace tallyroll {

// The lowest passing score as text: that of the grade, or 65 percent of its maximum.
std::string PassingGrade(const Instrument& grade);

struct MarkBounds {
  Currency passing;
  double maximum = 0;  // 0: there is none yet
};

// Nobody fails extra credit.
MarkBounds BoundsOf(const Instrument& grade);
// Of what is typed; a number beyond Currency sets no bound.
MarkBounds BoundsOf(std::string_view lowpass, std::string_view mvalue);

// By the raw score, as the statistics count who has passed. A letter is never above the maximum.
CellNote NoteOfMark(std::string_view mark, const MarkBounds& bounds);

}  // namespace tallyroll
