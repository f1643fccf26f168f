// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of charts, one set for light ground and one for dark.
#pragma once

#include <array>

#include "platform/print_target.h"

namespace tallyroll {

inline constexpr std::size_t kChartSets = 5;
inline constexpr std::size_t kChartSlices = 9;

// Those of sets and of slices differ for colour-blind eyes too.
struct ChartColors {
  PrintColor ground;
  PrintColor text;
  PrintColor grid;
  PrintColor thin;  // the thin line and the dots
  std::array<PrintColor, kChartSets> sets;
  std::array<PrintColor, kChartSlices> slices;
};

// The first is that of paper.
extern const ChartColors kLightChart;
extern const ChartColors kDarkChart;

}  // namespace tallyroll
