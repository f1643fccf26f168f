// SPDX-License-Identifier: GPL-3.0-or-later
// Labels of which a form says only where they stand.
#pragma once

#include <QLabel>

namespace tallyroll {

// A line of a class's own words, however long they are. It never widens its window; what has no
// room is told by a tip.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString Shown() const;
};

// Says how many lines a list has. Its name is the list's with "_count" behind it, its text in the
// form the words, with %1 for the number.
class ListCount : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QString words_;  // empty until it was shown
};

}  // namespace tallyroll
