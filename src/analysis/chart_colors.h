// SPDX-License-Identifier: GPL-3.0-or-later
// The colours and the type of charts, one set for light ground and one for dark.
#pragma once

#include <array>
#include <string_view>

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
  std::string_view font = "Arial";  // of all words
};

// The first is that of paper.
extern const ChartColors kLightChart;
extern const ChartColors kDarkChart;

}  // namespace tallyroll
