// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/chart_axis.h"

#include <algorithm>
#include <cmath>

namespace tallyroll {
namespace {

double RoundStep(double least) {
  double power = 1;
  while (power * 10 <= least) power *= 10;
  for (const double factor : {1.0, 2.0, 5.0})
    if (factor * power >= least) return factor * power;
  return 10 * power;
}

}  // namespace

ChartAxis AxisFor(double lowest, double highest, int most_steps) {
  lowest = std::min(lowest, 0.0);
  highest = std::max(highest, 0.0);
  if (lowest == highest) return {};
  const auto steps = static_cast<double>(std::max(most_steps, 1));
  ChartAxis axis;
  // Rounding both ends outwards may take a step more than there is room for.
  for (double least = (highest - lowest) / steps;; least = axis.step * 1.01) {
    axis.step = RoundStep(least);
    axis.bottom = std::floor(lowest / axis.step) * axis.step;
    axis.top = std::ceil(highest / axis.step) * axis.step;
    const bool ends_alone = lowest < 0 && highest > 0 && steps < 2;
    if (ends_alone || (axis.top - axis.bottom) / axis.step <= steps) return axis;
  }
}

}  // namespace tallyroll
