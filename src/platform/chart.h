// SPDX-License-Identifier: GPL-3.0-or-later
// A chart that a Portal fills point by point, and the control that shows it. How it looks is the
// drawing's matter, so that screen, paper and files show the same picture.
#pragma once

#include <string>
#include <vector>

#include "platform/controls.h"

namespace tallyroll {

enum class ChartKind { kBar, kLine, kPie };

// Values of the points, under one name.
struct ChartSet {
  std::string name;
  std::vector<double> values;
  std::vector<std::string> tells;  // what is said of each point; empty: its label and value
};

// A dot above the points.
struct ChartDot {
  int point = 0;     // from 0
  double place = 0;  // within the width of the point, 0 to 1
  std::string tells;
};

struct Chart {
  ChartKind kind = ChartKind::kBar;
  std::string title;
  std::vector<ChartSet> sets = std::vector<ChartSet>(1);
  std::vector<std::string> labels;  // below the points
  std::vector<std::string> legend;  // of the slices of a pie
  std::vector<bool> exploded;       // slices that stand apart
  std::vector<double> thin_line;    // behind the points; not a number is a gap
  std::string thin_name;
  std::vector<ChartDot> dots;

  std::size_t Points() const { return sets.empty() ? 0 : sets.front().values.size(); }
};

struct Graph : Control {
  Chart chart;
  int Dot = -1;  // the dot that the user went to, from 0; -1 is none
  // The chart is shown as it was when it was drawn last.
  unsigned Revision = 0;
  void Draw() { ++Revision; }
};

}  // namespace tallyroll
