// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_colors.h"

#include <algorithm>
#include <cmath>

namespace tallyroll {
namespace {

constexpr double kEnoughContrast = 4.5;

struct ToldColors {
  QRgb failing;
  QRgb in_work;
  QRgb total_background;
  QRgb shaded_background;
};

constexpr ToldColors kLight{0xFFB3001B, 0xFF0000E0, 0xFFE0E0E0, 0xFFD3D8E0};
constexpr ToldColors kDark{0xFFFF9A9A, 0xFF9CC4FF, 0xFF454545, 0xFF555C68};

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

// A desktop's own palette may be faint; a mark must be readable all the same.
QColor Readable(const QColor& wanted, const QColor& background) {
  if (ContrastOf(wanted, background) >= kEnoughContrast) return wanted;
  const QColor black(Qt::black), white(Qt::white);
  return ContrastOf(black, background) > ContrastOf(white, background) ? black : white;
}

QColor Between(const QColor& one, const QColor& other, double share) {
  const auto mix = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

}  // namespace

double ContrastOf(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05;
  const double b = Luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

GridColors::GridColors(const QPalette& palette) {
  const QColor base = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  const ToldColors& told = base.lightnessF() > 0.5F ? kLight : kDark;
  const auto look = [](QRgb wanted, QRgb background, bool bold) {
    const QColor back(background);
    return CellLook{back, Readable(QColor(wanted), back), bold};
  };
  for (CellLook& each : looks_) each = look(text.rgb(), base.rgb(), false);
  looks_[static_cast<int>(CellStyle::kFailing)] = look(told.failing, base.rgb(), true);
  looks_[static_cast<int>(CellStyle::kInWork)] = look(told.in_work, base.rgb(), false);
  looks_[static_cast<int>(CellStyle::kTotal)] = look(text.rgb(), told.total_background, false);
  looks_[static_cast<int>(CellStyle::kShaded)] = look(text.rgb(), told.shaded_background, false);
  heading_ =
      look(palette.color(QPalette::ButtonText).rgb(), palette.color(QPalette::Button).rgb(), false);
  line_ = Between(base, text, 0.2);
}

}  // namespace tallyroll
