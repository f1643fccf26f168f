// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/basics/spoken_role.h"

#include <QAccessibleWidget>

namespace tallyroll {
namespace {

QAccessibleInterface* MakeSpoken(const QString&, QObject* object) {
  const auto* spoken = dynamic_cast<const SpokenAs*>(object);
  auto* widget = qobject_cast<QWidget*>(object);
  return spoken && widget ? new QAccessibleWidget(widget, spoken->SpokenRole()) : nullptr;
}

}  // namespace

// The toolkit keeps a factory once, however often it is given.
SpokenAs::SpokenAs(QAccessible::Role role) : role_(role) {
  QAccessible::installFactory(MakeSpoken);
}

}  // namespace tallyroll
