// SPDX-License-Identifier: GPL-3.0-or-later
// Dots in a strip above the points. Those of one place stand one over the other, closer where there
// are many.
#include <algorithm>

#include "analysis/chart_painter.h"

namespace tallyroll {
namespace {

constexpr double kUsedShare = 0.8;  // of a slot
constexpr double kDotsApart = 2.4;  // radii from one middle to the next

std::vector<PrintPoint> DotAt(double x, double y, double r) {
  const double s = r * 0.4;
  return {{x - s, y - r}, {x + s, y - r}, {x + r, y - s}, {x + r, y + s},
          {x + s, y + r}, {x - s, y + r}, {x - r, y + s}, {x - r, y - s}};
}

}  // namespace

void DrawDots(ChartPainter& painter, const ChartFrame& strip, double slot) {
  const std::vector<ChartDot>& dots = painter.chart().dots;
  if (dots.empty()) return;
  const double r = std::clamp(slot / 24, 18.0, 40.0);
  const int places = std::max(1, static_cast<int>(slot * kUsedShare / (kDotsApart * r)));
  const auto column_of = [&](const ChartDot& dot) {
    return std::clamp(static_cast<int>(dot.place * places), 0, places - 1);
  };
  std::vector<int> stacked(painter.chart().Points() * static_cast<std::size_t>(places), 0);
  const auto stack_of = [&](const ChartDot& dot) -> int& {
    const auto first = static_cast<std::size_t>(dot.point) * static_cast<std::size_t>(places);
    return stacked[first + static_cast<std::size_t>(column_of(dot))];
  };
  for (const ChartDot& dot : dots) ++stack_of(dot);
  const int highest = *std::max_element(stacked.begin(), stacked.end());
  const double room = std::max(strip.height - 2 * r, 0.0);
  const double step = highest > 1 ? std::min(kDotsApart * r, room / (highest - 1)) : 0;
  std::fill(stacked.begin(), stacked.end(), 0);
  for (std::size_t i = 0; i < dots.size(); ++i) {
    const double share = (column_of(dots[i]) + 0.5) / places * kUsedShare + (1 - kUsedShare) / 2;
    const double x = strip.left + slot * (dots[i].point + share);
    const double y = strip.top + strip.height - r - step * stack_of(dots[i])++;
    painter.Fill(DotAt(x, y, r), painter.colors().thin);
    painter.AddSpot({Rectangle(x - r, y - r, x + r, y + r), 0, dots[i].point, static_cast<int>(i)});
  }
}

}  // namespace tallyroll
