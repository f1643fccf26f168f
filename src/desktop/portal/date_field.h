// SPDX-License-Identifier: GPL-3.0-or-later
// Dates with their calendars.
#pragma once

#include <QDateEdit>

namespace tallyroll {

// Tab leaves it as it leaves any field: the toolkit would stop at the day, the month and the year.
// The arrows move among these.
class DateField : public QDateEdit {
  Q_OBJECT

 public:
  using QDateEdit::QDateEdit;

 protected:
  bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }
};

// Only the arrow of a date field: it stands behind a box that holds the date as text, and picks a
// day into it.
class DateArrow : public DateField {
  Q_OBJECT

 public:
  explicit DateArrow(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PressArrow(const QMouseEvent& press);
};

}  // namespace tallyroll
