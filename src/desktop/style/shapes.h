// SPDX-License-Identifier: GPL-3.0-or-later
// The shapes that the controls are drawn of.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace tallyroll {

// Saves the painter for as long as it lives, and smooths edges meanwhile.
class SmoothEdges {
 public:
  explicit SmoothEdges(QPainter& painter);
  ~SmoothEdges() { painter_.restore(); }
  SmoothEdges(const SmoothEdges&) = delete;
  SmoothEdges& operator=(const SmoothEdges&) = delete;

 private:
  QPainter& painter_;
};

// A box with round corners whose line lies within the rectangle, on whole dots of the screen. An
// invalid colour draws nothing.
void DrawBox(QPainter& painter, const QRectF& rect, double radius, const QColor& fill,
             const QColor& line = QColor(), double width = 1);

// A line as thick wherever it lies: at a fraction of a scale a pixel is one dot of the screen here
// and two there.
void DrawRule(QPainter& painter, const QRect& rule, const QColor& color);

// An open arrow in the middle of the box.
void DrawArrow(QPainter& painter, const QRectF& box, Qt::ArrowType way, const QColor& color,
               double size);
void DrawTick(QPainter& painter, const QRectF& box, const QColor& color);
// A sheet of a calendar.
void DrawCalendar(QPainter& painter, const QRectF& box, const QColor& color);

}  // namespace tallyroll
