// SPDX-License-Identifier: GPL-3.0-or-later
// The one drawing of a chart: on the screen, on paper and in files it is the same picture.
#pragma once

#include <string>
#include <vector>

#include "analysis/chart_colors.h"
#include "platform/chart.h"

namespace tallyroll {

// Where a chart stands on its target, in twips.
struct ChartFrame {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

// A place of the picture that tells something: a point of a set, or a dot.
struct ChartSpot {
  std::vector<PrintPoint> outline;
  int set = 0;  // behind the last set stands the thin line
  int point = 0;
  int dot = -1;  // -1: it is a point
};

// Nothing is drawn outside the frame, and no text over another one. Answers the spots, those that
// lie above others last. The target's font and pen are left as they were.
std::vector<ChartSpot> DrawChart(const Chart& chart, PrintTarget& target, const ChartFrame& frame,
                                 const ChartColors& colors);

// What a spot tells: the words that the Portal gave, otherwise label and value.
std::string TellSpot(const Chart& chart, const ChartSpot& spot);

}  // namespace tallyroll
