// SPDX-License-Identifier: GPL-3.0-or-later
// CellList: a list of choices that stands in the current cell of a grid, and never beside it. It
// drops by a click, F4 or Alt+Down; while it is dropped the arrows move in it and what is typed
// goes to the cell.
#pragma once

#include <QComboBox>
#include <QPointer>

namespace tallyroll {

class GridWidget;

class CellList : public QComboBox {
  Q_OBJECT

 public:
  using QComboBox::QComboBox;

  // From now on it stands in the current cell of this grid.
  void StandIn(GridWidget& grid);
  void Place();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QPointer<GridWidget> grid_;
};

}  // namespace tallyroll
