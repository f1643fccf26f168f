// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/chart_painter.h"

#include <algorithm>

namespace tallyroll {
namespace {

constexpr std::string_view kPoints = "\x85";  // three points in one character
constexpr double kLargest = 10, kSmallest = 6;
constexpr double kTwipsOfAPoint = 680;  // of the frame, for each point of the font
constexpr double kMostOfRest = 0.25;    // that a title or legend takes
constexpr double kHair = 0.001;         // twips; less is a rounding

double SizeFor(const ChartFrame& frame) {
  const double by_room = std::min(frame.width, frame.height * 1.5) / kTwipsOfAPoint;
  return std::clamp(by_room, kSmallest, kLargest);
}

enum class Outline { kOpen, kClosed };

// What lies on the inner side of one edge of the frame: `beyond` is below zero there.
template <typename Beyond>
std::vector<PrintPoint> CutAt(const std::vector<PrintPoint>& corners, Outline outline,
                              Beyond beyond) {
  std::vector<PrintPoint> within;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const PrintPoint here = corners[i], next = corners[(i + 1) % corners.size()];
    const double from = beyond(here), to = beyond(next);
    if (from <= 0) within.push_back(here);
    if (outline == Outline::kOpen && i + 1 == corners.size()) break;
    if ((from < 0 && to > 0) || (from > 0 && to < 0)) {
      const double share = from / (from - to);
      within.push_back({here.x + (next.x - here.x) * share, here.y + (next.y - here.y) * share});
    }
  }
  return within;
}

std::vector<PrintPoint> WithinFrame(std::vector<PrintPoint> corners, const ChartFrame& frame,
                                    Outline outline) {
  const double right = frame.left + frame.width, bottom = frame.top + frame.height;
  const auto leaves = [&](const PrintPoint& at) {
    return at.x < frame.left || at.x > right || at.y < frame.top || at.y > bottom;
  };
  if (std::none_of(corners.begin(), corners.end(), leaves)) return corners;
  corners = CutAt(corners, outline, [&](const PrintPoint& at) { return frame.left - at.x; });
  corners = CutAt(corners, outline, [&](const PrintPoint& at) { return at.x - right; });
  corners = CutAt(corners, outline, [&](const PrintPoint& at) { return frame.top - at.y; });
  return CutAt(corners, outline, [&](const PrintPoint& at) { return at.y - bottom; });
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
      frame_(frame),
      size_(SizeFor(frame)),
      gap_(size_ * 8),
      font_before_(target.FontName),
      size_before_(target.FontSize),
      width_before_(target.LineWidth),
      x_before_(target.CurrentX),
      y_before_(target.CurrentY),
      bold_before_(target.FontBold),
      color_before_(target.ForeColor) {
  target_.FontName = colors.font;
  target_.FontBold = false;
  Fill(Rectangle(frame.left, frame.top, frame.left + frame.width, frame.top + frame.height),
       colors.ground);
  const double edge = std::min({gap_, frame.width / 4, frame.height / 4});
  rest_ = {frame.left + edge, frame.top + edge, frame.width - 2 * edge, frame.height - 2 * edge};
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

bool ChartPainter::TakePlace(double left, double top, double right, double bottom) {
  if (left < frame_.left - kHair || right > frame_.left + frame_.width + kHair ||
      top < frame_.top - kHair || bottom > frame_.top + frame_.height + kHair)
    return false;
  const auto meets = [&](const ChartFrame& text) {
    return left < text.left + text.width - kHair && text.left < right - kHair &&
           top < text.top + text.height - kHair && text.top < bottom - kHair;
  };
  if (std::any_of(texts_.begin(), texts_.end(), meets)) return false;
  texts_.push_back({left, top, right - left, bottom - top});
  return true;
}

void ChartPainter::Text(std::string_view text, double x, double y, double size) {
  const double height = LineHeight(size);
  if (text.empty() || !TakePlace(x, y, x + Width(text, size), y + height)) return;
  target_.ForeColor = colors_.text;
  target_.CurrentX = x;
  target_.CurrentY = y;
  target_.PrintOpen(text);
}

void ChartPainter::TextUpwards(std::string_view text, double x, double y, double size) {
  const double height = LineHeight(size);
  if (text.empty() || !TakePlace(x, y - Width(text, size), x + height, y)) return;
  target_.ForeColor = colors_.text;
  target_.PrintUpwards(text, x, y);
}

void ChartPainter::Line(PrintPoint from, PrintPoint to, double width, PrintColor color) {
  const std::vector<PrintPoint> ends = WithinFrame({from, to}, frame_, Outline::kOpen);
  if (ends.size() < 2) return;
  target_.LineWidth = width;
  target_.ForeColor = color;
  target_.Line(ends.front().x, ends.front().y, ends.back().x, ends.back().y);
}

void ChartPainter::Fill(const std::vector<PrintPoint>& corners, PrintColor color) {
  const std::vector<PrintPoint> within = WithinFrame(corners, frame_, Outline::kClosed);
  if (within.size() > 2) target_.FillPolygon(within, color);
}

void ChartPainter::AddSpot(ChartSpot spot) {
  spot.outline = WithinFrame(std::move(spot.outline), frame_, Outline::kClosed);
  spots_.push_back(std::move(spot));
}

void ChartPainter::DrawTitle() {
  const double size = size_ * 1.2;
  const double height = LineHeight(size) + gap_;
  if (chart_.title.empty() || height > rest_.height * kMostOfRest) return;
  target_.FontBold = true;
  const std::string title = Fitted(chart_.title, size, rest_.width);
  Text(title, rest_.left + (rest_.width - Width(title, size)) / 2, rest_.top, size);
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
  const double height = (row + 1) * line;
  if (places.empty() || height + gap_ > rest_.height * kMostOfRest) return;
  rest_.height -= height + gap_;
  for (const Place& place : places)
    DrawEntry(*place.entry, rest_.left + place.x,
              rest_.top + rest_.height + gap_ + place.row * line, place.room);
}

}  // namespace tallyroll
