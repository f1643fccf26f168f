// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/basics/window_places.h"

#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace tallyroll {
namespace {

QString PlaceKey(const QString& name) {
  return QStringLiteral("Windows/%1").arg(name);
}

// The title and the borders that are drawn around a window.
constexpr QSize kFrame(16, 40);

}  // namespace

void KeepOnScreen(QWidget& window) {
  if (window.isMaximized() || window.isFullScreen()) return;
  const QSize room = window.screen()->availableGeometry().size() - kFrame;
  if (window.width() > room.width() || window.height() > room.height())
    window.resize(window.size().boundedTo(room));
}

void RestorePlace(QWidget& window, const QString& name) {
  const QByteArray place = QSettings().value(PlaceKey(name)).toByteArray();
  if (!place.isEmpty()) window.restoreGeometry(place);
  KeepOnScreen(window);
}

void SavePlace(const QWidget& window, const QString& name) {
  QSettings().setValue(PlaceKey(name), window.saveGeometry());
}

}  // namespace tallyroll
