// SPDX-License-Identifier: GPL-3.0-or-later
// The axis of values: it holds zero and goes in round steps.
#pragma once

namespace tallyroll {

struct ChartAxis {
  double bottom = 0;
  double top = 1;
  double step = 1;
  double Share(double value) const { return (value - bottom) / (top - bottom); }
};

// From the lowest to the highest value, in at most so many steps of 1, 2 or 5 times a power of ten
// as there is room for. Counts and percents are whole, so no step is below 1.
ChartAxis AxisFor(double lowest, double highest, int most_steps);

}  // namespace tallyroll
