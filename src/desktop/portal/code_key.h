// SPDX-License-Identifier: GPL-3.0-or-later
// CodeKey: the codes of attendance as they stand in the month, each with its word.
#pragma once

#include <QWidget>

#include "desktop/basics/spoken_role.h"

namespace tallyroll {

class CodeKey : public QWidget, public SpokenAs {
  Q_OBJECT

 public:
  explicit CodeKey(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tallyroll
