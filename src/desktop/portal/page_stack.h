// SPDX-License-Identifier: GPL-3.0-or-later
// Pages of a form of which one shows: it wants the room of that page alone.
#pragma once

#include <QStackedWidget>

namespace tallyroll {

class PageStack : public QStackedWidget {
  Q_OBJECT

 public:
  explicit PageStack(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override;
  int heightForWidth(int width) const override;
};

}  // namespace tallyroll
