// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/wheel_guard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>
#include <QTabBar>

#include "desktop/grid/cell_list.h"
#include "desktop/grid/grid_widget.h"

namespace tallyroll {
namespace {

bool IsOfGrid(const QWidget& widget) {
  return qobject_cast<const GridWidget*>(&widget) ||
         qobject_cast<const GridWidget*>(widget.parentWidget()) ||
         qobject_cast<const CellList*>(&widget);
}

bool ChangesByWheel(const QWidget& widget) {
  if (qobject_cast<const QScrollBar*>(&widget)) return false;
  return qobject_cast<const QComboBox*>(&widget) ||
         qobject_cast<const QAbstractSpinBox*>(&widget) ||
         qobject_cast<const QAbstractSlider*>(&widget) || qobject_cast<const QTabBar*>(&widget);
}

}  // namespace

void WheelGuard::Install() {
  if (qApp->findChild<WheelGuard*>()) return;
  qApp->installEventFilter(new WheelGuard(qApp));
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
  const auto type = event->type();
  const bool comes = type == QEvent::Enter || type == QEvent::MouseMove;
  const bool presses = type == QEvent::MouseButtonPress;
  const bool opens = type == QEvent::Show;
  if (!comes && !presses && !opens && type != QEvent::Wheel) return false;
  const auto* widget = qobject_cast<QWidget*>(watched);
  if (!widget) return false;
  if (opens) {
    // In a window that is new the pointer came from nowhere yet; a tip or a list is no such window.
    const auto kind = widget->windowType();
    if (kind == Qt::Window || kind == Qt::Dialog) came_from_grid_ = false;
    return false;
  }
  const bool of_grid = IsOfGrid(*widget);
  if (of_grid || presses) came_from_grid_ = of_grid;
  if (type != QEvent::Wheel || of_grid || !ChangesByWheel(*widget)) return false;
  if (widget->hasFocus() && !came_from_grid_) return false;
  // What stands around it may scroll.
  event->ignore();
  return true;
}

}  // namespace tallyroll
