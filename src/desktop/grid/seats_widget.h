// SPDX-License-Identifier: GPL-3.0-or-later
// A grid whose cells are the seats of a classroom: a card where somebody sits, an empty place where
// nobody does. The board stands above, with the numbers of the classroom's rows below it.
#pragma once

#include "desktop/grid/grid_widget.h"

namespace tallyroll {

class SeatsWidget : public GridWidget {
  Q_OBJECT

 public:
  explicit SeatsWidget(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Head;

  void PaintSeat(QPainter& painter, int row, int col) const;
  void PaintCard(QPainter& painter, const QRect& card, int row, int col) const;

  QWidget* head_;
};

}  // namespace tallyroll
