// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/chart_drawing.h"

#include "analysis/chart_painter.h"
#include "base/number_text.h"

namespace tallyroll {

std::vector<ChartSpot> DrawChart(const Chart& chart, PrintTarget& target, const ChartFrame& frame,
                                 const ChartColors& colors) {
  ChartPainter painter(chart, target, frame, colors);
  if (chart.kind == ChartKind::kPie)
    DrawPie(painter);
  else
    DrawPlot(painter);
  return painter.TakeSpots();
}

std::string TellSpot(const Chart& chart, const ChartSpot& spot) {
  if (spot.dot >= 0) return chart.dots[static_cast<std::size_t>(spot.dot)].tells;
  const ChartSet& set = chart.sets[static_cast<std::size_t>(spot.set)];
  const auto point = static_cast<std::size_t>(spot.point);
  if (point < set.tells.size() && !set.tells[point].empty()) return set.tells[point];
  const std::vector<std::string>& names =
      chart.kind == ChartKind::kPie ? chart.legend : chart.labels;
  const std::string name = point < names.size() ? names[point] : std::string();
  const std::string of = set.name.empty() ? "" : set.name + ", ";
  return of + name + ": " + PlainNumberText(point < set.values.size() ? set.values[point] : 0);
}

}  // namespace tallyroll
