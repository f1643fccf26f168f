// SPDX-License-Identifier: GPL-3.0-or-later
// The two columns that name the students in the grids of attendance.
#pragma once

#include <array>
#include <string_view>

#include "platform/grid.h"

namespace tallyroll {

inline constexpr int kLabelColumns = 2;

struct LabelColumn {
  enum class Holds { kId, kName, kNothing };
  Holds holds = Holds::kNothing;
  std::string_view head = {};
  int width = 0;
};

// By the label mode of the class window: ID alone, ID first, name first, name alone.
using LabelTable = std::array<std::array<LabelColumn, kLabelColumns>, 4>;

// Heads, widths and a row a student in the order of the class, below one fixed row.
void FillLabels(Grid& grid, const LabelTable& table);

}  // namespace tallyroll
