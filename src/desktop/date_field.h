// SPDX-License-Identifier: GPL-3.0-or-later
// A date with its calendar. Tab leaves it as it leaves any field: the toolkit would stop at the
// day, the month and the year. The arrows move among these.
#pragma once

#include <QDateEdit>

namespace tallyroll {

class DateField : public QDateEdit {
  Q_OBJECT

 public:
  using QDateEdit::QDateEdit;

 protected:
  bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }
};

}  // namespace tallyroll
