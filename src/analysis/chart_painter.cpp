// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/chart_painter.h"

#include <algorithm>

namespace tallyroll {
namespace {

constexpr std::string_view kChartFont = "Arial";
constexpr std::string_view kPoints = "\x85";  // three points in one character
constexpr double kLargest = 10, kSmallest = 6;
constexpr double kTwipsOfAPoint = 680;  // of the frame, for each point of the font

double SizeFor(const ChartFrame& frame) {
  const double by_room = std::min(frame.width, frame.height * 1.5) / kTwipsOfAPoint;
  return std::clamp(by_room, kSmallest, kLargest);
}

}  // namespace

std::vector<PrintPoint> Rectangle(double x1, double y1, double x2, double y2) {
  return {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}};
}

ChartPainter::ChartPainter(const Chart& chart, PrintTarget& target, const ChartFrame& frame,
                           const ChartColors& colors)
    : chart_(chart),
      target_(target),
      colors_(colors),
      size_(SizeFor(frame)),
      gap_(size_ * 8),
      font_before_(target.FontName),
      size_before_(target.FontSize),
      width_before_(target.LineWidth),
      x_before_(target.CurrentX),
      y_before_(target.CurrentY),
      bold_before_(target.FontBold),
      color_before_(target.ForeColor) {
  target_.FontName = kChartFont;
  target_.FontBold = false;
  Fill(Rectangle(frame.left, frame.top, frame.left + frame.width, frame.top + frame.height),
       colors.ground);
  rest_ = {frame.left + gap_, frame.top + gap_, std::max(frame.width - 2 * gap_, 1.0),
           std::max(frame.height - 2 * gap_, 1.0)};
}

ChartPainter::~ChartPainter() {
  target_.FontName = font_before_;
  target_.FontSize = size_before_;
  target_.FontBold = bold_before_;
  target_.LineWidth = width_before_;
  target_.ForeColor = color_before_;
  target_.CurrentX = x_before_;
  target_.CurrentY = y_before_;
}

double ChartPainter::LineHeight(double size) {
  target_.FontSize = size;
  return target_.TextHeight("A");
}

double ChartPainter::Width(std::string_view text, double size) {
  target_.FontSize = size;
  return target_.TextWidth(text);
}

double ChartPainter::Widest(const std::vector<std::string>& texts, double size) {
  double widest = 0;
  for (const std::string& text : texts) widest = std::max(widest, Width(text, size));
  return widest;
}

std::string ChartPainter::Fitted(std::string_view text, double size, double room) {
  if (Width(text, size) <= room) return std::string(text);
  for (std::size_t kept = text.size(); kept > 0; --kept) {
    std::string shorter = std::string(text.substr(0, kept - 1)) + std::string(kPoints);
    if (Width(shorter, size) <= room) return shorter;
  }
  return {};
}

void ChartPainter::Text(std::string_view text, double x, double y, double size) {
  target_.FontSize = size;
  target_.ForeColor = colors_.text;
  target_.CurrentX = x;
  target_.CurrentY = y;
  target_.PrintOpen(text);
}

void ChartPainter::TextUpwards(std::string_view text, double x, double y, double size) {
  target_.FontSize = size;
  target_.ForeColor = colors_.text;
  target_.PrintUpwards(text, x, y);
}

void ChartPainter::Line(PrintPoint from, PrintPoint to, double width, PrintColor color) {
  target_.LineWidth = width;
  target_.ForeColor = color;
  target_.Line(from.x, from.y, to.x, to.y);
}

void ChartPainter::Fill(const std::vector<PrintPoint>& corners, PrintColor color) {
  target_.FillPolygon(corners, color);
}

void ChartPainter::DrawTitle() {
  if (chart_.title.empty()) return;
  const double size = size_ * 1.2;
  target_.FontBold = true;
  const std::string title = Fitted(chart_.title, size, rest_.width);
  Text(title, rest_.left + (rest_.width - Width(title, size)) / 2, rest_.top, size);
  const double height = LineHeight(size) + gap_;
  target_.FontBold = false;
  rest_.top += height;
  rest_.height -= height;
}

void ChartPainter::DrawEntry(const LegendEntry& entry, double x, double y, double room) {
  const double line = LineHeight(size_);
  const double field = line * 0.6;
  if (entry.thin)
    Line({x, y + line / 2}, {x + field, y + line / 2}, 15, entry.color);
  else
    Fill(Rectangle(x, y + (line - field) / 2, x + field, y + (line + field) / 2), entry.color);
  Text(Fitted(entry.text, size_, room - field - gap_), x + field + gap_, y, size_);
}

void ChartPainter::DrawLegendBelow(const std::vector<LegendEntry>& entries) {
  const double line = LineHeight(size_);
  struct Place {
    const LegendEntry* entry;
    double x;
    int row;
    double room;
  };
  std::vector<Place> places;
  double x = 0;
  int row = 0;
  for (const LegendEntry& entry : entries) {
    const double wanted = Width(entry.text, size_) + line * 0.6 + 3 * gap_;
    const double room = std::min(wanted, rest_.width);
    if (x > 0 && x + room > rest_.width) {
      x = 0;
      ++row;
    }
    places.push_back({&entry, x, row, room});
    x += room;
  }
  if (places.empty()) return;
  const double height = (row + 1) * line;
  rest_.height -= height + gap_;
  for (const Place& place : places)
    DrawEntry(*place.entry, rest_.left + place.x,
              rest_.top + rest_.height + gap_ + place.row * line, place.room);
}

}  // namespace tallyroll
