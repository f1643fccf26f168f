// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/style/desktop_wish.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace tallyroll {
namespace {

QString PortalService() {
  return QStringLiteral("org.freedesktop.portal.Desktop");
}
QString PortalPath() {
  return QStringLiteral("/org/freedesktop/portal/desktop");
}
QString PortalSettings() {
  return QStringLiteral("org.freedesktop.portal.Settings");
}
QString AppearanceRoom() {
  return QStringLiteral("org.freedesktop.appearance");
}
QString ColorSchemeKey() {
  return QStringLiteral("color-scheme");
}

}  // namespace

DesktopWish::DesktopWish(QObject* parent) : QObject(parent) {}

void DesktopWish::Ask() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  // A slot is found only once its types have numbers.
  (void)QMetaType::fromType<QDBusVariant>().id();
  bus.connect(PortalService(), PortalPath(), PortalSettings(), QStringLiteral("SettingChanged"),
              this, SLOT(SettingChanged(QString, QString, QDBusVariant)));
  QDBusMessage question = QDBusMessage::createMethodCall(PortalService(), PortalPath(),
                                                         PortalSettings(), QStringLiteral("Read"));
  question << AppearanceRoom() << ColorSchemeKey();
  auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
    call->deleteLater();
    const QDBusPendingReply<QVariant> reply = *call;
    if (!reply.isError()) Q_EMIT Answered(WishOf(reply.value()));
  });
}

void DesktopWish::SettingChanged(const QString& room, const QString& key,
                                 const QDBusVariant& value) {
  if (room == AppearanceRoom() && key == ColorSchemeKey()) Q_EMIT Answered(WishOf(value.variant()));
}

ColorWish WishOf(const QVariant& value) {
  QVariant inner = value;
  while (inner.canConvert<QDBusVariant>() &&
         inner.metaType() == QMetaType::fromType<QDBusVariant>())
    inner = inner.value<QDBusVariant>().variant();
  switch (inner.toUInt()) {
    case 1:
      return ColorWish::kDark;
    case 2:
      return ColorWish::kLight;
    default:
      return ColorWish::kNone;
  }
}

}  // namespace tallyroll
