// SPDX-License-Identifier: GPL-3.0-or-later
// The ranges and the figures of one grade on paper.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

// Asks for the title and prints on the printer in use.
void PrintDistribution(int grade);

// Texts at columns of the average character, the first being 1.
struct ColumnText {
  int column;
  std::string text;
};
using ColumnLine = std::vector<ColumnText>;
// The same for any lines below a head.
void PrintColumnLines(std::string_view head, const std::vector<ColumnLine>& lines);

}  // namespace tallyroll
