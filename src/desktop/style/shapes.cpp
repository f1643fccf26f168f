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

// A line's thickness in whole dots: a frame keeps room for no more, so a half goes down.
double WholeLine(double dots) {
  return std::max(std::ceil(dots - 0.5), 1.0);
}

// A box of whole pixels, as large as the dots that its widget may paint on. At a fraction of a
// scale its edges would else lie across dots: paler here than there, and cut where the widget ends.
QRectF OnDots(const QTransform& to_dots, const QRectF& rect) {
  // The painter cuts lengths to 64ths of a dot, so none may come back a hair too short.
  constexpr double kHair = 1.0 / 1024;
  const QRectF dots = to_dots.mapRect(rect).toRect();
  return to_dots.inverted().mapRect(dots.translated(kHair, kHair));
}

bool OfWholePixels(const QRectF& rect) {
  return rect == QRectF(rect.toRect());
}

}  // namespace

SmoothEdges::SmoothEdges(QPainter& painter) : painter_(painter) {
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
}

void DrawBox(QPainter& painter, const QRectF& rect, double radius, const QColor& fill,
             const QColor& line, double width) {
  const SmoothEdges smooth(painter);
  const QTransform to_dots = painter.deviceTransform();
  QRectF box = rect;
  // What is round all round has no edge that could lie across dots.
  if (OfWholePixels(rect) && radius < std::min(rect.width(), rect.height()) / 2) {
    box = OnDots(to_dots, rect);
    if (width == std::floor(width)) width = WholeLine(width * to_dots.m22()) / to_dots.m22();
  }
  painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
  painter.setPen(line.isValid() ? QPen(line, width) : QPen(Qt::NoPen));
  const double inset = line.isValid() ? width / 2 : 0;
  painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), radius - inset,
                          radius - inset);
}

void DrawRule(QPainter& painter, const QRect& rule, const QColor& color) {
  const QTransform to_dots = painter.deviceTransform();
  const QRectF place = to_dots.mapRect(QRectF(rule));
  const auto whole = [](double length) { return std::max(std::round(length), 1.0); };
  const QRectF dots(std::round(place.left()), std::round(place.top()), whole(place.width()),
                    whole(place.height()));
  painter.fillRect(to_dots.inverted().mapRect(dots), color);
}

void DrawEdge(QPainter& painter, const QRect& rect, Qt::Edge edge, const QColor& color) {
  const QTransform to_dots = painter.deviceTransform();
  const QRectF place = to_dots.mapRect(QRectF(rect));
  QRectF dots(QPointF(std::round(place.left()), std::round(place.top())),
              QPointF(std::round(place.right()), std::round(place.bottom())));
  if (edge == Qt::BottomEdge)
    dots.setTop(dots.bottom() - WholeLine(to_dots.m22()));
  else
    dots.setLeft(dots.right() - WholeLine(to_dots.m11()));
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
