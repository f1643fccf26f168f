// SPDX-License-Identifier: GPL-3.0-or-later
// A letter on paper: its lines are broken and parted into pages once, on the surface that will show
// them or on one that measures alike; drawing a page then only puts its pieces in their places.
#pragma once

#include <string>
#include <vector>

#include "platform/print_target.h"
#include "platform/rich_text.h"

namespace tallyroll {

// Text of one style in one place, from the corner of the sheet.
struct LetterPiece {
  double x = 0;
  double base = 0;  // of the line it stands on
  double width = 0;
  std::u16string text;
  LetterFont font;
  PrintColor color = 0;
  bool underline = false;
  bool strike = false;
};

struct LetterPage {
  std::vector<LetterPiece> pieces;
};

// Free at the sheet's edges, in twips.
struct LetterMargins {
  double left = 500, top = 500, right = 500, bottom = 500;
};
// Those that the teacher chose for printing.
LetterMargins ChosenMargins();

class LetterMeasure;

// Never less than one page.
std::vector<LetterPage> LayOutLetter(const RichText& letter, const PrintTarget& target,
                                     const LetterMargins& margins);

// The same for one of many letters, whose words are measured once.
std::vector<LetterPage> LayOutLetter(const RichText& letter, LetterMeasure& measure,
                                     const LetterMargins& margins);

void DrawLetterPage(PrintTarget& target, const LetterPage& page);

}  // namespace tallyroll
