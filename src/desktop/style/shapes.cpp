// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/style/shapes.h"

#include <QPainterPath>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace tallyroll {
namespace {

QPen RoundPen(const QColor& color, double width) {
  return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// That many dots and one at least.
double WholeDots(double length) {
  return std::max(std::round(length), 1.0);
}

// A ring fills the two pixels that a frame leaves it, which may be the lesser number of dots.
double DotsOfLine(double width, double scale) {
  return width < 2 ? WholeDots(width * scale) : std::floor(width * scale);
}

struct BoxPlace {
  QRectF rect;
  double width;  // of its line
};

// At a fraction of a scale an edge between two dots would be smeared over both.
BoxPlace OnWholeDots(const QPainter& painter, const QRectF& rect, double width) {
  const QTransform to_dots = painter.deviceTransform();
  const double scale = to_dots.m11();
  if (to_dots.type() > QTransform::TxScale || scale == std::floor(scale)) return {rect, width};
  const QRectF place = to_dots.mapRect(rect);
  const QPointF first(std::round(place.left()), std::round(place.top()));
  const QPointF end(std::round(place.right()), std::round(place.bottom()));
  return {to_dots.inverted().mapRect(QRectF(first, end)), DotsOfLine(width, scale) / scale};
}

}  // namespace

SmoothEdges::SmoothEdges(QPainter& painter) : painter_(painter) {
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
}

void DrawBox(QPainter& painter, const QRectF& rect, double radius, const QColor& fill,
             const QColor& line, double width) {
  const SmoothEdges smooth(painter);
  // A disc stays round, wherever it lies.
  const bool disc = 2 * radius >= std::min(rect.width(), rect.height());
  const BoxPlace place = disc ? BoxPlace{rect, width} : OnWholeDots(painter, rect, width);
  painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
  painter.setPen(line.isValid() ? QPen(line, place.width) : QPen(Qt::NoPen));
  const double inset = line.isValid() ? place.width / 2 : 0;
  painter.drawRoundedRect(place.rect.adjusted(inset, inset, -inset, -inset), radius - inset,
                          radius - inset);
}

void DrawRule(QPainter& painter, const QRect& rule, const QColor& color) {
  const QTransform to_dots = painter.deviceTransform();
  const QRectF place = to_dots.mapRect(QRectF(rule));
  QRectF dots(QPointF(std::round(place.left()), std::round(place.top())),
              QPointF(std::round(place.right()), std::round(place.bottom())));
  // Thin from its far side: there what lies behind it begins.
  if (rule.width() < rule.height())
    dots.setLeft(dots.right() - WholeDots(place.width()));
  else
    dots.setTop(dots.bottom() - WholeDots(place.height()));
  painter.fillRect(to_dots.inverted().mapRect(dots), color);
}

void DrawArrow(QPainter& painter, const QRectF& box, Qt::ArrowType way, const QColor& color,
               double size) {
  const SmoothEdges smooth(painter);
  painter.translate(box.center());
  if (way == Qt::UpArrow) painter.rotate(180);
  if (way == Qt::LeftArrow) painter.rotate(90);
  if (way == Qt::RightArrow) painter.rotate(-90);
  painter.setPen(RoundPen(color, size / 3.2));
  painter.setBrush(Qt::NoBrush);
  const QPointF points[] = {{-size, -size / 2}, {0, size / 2}, {size, -size / 2}};
  painter.drawPolyline(points, 3);
}

void DrawTick(QPainter& painter, const QRectF& box, const QColor& color) {
  const SmoothEdges smooth(painter);
  const double side = box.width();
  painter.setPen(RoundPen(color, side / 8));
  painter.setBrush(Qt::NoBrush);
  const QPointF points[] = {box.topLeft() + QPointF(side * 0.25, side * 0.53),
                            box.topLeft() + QPointF(side * 0.43, side * 0.71),
                            box.topLeft() + QPointF(side * 0.76, side * 0.32)};
  painter.drawPolyline(points, 3);
}

void DrawCalendar(QPainter& painter, const QRectF& box, const QColor& color) {
  const SmoothEdges smooth(painter);
  const double side = box.width();
  painter.translate(box.topLeft());
  painter.setPen(RoundPen(color, side / 12));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(side * 0.12, side * 0.2, side * 0.76, side * 0.7), side * 0.1,
                          side * 0.1);
  painter.drawLine(QPointF(side * 0.12, side * 0.42), QPointF(side * 0.88, side * 0.42));
  for (const double x : {0.34, 0.66})
    painter.drawLine(QPointF(side * x, side * 0.1), QPointF(side * x, side * 0.28));
}

}  // namespace tallyroll
