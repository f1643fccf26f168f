// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QEnterEvent>
#include <QWheelEvent>
#include <QWidget>

namespace tallyroll {

// The pointer comes to the middle of the widget.
inline void PointAt(QWidget& widget) {
  const QPointF place = widget.rect().center();
  QEnterEvent enter(place, widget.mapTo(widget.window(), place), widget.mapToGlobal(place));
  QCoreApplication::sendEvent(&widget, &enter);
}

// Turns the wheel there, a notch up for 1 and down for -1.
inline void TurnWheel(QWidget& widget, int notches) {
  PointAt(widget);
  const QPointF place = widget.rect().center();
  QWheelEvent turn(place, widget.mapToGlobal(place), {}, QPoint(0, 120 * notches), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&widget, &turn);
}

}  // namespace tallyroll
