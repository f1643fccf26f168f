// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/style/measures.h"

#include <QFontInfo>
#include <cmath>

namespace tallyroll {
namespace {

constexpr double kFontPixels = 13;
constexpr double kCompactFont = 9.0 / 9.75, kRoomyFont = 10.5 / 9.75;

}  // namespace

Measures::Measures(Density density, const QFont& font)
    : density_(density), scale_(QFontInfo(font).pixelSize() / kFontPixels) {}

double Measures::Of(double compact, double normal, double roomy) const {
  switch (density_) {
    case Density::kCompact:
      return compact;
    case Density::kRoomy:
      return roomy;
    case Density::kNormal:
      break;
  }
  return normal;
}

int Measures::Px(double length) const {
  return static_cast<int>(std::lround(length * scale_));
}

QFont FontAt(Density density, const QFont& normal) {
  if (density == Density::kNormal || normal.pointSizeF() <= 0) return normal;
  QFont font(normal);
  font.setPointSizeF(normal.pointSizeF() *
                     (density == Density::kCompact ? kCompactFont : kRoomyFont));
  return font;
}

}  // namespace tallyroll
