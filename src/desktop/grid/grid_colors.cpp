// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_colors.h"

namespace tallyroll {
namespace {

constexpr double kEnoughContrast = 4.5;

// A desktop's own palette may be faint; a mark must be readable all the same.
QColor Readable(const QColor& wanted, const QColor& background) {
  if (Contrast(wanted, background) >= kEnoughContrast) return wanted;
  const QColor black(Qt::black), white(Qt::white);
  return Contrast(black, background) > Contrast(white, background) ? black : white;
}

}  // namespace

GridColors::GridColors(const QPalette& palette) : tokens_(TokensOf(palette)) {
  const Tokens& t = tokens_;
  const auto look = [](const QColor& wanted, const QColor& background, bool bold) {
    return CellLook{background, Readable(wanted, background), bold};
  };
  for (CellLook& each : looks_) each = look(t.text, t.surface, false);
  looks_[static_cast<int>(CellStyle::kFailing)] = look(t.danger, t.surface, true);
  // Blue whatever a desktop's own accent is: the cell in work is known by it.
  looks_[static_cast<int>(CellStyle::kInWork)] =
      look((t.dark ? DarkTokens() : LightTokens()).focus, t.surface, false);
  looks_[static_cast<int>(CellStyle::kTotal)] = look(t.text, t.total, false);
  looks_[static_cast<int>(CellStyle::kShaded)] = look(t.muted, t.header, false);
  heading_ = look(t.text, t.header, true);
}

ChipLook GridColors::ChipOf(CellMark mark) const {
  switch (mark) {
    case CellMark::kAlarm:
      return {tokens_.danger, tokens_.danger_soft};
    case CellMark::kWarning:
      return {tokens_.warning, tokens_.warning_soft};
    case CellMark::kSoft:
      return {tokens_.muted, tokens_.header};
    default:
      return {tokens_.text, QColor()};
  }
}

}  // namespace tallyroll
