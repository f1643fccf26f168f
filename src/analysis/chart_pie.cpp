// SPDX-License-Identifier: GPL-3.0-or-later
// A pie: slices from the top round to the right, the legend beside them.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "analysis/chart_painter.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kStep = kTurn / 180;  // between two corners of the rim
constexpr double kApart = 0.05;        // of the radius, for an exploded slice
constexpr double kLeastNamed = 0.04;   // share of the pie below which a slice bears no text
constexpr double kLegendShare = 0.45;  // of the width at most

struct Box {
  double left, top, right, bottom;
  bool Meets(const Box& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
};

PrintPoint Towards(PrintPoint from, double angle, double length) {
  return {from.x + std::sin(angle) * length, from.y - std::cos(angle) * length};
}

// A negative value has no slice.
double Slice(const Chart& chart, std::size_t point) {
  return std::max(chart.sets.front().values[point], 0.0);
}

std::vector<PrintPoint> Wedge(PrintPoint tip, double radius, double from, double to) {
  std::vector<PrintPoint> corners = {tip};
  const int steps = std::max(1, static_cast<int>(std::ceil((to - from) / kStep)));
  for (int i = 0; i <= steps; ++i)
    corners.push_back(Towards(tip, from + (to - from) * i / steps, radius));
  return corners;
}

// The legend takes the right side of the rest.
void DrawLegend(ChartPainter& painter) {
  const Chart& chart = painter.chart();
  ChartFrame& rest = painter.rest();
  const double line = painter.LineHeight(painter.size());
  const double wanted =
      painter.Widest(chart.legend, painter.size()) + line * 0.6 + 2 * painter.gap();
  const double width = std::min(wanted, rest.width * kLegendShare);
  const auto rows = static_cast<double>(chart.legend.size());
  const double step = std::min(line * 1.2, rest.height / std::max(rows, 1.0));
  if (step < line || rest.width * kLegendShare < 2 * line)
    return;  // no room in which a word could be read
  double y = rest.top + std::max((rest.height - rows * step) / 2, 0.0);
  for (std::size_t i = 0; i < chart.legend.size(); ++i, y += step)
    painter.DrawEntry({chart.legend[i], painter.colors().slices[i % kChartSlices]},
                      rest.left + rest.width - width, y, width);
  rest.width -= width + painter.gap();
}

// The value beside the rim, unless another one stands there.
void DrawSliceText(ChartPainter& painter, const std::string& text, PrintPoint at, double angle,
                   std::vector<Box>& taken) {
  const double width = painter.Width(text, painter.size());
  const double height = painter.LineHeight(painter.size());
  const double x = at.x - width / 2 + std::sin(angle) * width / 2;
  const double y = at.y - height / 2 - std::cos(angle) * height / 2;
  const Box box{x, y, x + width, y + height};
  const ChartFrame& rest = painter.rest();
  if (x < rest.left || y < rest.top || box.right > rest.left + rest.width ||
      box.bottom > rest.top + rest.height)
    return;
  for (const Box& other : taken)
    if (box.Meets(other)) return;
  taken.push_back(box);
  painter.Text(text, x, y, painter.size());
}

}  // namespace

void DrawPie(ChartPainter& painter) {
  const Chart& chart = painter.chart();
  painter.DrawTitle();
  DrawLegend(painter);
  double whole = 0;
  for (std::size_t i = 0; i < chart.Points(); ++i) whole += Slice(chart, i);
  if (whole <= 0) return;
  const ChartFrame& rest = painter.rest();
  const double line = painter.LineHeight(painter.size());
  const double half = std::min(rest.width, rest.height) / 2;
  // In a small frame the slices go to the edge, and those at it find no room for their values.
  const double around = 1.2 * line > half / 2 ? 0 : 1.2 * line;
  const double radius = (half - around) / (1 + kApart);
  const PrintPoint centre{rest.left + rest.width / 2, rest.top + rest.height / 2};
  std::vector<Box> taken;
  double from = 0;
  for (std::size_t i = 0; i < chart.Points(); ++i) {
    const double share = Slice(chart, i) / whole;
    if (share == 0) continue;
    const double to = from + share * kTurn, middle = (from + to) / 2;
    const bool apart = i < chart.exploded.size() && chart.exploded[i] && share < 1;
    const PrintPoint tip = apart ? Towards(centre, middle, radius * kApart) : centre;
    std::vector<PrintPoint> wedge = Wedge(tip, radius, from, to);
    painter.Fill(wedge, painter.colors().slices[i % kChartSlices]);
    if (share >= kLeastNamed)
      DrawSliceText(painter, PlainNumberText(chart.sets.front().values[i]),
                    Towards(tip, middle, radius + painter.gap() / 2), middle, taken);
    painter.AddSpot({std::move(wedge), 0, static_cast<int>(i), -1});
    from = to;
  }
}

}  // namespace tallyroll
