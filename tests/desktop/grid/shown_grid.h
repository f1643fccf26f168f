// SPDX-License-Identifier: GPL-3.0-or-later
// A grid of sixty rows and twenty columns in a window of its own, and what was painted of it.
#pragma once

#include <gtest/gtest.h>

#include <QPaintEvent>
#include <QTest>

#include "desktop/grid/grid_widget.h"

namespace tallyroll {

class NotingGridWidget : public GridWidget {
 public:
  using GridWidget::GridWidget;
  QRegion painted;

 protected:
  void paintEvent(QPaintEvent* event) override {
    painted += event->region();
    GridWidget::paintEvent(event);
  }
};

class ShownGrid : public testing::Test {
 protected:
  ShownGrid() {
    grid.SetSize(60, 20);
    grid.FixedRows = 2;
    grid.FixedCols = 2;
    grid.Row = grid.Col = grid.TopRow = grid.LeftCol = 2;
    for (int row = 2; row < 60; ++row)
      for (int col = 2; col < 20; ++col) grid.SetTextMatrix(row, col, std::to_string(row + col));
  }
  void SetUp() override { Show(); }
  void Show() {
    widget.SetGrid(&grid);
    widget.resize(700, 400);
    widget.show();
    widget.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
    widget.setFocus();
    QTest::mouseMove(&widget, QPoint(690, 395));
    Settle();
  }
  void Settle() {
    QTest::qWait(1);
    widget.painted = {};
  }
  QRegion Painted() {
    QTest::qWait(1);
    return std::exchange(widget.painted, {});
  }
  static int AreaOf(const QRegion& region) {
    int area = 0;
    for (const QRect& rect : region) area += rect.width() * rect.height();
    return area;
  }
  int AreaOfView() const { return AreaOf(widget.viewport()->rect()); }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&widget, key, modifiers);
  }
  void Click(int row, int col, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, modifiers,
                      widget.CellRect(row, col).center());
  }
  QImage Picture() { return widget.viewport()->grab().toImage(); }
  bool Has(const QImage& image, const QRect& place, const QColor& color) {
    for (int y = place.top(); y <= place.bottom(); ++y)
      for (int x = place.left(); x <= place.right(); ++x)
        if (image.rect().contains(x, y) && image.pixelColor(x, y).rgb() == color.rgb()) return true;
    return false;
  }
  Tokens Colors() const { return TokensOf(widget.palette()); }

  Grid grid;
  NotingGridWidget widget;
};

}  // namespace tallyroll
