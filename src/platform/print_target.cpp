// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print_target.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace tallyroll {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kSmallest = 0.6;  // of the font's size: below it a text is cut instead
constexpr std::string_view kEllipsis = "\x85";

// Fonts are set at whole twips.
double WholeTwips(double points) {
  return std::floor(points * kTwipsPerPoint) / kTwipsPerPoint;
}

}  // namespace

void PrintTarget::Print(std::string_view text) {
  if (!text.empty()) DrawTextAt(CurrentX, CurrentY, text, FontSize);
  CurrentX = 0;
  CurrentY += TextHeight("A");
}

void PrintTarget::PrintOpen(std::string_view text) {
  if (text.empty()) return;
  DrawTextAt(CurrentX, CurrentY, text, FontSize);
  CurrentX += TextWidth(text);
}

void PrintTarget::PrintWithin(std::string_view text, double room) {
  if (text.empty()) return;
  const double width = TextWidth(text);
  if (width <= room) {
    DrawTextAt(CurrentX, CurrentY, text, FontSize);
    CurrentX += width;
    return;
  }
  const double size =
      std::max(WholeTwips(FontSize * room / width), WholeTwips(FontSize * kSmallest));
  const std::string shown = Shortened(text, room * FontSize / size);
  if (shown.empty()) return;
  DrawTextAt(CurrentX, CurrentY, shown, size);
  CurrentX += TextWidth(shown) * size / FontSize;
}

std::size_t PrintTarget::Fitting(std::string_view text, double room) const {
  std::size_t fits = 0, too_many = text.size() + 1;
  while (too_many - fits > 1) {
    const std::size_t half = fits + (too_many - fits) / 2;
    (TextWidth(text.substr(0, half)) <= room ? fits : too_many) = half;
  }
  return fits;
}

std::string PrintTarget::Shortened(std::string_view text, double room) const {
  if (TextWidth(text) <= room) return std::string(text);
  const double ellipsis = TextWidth(kEllipsis);
  if (ellipsis > room) return {};
  const std::string_view shown = text.substr(0, Fitting(text, room - ellipsis));
  return std::string(TrimRight(shown)) + std::string(kEllipsis);
}

void PrintTarget::Tab(int column) {
  const double place = (column - 1) * AverageCharWidth();
  const bool reached = CurrentX > 0 && CurrentX >= place;
  CurrentX = reached ? CurrentX + TextWidth(" ") : place;
}

void PrintTarget::FillRectangle(double x1, double y1, double x2, double y2, PrintColor color) {
  FillPolygon({{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}, color);
}

}  // namespace tallyroll
