// SPDX-License-Identifier: GPL-3.0-or-later
// What the drawings of bars, lines and pies share: fonts by the size of the frame, text that is cut
// to its room, title and legend.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/chart_drawing.h"

namespace tallyroll {

struct LegendEntry {
  std::string text;
  PrintColor color;
  bool thin = false;  // a line, not a field of colour
};

class ChartPainter {
 public:
  ChartPainter(const Chart& chart, PrintTarget& target, const ChartFrame& frame,
               const ChartColors& colors);
  ~ChartPainter();
  ChartPainter(const ChartPainter&) = delete;
  ChartPainter& operator=(const ChartPainter&) = delete;

  const Chart& chart() const { return chart_; }
  const ChartColors& colors() const { return colors_; }
  PrintTarget& target() { return target_; }
  ChartFrame& rest() { return rest_; }  // of the frame, what nothing stands in yet
  double size() const { return size_; }
  double gap() const { return gap_; }
  double LineHeight(double size);
  double Width(std::string_view text, double size);
  double Widest(const std::vector<std::string>& texts, double size);
  // The text, or its beginning with three points where it is too wide.
  std::string Fitted(std::string_view text, double size, double room);

  // A text that would leave the frame or lie over another one is not written: in the smallest
  // frames only some find room.
  void Text(std::string_view text, double x, double y, double size);
  void TextUpwards(std::string_view text, double x, double y, double size);
  // Lines and areas end at the frame.
  void Line(PrintPoint from, PrintPoint to, double width, PrintColor color);
  void Fill(const std::vector<PrintPoint>& corners, PrintColor color);

  // Takes the title's line off the rest, where that leaves the points their room.
  void DrawTitle();
  // Rows of entries at the foot, taken off the rest in the same way.
  void DrawLegendBelow(const std::vector<LegendEntry>& entries);
  void DrawEntry(const LegendEntry& entry, double x, double y, double room);

  void AddSpot(ChartSpot spot);
  std::vector<ChartSpot> TakeSpots() { return std::move(spots_); }

 private:
  // Whether the place is free and within the frame; then it is taken.
  bool TakePlace(double left, double top, double right, double bottom);

  const Chart& chart_;
  PrintTarget& target_;
  const ChartColors& colors_;
  ChartFrame frame_, rest_;
  double size_, gap_;
  std::vector<ChartFrame> texts_;  // where they stand
  std::vector<ChartSpot> spots_;

  // The target's own, given back at the end.
  std::string font_before_;
  double size_before_, width_before_, x_before_, y_before_;
  bool bold_before_;
  PrintColor color_before_;
};

// The corners of an upright rectangle.
std::vector<PrintPoint> Rectangle(double x1, double y1, double x2, double y2);

void DrawPlot(ChartPainter& painter);  // bars or lines
// The dots above the points, each point having a slot of that width in the strip.
void DrawDots(ChartPainter& painter, const ChartFrame& strip, double slot);
void DrawPie(ChartPainter& painter);

}  // namespace tallyroll
