// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of one paragraph.
#pragma once

#include <vector>

#include "letters/page/letter_measure.h"
#include "letters/page/letter_pages.h"

namespace tallyroll {

struct LetterLine {
  std::vector<LetterPiece> pieces;  // from the left margin and the line's own base
  double above = 0;                 // of its base
  double height = 0;
};

// Never none. `room` is what the margins leave.
std::vector<LetterLine> LinesOfParagraph(const Paragraph& paragraph, double room,
                                         LetterMeasure& measure);

}  // namespace tallyroll
