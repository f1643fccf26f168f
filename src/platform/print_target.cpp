// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print_target.h"

namespace tallyroll {

void PrintTarget::Print(std::string_view text) {
  if (!text.empty()) DrawTextAt(CurrentX, CurrentY, text);
  CurrentX = 0;
  CurrentY += TextHeight("A");
}

void PrintTarget::PrintOpen(std::string_view text) {
  if (text.empty()) return;
  DrawTextAt(CurrentX, CurrentY, text);
  CurrentX += TextWidth(text);
}

void PrintTarget::Tab(int column) {
  const double place = (column - 1) * AverageCharWidth();
  const bool passed = CurrentX > place;
  CurrentX = passed ? CurrentX + TextWidth(" ") : place;
}

}  // namespace tallyroll
