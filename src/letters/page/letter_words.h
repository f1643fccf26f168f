// SPDX-License-Identifier: GPL-3.0-or-later
// A paragraph as what its lines are made of.
#pragma once

#include <string_view>
#include <vector>

#include "letters/page/letter_measure.h"

namespace tallyroll {

enum class LetterPart { kText, kBlank, kTab, kLineEnd };

// Text of one style that no line ends within, unless it is wider than a line.
struct LetterWord {
  LetterPart part = LetterPart::kText;
  LetterMeasure::Face* face = nullptr;
  std::u16string_view text;
  double width = 0;
  bool may_end = false;  // a line may end behind it
};

// The words point into the paragraph.
std::vector<LetterWord> WordsOfParagraph(const Paragraph& paragraph, LetterMeasure& measure);

// How many units of a text `room` holds, at least one character.
std::size_t FittingUnits(const LetterWord& word, double room, LetterMeasure& measure);

}  // namespace tallyroll
