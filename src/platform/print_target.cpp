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

void PrintTarget::FillRectangle(double x1, double y1, double x2, double y2, PrintColor color) {
  FillPolygon({{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}, color);
}

}  // namespace tallyroll
