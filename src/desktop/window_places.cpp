// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window_places.h"

#include <QSettings>
#include <QWidget>

namespace tallyroll {
namespace {

QString PlaceKey(const QString& name) {
  return QStringLiteral("Windows/%1").arg(name);
}

}  // namespace

void RestorePlace(QWidget& window, const QString& name) {
  const QByteArray place = QSettings().value(PlaceKey(name)).toByteArray();
  if (!place.isEmpty()) window.restoreGeometry(place);
}

void SavePlace(const QWidget& window, const QString& name) {
  QSettings().setValue(PlaceKey(name), window.saveGeometry());
}

}  // namespace tallyroll
