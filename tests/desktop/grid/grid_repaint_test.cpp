// SPDX-License-Identifier: GPL-3.0-or-later
// Only what a key, the pointer or the logic changed is painted, and nothing less.
#include <QScreen>
#include <QScrollBar>

#include "tests/desktop/grid/shown_grid.h"

namespace tallyroll {
namespace {

class GridRepaint : public ShownGrid {
 protected:
  // What stands on the screen is what a paint of everything shows.
  void ExpectWhole(const char* after) {
    QTest::qWait(1);
    const QImage shown = widget.screen()->grabWindow(widget.winId()).toImage();
    // On a screen of another scale a part of it is seen.
    const QImage whole = widget.grab().toImage().copy(shown.rect());
    ASSERT_FALSE(shown.isNull());
    EXPECT_TRUE(shown.convertToFormat(QImage::Format_RGB32) ==
                whole.convertToFormat(QImage::Format_RGB32))
        << after;
  }
  int RowHeight() const { return widget.CellRect(3, 2).height(); }
};

TEST_F(GridRepaint, AKeyPaintsTwoRowsAndTheColumn) {
  Press(Qt::Key_Down);
  const QRegion painted = Painted();
  EXPECT_EQ(grid.Row, 3);
  EXPECT_TRUE(painted.contains(widget.CellRect(2, 5)));
  EXPECT_TRUE(painted.contains(widget.CellRect(3, 5)));
  EXPECT_TRUE(painted.contains(widget.CellRect(1, 2)));
  EXPECT_FALSE(painted.intersects(widget.CellRect(6, 5)));
  EXPECT_LT(AreaOf(painted), AreaOfView() / 2);
}

TEST_F(GridRepaint, ThePointerPaintsTheTwoRowsAndTheTwoHeads) {
  QTest::mouseMove(widget.viewport(), widget.CellRect(5, 4).center());
  Settle();
  QTest::mouseMove(widget.viewport(), widget.CellRect(6, 5).center());
  const QRegion painted = Painted();
  EXPECT_TRUE(painted.contains(widget.CellRect(5, 3)));
  EXPECT_TRUE(painted.contains(widget.CellRect(6, 3)));
  EXPECT_TRUE(painted.contains(widget.CellRect(1, 5)));
  EXPECT_FALSE(painted.intersects(widget.CellRect(7, 3)));
  EXPECT_FALSE(painted.intersects(widget.CellRect(4, 3)));
}

TEST_F(GridRepaint, ThePointerWithinACellPaintsNothing) {
  QTest::mouseMove(widget.viewport(), widget.CellRect(5, 4).center());
  Settle();
  QTest::mouseMove(widget.viewport(), widget.CellRect(5, 4).center() + QPoint(2, 1));
  EXPECT_TRUE(Painted().isEmpty());
}

TEST_F(GridRepaint, ATextPaintsItsCell) {
  grid.SetTextMatrix(5, 4, "7");
  widget.UpdateFromGrid();
  const QRegion painted = Painted();
  EXPECT_TRUE(painted.contains(widget.CellRect(5, 4)));
  EXPECT_LE(AreaOf(painted), AreaOf(widget.CellRect(5, 4)));
}

TEST_F(GridRepaint, AScrolledRowPaintsWhatComesIntoView) {
  widget.verticalScrollBar()->setValue(1);
  const QRegion painted = Painted();
  EXPECT_FALSE(painted.isEmpty());
  EXPECT_LT(AreaOf(painted), AreaOfView() / 3);
}

TEST_F(GridRepaint, WhatStandsOnTheScreenIsWhole) {
  ExpectWhole("showing");
  QTest::mouseMove(widget.viewport(), widget.CellRect(6, 3).center());
  ExpectWhole("pointing");
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_PageDown}) {
    Press(key);
    ExpectWhole("a key");
  }
  Press(Qt::Key_Down, Qt::ShiftModifier);
  Press(Qt::Key_Right, Qt::ShiftModifier);
  ExpectWhole("selecting");
  Press(Qt::Key_Up);
  ExpectWhole("ending the selection");
  widget.verticalScrollBar()->setValue(7);
  ExpectWhole("scrolling down");
  widget.verticalScrollBar()->setValue(2);
  ExpectWhole("scrolling up");
  widget.horizontalScrollBar()->setValue(3);
  ExpectWhole("scrolling right");
  widget.horizontalScrollBar()->setValue(1);
  ExpectWhole("scrolling left");
  grid.SetTextMatrix(grid.TopRow + 3, grid.LeftCol + 2, "x");
  widget.UpdateFromGrid();
  ExpectWhole("a text");
  grid.Row = 40;
  widget.UpdateFromGrid();
  ExpectWhole("a move of the logic");
  widget.clearFocus();
  ExpectWhole("the focus gone");
  Press(Qt::Key_Plus, Qt::ControlModifier);
  ExpectWhole("zooming");
  Click(grid.TopRow + 1, grid.LeftCol + 1);
  ExpectWhole("a click");
}

TEST_F(GridRepaint, ANoteThatChangedIsPainted) {
  CellMark mark = CellMark::kNone;
  grid.Notes.Of = [&](int row, int col) {
    return CellNote{row == 4 && col == 4 ? mark : CellMark::kNone, ""};
  };
  grid.NotesChanged();
  widget.UpdateFromGrid();
  Settle();
  mark = CellMark::kFailing;
  grid.NotesChanged();
  widget.UpdateFromGrid();
  EXPECT_TRUE(Painted().contains(widget.CellRect(4, 4)));
  ExpectWhole("a note");
}

}  // namespace
}  // namespace tallyroll
