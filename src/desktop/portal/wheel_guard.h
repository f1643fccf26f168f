// SPDX-License-Identifier: GPL-3.0-or-later
// The wheel scrolls. It changes the value of a field only when the field has the focus and the
// pointer did not come to it from a grid that was being scrolled.
#pragma once

#include <QObject>

namespace tallyroll {

class WheelGuard : public QObject {
  Q_OBJECT

 public:
  // Guards every window of the program; once is enough, more does no harm.
  static void Install();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using QObject::QObject;

  bool came_from_grid_ = false;  // the pointer, and nothing else was pressed since
};

}  // namespace tallyroll
