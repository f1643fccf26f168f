// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/page/letter_measure.h"

namespace tallyroll {
namespace {

constexpr double kSmaller = 0.65;  // what stands raised or lowered
constexpr double kRaised = 0.35;   // of the height above the line
constexpr double kLowered = -0.15;
constexpr std::size_t kMostWords = 20'000;

}  // namespace

double LetterMeasure::Face::WidthOf(std::u16string_view text, const PrintTarget& target) {
  const auto known = widths_.find(text);
  if (known != widths_.end()) return known->second;
  if (widths_.size() >= kMostWords) widths_.clear();
  const double width = target.LetterWidth(text, font);
  widths_.emplace(text, width);
  return width;
}

LetterMeasure::Face& LetterMeasure::FaceOf(const TextStyle& style) {
  for (Face& face : faces_)
    if (face.style == style) return face;
  Face& face = faces_.emplace_back();
  face.style = style;
  face.font = {style.font, style.half_points / 2.0, style.bold, style.italic};
  FontReach reach = target_.ReachOf(face.font);
  if (style.place != TextPlace::kBase) {
    face.raised = reach.above * (style.place == TextPlace::kSuper ? kRaised : kLowered);
    face.font.size *= kSmaller;
    reach = target_.ReachOf(face.font);
  }
  face.above = reach.above + face.raised;
  face.below = reach.below - face.raised;
  return face;
}

}  // namespace tallyroll
