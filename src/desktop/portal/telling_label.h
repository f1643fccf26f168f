// SPDX-License-Identifier: GPL-3.0-or-later
// A label that says what came of a key or a drag: a screen reader reads it at once, wherever the
// focus is.
#pragma once

#include <QLabel>
#include <QPointer>

namespace tallyroll {

class TellingLabel : public QLabel {
  Q_OBJECT

 public:
  explicit TellingLabel(QWidget* parent = nullptr) : QLabel(parent) {}

  // Shows a text and tells it, once the focus has come to rest.
  void Tell(const QString& text);

 private:
  void TellAtFocus();
  void TakeBack();

  QPointer<QWidget> told_at_;
};

}  // namespace tallyroll
