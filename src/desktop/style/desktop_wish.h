// SPDX-License-Identifier: GPL-3.0-or-later
// What the desktop says of light and dark, through its portal on the session bus.
#pragma once

#include <QObject>

#include "desktop/style/appearance.h"

class QDBusVariant;

namespace tallyroll {

// Asks once and then listens, and tells of each answer. Nothing waits for it: where no portal is,
// no answer comes.
class DesktopWish : public QObject {
  Q_OBJECT
  Q_MOC_INCLUDE(<QDBusVariant>)

 public:
  explicit DesktopWish(QObject* parent = nullptr);

  void Ask();

 Q_SIGNALS:
  void Answered(ColorWish wish);

 private Q_SLOTS:
  void SettingChanged(const QString& room, const QString& key, const QDBusVariant& value);
};

// The portal's number for a colour scheme, however deep it is wrapped.
ColorWish WishOf(const QVariant& value);

}  // namespace tallyroll
