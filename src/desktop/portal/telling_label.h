// SPDX-License-Identifier: GPL-3.0-or-later
// A label that says what came of a key or a drag: a screen reader reads it at once, wherever the
// focus is.
#pragma once

#include <QPointer>

#include "desktop/portal/form_labels.h"

namespace tallyroll {

class TellingLabel : public ElidedLabel {
  Q_OBJECT

 public:
  explicit TellingLabel(QWidget* parent = nullptr);

  // Shows a text and tells it, once the focus has come to rest.
  void Tell(const QString& text);

 private:
  void TellAtFocus();
  void TakeBack();

  QPointer<QWidget> told_at_;
};

}  // namespace tallyroll
