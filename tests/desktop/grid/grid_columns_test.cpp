// SPDX-License-Identifier: GPL-3.0-or-later
// Widths, size and selection, as a user sets them by mouse and keys.
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSettings>
#include <QSignalSpy>
#include <QWheelEvent>

#include "tests/desktop/grid/shown_grid.h"

namespace tallyroll {
namespace {

class GridColumns : public ShownGrid {
 protected:
  GridColumns() {
    for (int col = 2; col < 20; ++col) grid.SetTextMatrix(1, col, "Q" + std::to_string(col));
    QSettings().clear();
    widget.Keep(QStringLiteral("test.grid"));
  }
  ~GridColumns() override { QSettings().clear(); }
  QPoint BorderOf(int col) const {
    const QRect head = widget.CellRect(1, col);
    return {head.right(), head.center().y()};
  }
  void Drag(int col, int by) {
    const QPoint from = BorderOf(col);
    QTest::mousePress(widget.viewport(), Qt::LeftButton, {}, from);
    MoveWithButton(from + QPoint(by, 0));
    QTest::mouseRelease(widget.viewport(), Qt::LeftButton, {}, from + QPoint(by, 0));
  }
  void MoveWithButton(const QPoint& place) {
    QMouseEvent move(QEvent::MouseMove, place, widget.viewport()->mapToGlobal(place), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(widget.viewport(), &move);
  }
  int WidthOf(int col) const { return widget.CellRect(1, col).width(); }
  QString Copied() const { return QGuiApplication::clipboard()->text(); }
};

TEST_F(GridColumns, ABorderIsDrawnAlongAndClicksNothing) {
  QSignalSpy clicked(&widget, &GridWidget::cellClicked);
  const int before = WidthOf(3), told = grid.ColWidth(3);
  Drag(3, 30);
  EXPECT_NEAR(WidthOf(3), before + 30, 1);
  EXPECT_EQ(clicked.count(), 0);
  EXPECT_EQ(grid.ColWidth(3), told) << "what the logic says stays";
}

TEST_F(GridColumns, AWidthIsKeptWithItsHead) {
  Drag(3, 40);
  const int wide = WidthOf(3);
  Grid other;
  other.SetSize(4, 6);
  other.SetTextMatrix(0, 4, "Q3");
  other.SetTextMatrix(0, 3, "Q4");
  GridWidget later;
  later.resize(700, 300);
  later.Keep(QStringLiteral("test.grid"));
  later.SetGrid(&other);
  EXPECT_NEAR(later.CellRect(0, 4).width(), wide, 1);
  EXPECT_LT(later.CellRect(0, 3).width(), wide - 20);
  later.SetGrid(nullptr);
}

TEST_F(GridColumns, TheLastColumnOfATableOfWordsReachesTheEdge) {
  Grid words;
  words.SetSize(3, 3);
  GridWidget table;
  table.SetLastColumnFills(true);
  table.SetGrid(&words);
  table.resize(700, 300);
  table.show();
  QCoreApplication::processEvents();
  EXPECT_EQ(table.CellRect(0, 2).right() + 1, table.viewport()->width());
  EXPECT_EQ(table.CellRect(0, 0).width(), table.CellRect(0, 1).width());
  table.resize(500, 300);
  QCoreApplication::processEvents();
  EXPECT_EQ(table.CellRect(0, 2).right() + 1, table.viewport()->width());
  table.SetGrid(nullptr);
}

TEST_F(GridColumns, TwoClicksOnABorderTakeTheWidthBack) {
  QSignalSpy twice(&widget, &GridWidget::cellDoubleClicked);
  const int before = WidthOf(3);
  Drag(3, 40);
  QTest::mouseDClick(widget.viewport(), Qt::LeftButton, {}, BorderOf(3));
  EXPECT_EQ(WidthOf(3), before);
  EXPECT_EQ(twice.count(), 0);
}

TEST_F(GridColumns, AColumnStaysWideEnoughToBeTakenHoldOf) {
  Drag(3, -500);
  EXPECT_GT(WidthOf(3), 8);
}

TEST_F(GridColumns, ControlWithPlusMinusAndNoughtZooms) {
  const QRect before = widget.CellRect(3, 3);
  Press(Qt::Key_Plus, Qt::ControlModifier);
  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_GT(widget.CellRect(3, 3).width(), before.width());
  EXPECT_GT(widget.CellRect(3, 3).height(), before.height());
  EXPECT_NEAR(widget.Zoom(), 1.21, 0.001);
  Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_NEAR(widget.Zoom(), 1.1, 0.001);
  EXPECT_NEAR(QSettings().value(QStringLiteral("GridZoom/test.grid")).toDouble(), 1.1, 0.001);
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(widget.CellRect(3, 3), before);
}

TEST_F(GridColumns, ControlWithTheWheelZoomsAndTheWheelAloneScrolls) {
  const QPoint place(300, 200);
  const auto turn = [&](Qt::KeyboardModifiers modifiers) {
    QWheelEvent wheel(place, widget.viewport()->mapToGlobal(place), {}, QPoint(0, 120), {},
                      modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget.viewport(), &wheel);
  };
  turn(Qt::ControlModifier);
  EXPECT_NEAR(widget.Zoom(), 1.1, 0.001);
  EXPECT_EQ(grid.TopRow, 2);
  turn({});
  EXPECT_NEAR(widget.Zoom(), 1.1, 0.001);
}

TEST_F(GridColumns, ShiftSelectsAndControlCCopiesATable) {
  grid.SetTextMatrix(2, 2, "");
  Press(Qt::Key_Right, Qt::ShiftModifier);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(widget.Range(), (CellRange{2, 2, 3, 3}));
  EXPECT_EQ(grid.Row, 3);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copied(), QStringLiteral("\t5\n5\t6"));
  EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasHtml());
  Press(Qt::Key_Down);
  EXPECT_TRUE(widget.Range().IsOneCell());
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copied(), QStringLiteral("7"));
}

TEST_F(GridColumns, AClickWithShiftSelectsUpToIt) {
  Click(3, 3);
  Click(5, 4, Qt::ShiftModifier);
  EXPECT_EQ(widget.Range(), (CellRange{3, 3, 5, 4}));
  Click(4, 4);
  EXPECT_TRUE(widget.Range().IsOneCell());
}

TEST_F(GridColumns, WhatTheLogicMovesIsNoSelection) {
  Press(Qt::Key_Down, Qt::ShiftModifier);
  grid.Row = 10;
  widget.UpdateFromGrid();
  EXPECT_EQ(widget.Range(), (CellRange{10, 2, 10, 2}));
}

TEST_F(GridColumns, HiddenColumnsAreNotCopied) {
  grid.SetColWidth(3, 0);
  widget.UpdateFromGrid();
  Press(Qt::Key_Right, Qt::ShiftModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copied(), QStringLiteral("4\t6"));
}

}  // namespace
}  // namespace tallyroll
