// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/chart_drawing.h"

#include <cmath>

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

namespace {

std::string TellThinPoint(const Chart& chart, std::size_t point) {
  const std::string label = point < chart.labels.size() ? ", " + chart.labels[point] : "";
  // An average, so with decimals.
  return chart.thin_name + label + ": " +
         PlainNumberText(std::nearbyint(chart.thin_line[point] * 100) / 100);
}

}  // namespace

std::string TellSpot(const Chart& chart, const ChartSpot& spot) {
  if (spot.dot >= 0) return chart.dots[static_cast<std::size_t>(spot.dot)].tells;
  const auto point = static_cast<std::size_t>(spot.point);
  if (static_cast<std::size_t>(spot.set) == chart.sets.size()) return TellThinPoint(chart, point);
  const ChartSet& set = chart.sets[static_cast<std::size_t>(spot.set)];
  if (point < set.tells.size() && !set.tells[point].empty()) return set.tells[point];
  const std::vector<std::string>& names =
      chart.kind == ChartKind::kPie ? chart.legend : chart.labels;
  const std::string name = point < names.size() ? names[point] : std::string();
  const std::string of = set.name.empty() ? "" : set.name + ", ";
  return of + name + ": " + PlainNumberText(point < set.values.size() ? set.values[point] : 0);
}

}  // namespace tallyroll
