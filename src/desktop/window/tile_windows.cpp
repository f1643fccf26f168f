// SPDX-License-Identifier: GPL-3.0-or-later
// Sets the windows of an area side by side or one below another.
#include "desktop/window/tile_windows.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace tallyroll {

void TileWindows(QMdiArea& area, Qt::Orientation direction) {
  QList<QMdiSubWindow*> windows = area.subWindowList(QMdiArea::CreationOrder);
  windows.removeIf([](const QMdiSubWindow* window) { return window->isMinimized(); });
  for (QMdiSubWindow* window : windows) window->showNormal();
  const QRect room = area.viewport()->rect();
  const int count = static_cast<int>(windows.size());
  for (int i = 0; i < count; ++i) {
    // Both edges come from the whole, so that no gap is left when it does not divide.
    if (direction == Qt::Vertical) {
      const int top = room.height() * i / count;
      windows[i]->setGeometry(0, top, room.width(), room.height() * (i + 1) / count - top);
    } else {
      const int left = room.width() * i / count;
      windows[i]->setGeometry(left, 0, room.width() * (i + 1) / count - left, room.height());
    }
  }
}

}  // namespace tallyroll
