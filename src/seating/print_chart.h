// SPDX-License-Identifier: GPL-3.0-or-later
// A seating chart on paper: one page, the board at its head. Wishes never stand on it.
#pragma once

#include <string>

#include "platform/print_target.h"
#include "seating/seating_chart.h"

namespace tallyroll {

// From so many classroom rows on, the chart lies across the sheet.
inline constexpr int kLandscapeColumns = 9;

// Draws the chart below the pen, as large as the rest of the page lets it be.
void DrawChart(PrintTarget& target, const SeatPlan& plan);

// The whole page on a prepared target.
void DrawChartPage(PrintTarget& target, const SeatPlan& plan, const std::string& name);

// Asks for the title and prints the page. A wide chart tells first which paper it wants.
void PrintChart(const SeatPlan& plan, const std::string& name);

}  // namespace tallyroll
