// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_widget.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace tallyroll {
namespace {

class CountingGridWidget : public GridWidget {
 public:
  using GridWidget::GridWidget;
  int paints = 0;

 protected:
  void paintEvent(QPaintEvent* event) override {
    ++paints;
    GridWidget::paintEvent(event);
  }
};

class GridWidgetTest : public testing::Test {
 protected:
  void SetUp() override {
    grid.SetSize(60, 20);
    grid.FixedRows = 2;
    grid.FixedCols = 2;
    grid.Row = grid.Col = grid.TopRow = grid.LeftCol = 2;
    for (int r = 2; r < 60; ++r) grid.SetTextMatrix(r, 2, "90");
    widget.SetGrid(&grid);
    widget.resize(500, 300);
    widget.show();
    widget.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
    widget.setFocus();
    Settle();
  }
  void Settle() { QTest::qWait(1); }
  void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&widget, static_cast<Qt::Key>(key), modifiers);
  }
  std::pair<int, int> Current() const { return {grid.Row, grid.Col}; }
  bool InView(int row, int col) const {
    const QRect cell = widget.CellRect(row, col);
    return !cell.isEmpty() && widget.viewport()->rect().contains(cell);
  }
  using At = std::pair<int, int>;

  Grid grid;
  CountingGridWidget widget;
};

TEST_F(GridWidgetTest, ATextIsNotCutBesideEmptyRoom) {
  Grid titles;
  titles.SetSize(3, 2);
  titles.SetTextMatrix(1, 0, "The causes of the war, chapter seventeen, with a map of the country");
  titles.SetTextMatrix(1, 1, "80");
  widget.SetGrid(&titles);
  widget.resize(900, 300);
  Settle();
  EXPECT_FALSE(widget.IsCut(1, 0));
  const int hint = widget.sizeHint().width();
  widget.resize(200, 300);
  Settle();
  EXPECT_TRUE(widget.IsCut(1, 0));
  EXPECT_EQ(widget.sizeHint().width(), hint) << "the window need not be wider";
  widget.SetGrid(&grid);
}

TEST_F(GridWidgetTest, FindsTheCellUnderThePointer) {
  for (const At& at : {At{0, 0}, At{1, 3}, At{5, 1}, At{4, 4}}) {
    const auto cell = widget.CellAt(widget.CellRect(at.first, at.second).center());
    EXPECT_EQ(At(cell.row, cell.col), at);
  }
  EXPECT_EQ(widget.CellAt(QPoint(-1, 5)).row, -1);
}

TEST_F(GridWidgetTest, FindsTheCellAfterScrolling) {
  widget.verticalScrollBar()->setValue(10);
  EXPECT_EQ(grid.TopRow, 12);
  EXPECT_EQ(widget.CellAt(widget.CellRect(12, 2).center()).row, 12);
  EXPECT_TRUE(widget.CellRect(11, 2).isEmpty());
  EXPECT_FALSE(widget.CellRect(1, 2).isEmpty());
}

TEST_F(GridWidgetTest, NothingLiesBehindTheLastCell) {
  grid.SetSize(4, 3);
  widget.UpdateFromGrid();
  EXPECT_EQ(widget.CellAt(QPoint(480, 280)).row, -1);
}

TEST_F(GridWidgetTest, TheCurrentCellStaysInSightWhenTheRoomShrinks) {
  widget.MoveTo(10, 2);
  ASSERT_TRUE(InView(10, 2));
  widget.resize(500, 150);
  EXPECT_TRUE(InView(10, 2));
}

TEST_F(GridWidgetTest, AViewScrolledAwayFromTheCurrentCellStaysWhenTheRoomShrinks) {
  widget.verticalScrollBar()->setValue(20);
  widget.resize(500, 200);
  EXPECT_EQ(grid.TopRow, 22);
}

TEST_F(GridWidgetTest, AMergedHeadingIsOnePlace) {
  grid.SetMergeRow(0);
  for (int c = 2; c <= 4; ++c) grid.SetTextMatrix(0, c, "  Marks  ");
  widget.UpdateFromGrid();
  const QRect heading = widget.CellRect(0, 3);
  EXPECT_EQ(heading.left(), widget.CellRect(1, 2).left());
  EXPECT_EQ(heading.right(),
            std::min(widget.CellRect(1, 4).right(), widget.viewport()->width() - 1));
  EXPECT_NE(widget.CellRect(0, 5), heading);
}

TEST_F(GridWidgetTest, AMergedHeadingStaysInViewWhenItsStartIsScrolledAway) {
  grid.SetMergeRow(0);
  for (int c = 2; c < 20; ++c) grid.SetTextMatrix(0, c, "Marks");
  grid.LeftCol = 5;
  widget.UpdateFromGrid();
  EXPECT_EQ(widget.CellRect(0, 8).left(), widget.CellRect(1, 5).left());
  EXPECT_EQ(widget.CellRect(0, 8).right(), widget.viewport()->width() - 1);
}

TEST_F(GridWidgetTest, MergingStopsAtTheFixedColumnsAndAtEmptyText) {
  Grid small;
  small.SetSize(2, 6);
  small.FixedCols = 2;
  small.SetMergeRow(0);
  for (const int c : {1, 2, 3}) small.SetTextMatrix(0, c, "same");
  std::vector<std::pair<int, int>> spans;
  std::vector<Band> bands;
  for (int c = 0; c < 6; ++c) bands.push_back({c, c * 10, 10});
  for (const HeadingSpan& span : MergedSpans(small, bands))
    spans.push_back({span.first, span.last});
  EXPECT_EQ(spans, (std::vector<std::pair<int, int>>{{0, 0}, {1, 1}, {2, 3}, {4, 4}, {5, 5}}));
}

TEST_F(GridWidgetTest, ArrowsMoveTheCurrentCellAndStopAtTheEdge) {
  Press(Qt::Key_Down);
  Press(Qt::Key_Right);
  EXPECT_EQ(Current(), At(3, 3));
  Press(Qt::Key_Up);
  Press(Qt::Key_Up);
  Press(Qt::Key_Left);
  Press(Qt::Key_Left);
  EXPECT_EQ(Current(), At(2, 2));
  EXPECT_TRUE(widget.hasFocus());
}

TEST_F(GridWidgetTest, ArrowsPassOverHiddenRowsAndColumns) {
  grid.SetRowHeight(3, 0);
  grid.SetColWidth(3, 0);
  Press(Qt::Key_Down);
  Press(Qt::Key_Right);
  EXPECT_EQ(Current(), At(4, 4));
}

TEST_F(GridWidgetTest, HomeAndEndStayInTheRow) {
  grid.Row = 7;
  Press(Qt::Key_End);
  EXPECT_EQ(Current(), At(7, 19));
  Press(Qt::Key_Home);
  EXPECT_EQ(Current(), At(7, 2));
}

TEST_F(GridWidgetTest, WithControlTheKeysGoToTheCorners) {
  Press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(Current(), At(59, 19));
  Press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(Current(), At(2, 2));
  Press(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(Current(), At(59, 2));
  Press(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(Current(), At(59, 19));
}

TEST_F(GridWidgetTest, PagesMoveByWhatIsInView) {
  Press(Qt::Key_PageDown);
  const int step = grid.Row - 2;
  EXPECT_GT(step, 3);
  EXPECT_TRUE(InView(grid.Row, 2));
  Press(Qt::Key_PageUp);
  EXPECT_EQ(grid.Row, 2);
}

TEST_F(GridWidgetTest, TheCurrentCellStaysInViewAsItMoves) {
  for (int i = 0; i < 40; ++i) {
    Press(Qt::Key_Down);
    ASSERT_TRUE(InView(grid.Row, grid.Col)) << grid.Row;
  }
  for (int i = 0; i < 17; ++i) {
    Press(Qt::Key_Right);
    ASSERT_TRUE(InView(grid.Row, grid.Col)) << grid.Col;
  }
}

TEST_F(GridWidgetTest, ACellThatTheLogicMovedToComesIntoView) {
  grid.Row = 50;
  grid.Col = 15;
  widget.UpdateFromGrid();
  EXPECT_TRUE(InView(50, 15));
}

TEST_F(GridWidgetTest, AViewThatTheLogicSetIsObeyed) {
  grid.Row = 50;
  grid.TopRow = 20;
  widget.UpdateFromGrid();
  EXPECT_EQ(grid.TopRow, 20);
  EXPECT_EQ(widget.verticalScrollBar()->value(), 18);
}

TEST_F(GridWidgetTest, TabLeavesTheGrid) {
  QSignalSpy moved(&widget, &GridWidget::currentCellChanged);
  Press(Qt::Key_Tab);
  EXPECT_EQ(moved.count(), 0);
  EXPECT_EQ(Current(), At(2, 2));
}

TEST_F(GridWidgetTest, ADoubleClickTellsTheCellUnderThePointer) {
  QSignalSpy twice(&widget, &GridWidget::cellDoubleClicked);
  QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.CellRect(4, 0).center());
  QTest::mouseDClick(widget.viewport(), Qt::LeftButton, {}, widget.CellRect(4, 0).center());
  ASSERT_EQ(twice.count(), 1);
  EXPECT_EQ(grid.MouseRow, 4);
  EXPECT_EQ(grid.MouseCol, 0);
  EXPECT_EQ(twice[0], (QVariantList{4, 0}));
}

TEST_F(GridWidgetTest, EnterAndTheBlankAreTheDoubleClickOfTheKeyboard) {
  QSignalSpy twice(&widget, &GridWidget::cellDoubleClicked);
  grid.Row = 5;
  for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) Press(key);
  EXPECT_EQ(twice.count(), 3);
  EXPECT_EQ(grid.MouseRow, 5);
  widget.SetEnterDoubleClicks(false);
  Press(Qt::Key_Return);
  EXPECT_EQ(twice.count(), 3);
}

TEST_F(GridWidgetTest, ThePointerIsToldUntilItLeaves) {
  QSignalSpy hovered(&widget, &GridWidget::hovered);
  QTest::mouseMove(widget.viewport(), widget.CellRect(3, 3).center());
  ASSERT_GE(hovered.count(), 1);
  EXPECT_EQ(hovered.last(), (QVariantList{3, 3}));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(widget.viewport(), &leave);
  EXPECT_EQ(hovered.last(), (QVariantList{-1, -1}));
  EXPECT_EQ(grid.MouseRow, -1);
}

TEST_F(GridWidgetTest, AClickOnAHeadingLeavesTheCurrentCell) {
  QSignalSpy clicked(&widget, &GridWidget::cellClicked);
  QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.CellRect(1, 4).center());
  EXPECT_EQ(clicked.count(), 1);
  EXPECT_EQ(Current(), At(2, 2));
}

TEST_F(GridWidgetTest, WhileRedrawIsOffNothingIsPainted) {
  grid.SetRedraw(false);
  const QImage before = widget.viewport()->grab().toImage();
  Settle();
  const int paints = widget.paints;
  for (int r = 2; r < 60; ++r) grid.SetTextMatrix(r, 3, "changed");
  widget.UpdateFromGrid();
  Settle();
  EXPECT_EQ(widget.paints, paints);
  grid.SetRedraw(true);
  widget.UpdateFromGrid();
  Settle();
  EXPECT_GT(widget.paints, paints);
  EXPECT_NE(widget.viewport()->grab().toImage(), before);
}

TEST_F(GridWidgetTest, AnUpdateWithoutAChangePaintsNothing) {
  widget.UpdateFromGrid();
  Settle();
  const int paints = widget.paints;
  widget.UpdateFromGrid();
  Settle();
  EXPECT_EQ(widget.paints, paints);
  grid.SetTextMatrix(2, 2, "55");
  widget.UpdateFromGrid();
  Settle();
  EXPECT_GT(widget.paints, paints);
}

TEST_F(GridWidgetTest, AGridThatShrankIsMetByNoOldMeasure) {
  widget.verticalScrollBar()->setValue(40);
  grid.SetSize(3, 3);
  QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, QPoint(490, 290));
  widget.viewport()->grab();
  EXPECT_EQ(grid.TopRow, 2);
}

TEST_F(GridWidgetTest, AnEmptyGridIsPaintedAndTakesKeys) {
  grid.SetSize(0, 0);
  widget.UpdateFromGrid();
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, QPoint(10, 10));
  EXPECT_FALSE(widget.viewport()->grab().isNull());
}

TEST_F(GridWidgetTest, ColumnsGrowWithTheFont) {
  const int width = widget.CellRect(2, 2).width();
  QFont larger = widget.font();
  larger.setPointSizeF(larger.pointSizeF() * 2);
  widget.setFont(larger);
  EXPECT_NEAR(widget.CellRect(2, 2).width(), 2 * width, 1);
}

TEST_F(GridWidgetTest, ATextThatDoesNotFitIsCut) {
  grid.SetTextMatrix(3, 2, "a text that is much longer than any column of this grid can show");
  widget.UpdateFromGrid();
  EXPECT_TRUE(widget.IsCut(3, 2));
  EXPECT_FALSE(widget.IsCut(4, 2));
}

TEST_F(GridWidgetTest, AFailingMarkIsPaintedInItsColour) {
  const auto has = [this](const QColor& color) {
    const QRect cell = widget.CellRect(5, 2).adjusted(4, 2, -4, -2);
    const QImage image = widget.viewport()->grab(cell).toImage();
    const auto close = [&](QRgb rgb) {
      return qAbs(qRed(rgb) - color.red()) < 40 && qAbs(qGreen(rgb) - color.green()) < 40 &&
             qAbs(qBlue(rgb) - color.blue()) < 40;
    };
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (close(image.pixel(x, y))) return true;
    return false;
  };
  const QColor failing = GridColors(widget.palette()).Look(CellStyle::kFailing).text;
  EXPECT_FALSE(has(failing));
  grid.SetStyle(5, 2, CellStyle::kFailing);
  widget.UpdateFromGrid();
  EXPECT_TRUE(has(failing));
}

TEST_F(GridWidgetTest, AScreenReaderFindsATableWithItsCells) {
  grid.SetTextMatrix(1, 2, " T1 ");
  grid.SetTextMatrix(4, 0, " 3 Smith, Ann");
  QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&widget);
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->role(), QAccessible::Table);
  QAccessibleTableInterface* cells = table->tableInterface();
  ASSERT_NE(cells, nullptr);
  EXPECT_EQ(cells->rowCount(), 60);
  EXPECT_EQ(cells->columnCount(), 20);
  QAccessibleInterface* cell = cells->cellAt(4, 2);
  EXPECT_EQ(cell->text(QAccessible::Name), QStringLiteral("90"));
  EXPECT_EQ(cell->role(), QAccessible::Cell);
  EXPECT_EQ(cell, cells->cellAt(4, 2));
  EXPECT_EQ(cells->cellAt(4, 0)->text(QAccessible::Name), QStringLiteral("3 Smith, Ann"));
  EXPECT_EQ(cells->cellAt(60, 0), nullptr);
  EXPECT_EQ(table->indexOfChild(cell), 82);
  EXPECT_EQ(cell->rect().size(), widget.CellRect(4, 2).size());
}

// The code of a grade, not "Testing Instruments", which stands over all of them.
TEST_F(GridWidgetTest, AScreenReaderHearsTheHeadBesideTheCellsFirst) {
  grid.SetTextMatrix(0, 0, "NAME");
  grid.SetTextMatrix(0, 2, "Testing Instruments");
  grid.SetTextMatrix(1, 2, " T1 ");
  grid.SetTextMatrix(4, 0, " 3 Smith, Ann");
  QAccessibleTableInterface* cells =
      QAccessible::queryAccessibleInterface(&widget)->tableInterface();
  const auto words = [](const QList<QAccessibleInterface*>& heads) {
    QStringList names;
    for (const QAccessibleInterface* head : heads) names << head->text(QAccessible::Name);
    return names.join(u'|').toStdString();
  };
  QAccessibleTableCellInterface* mark = cells->cellAt(4, 2)->tableCellInterface();
  EXPECT_EQ(words(mark->columnHeaderCells()), "T1|Testing Instruments");
  EXPECT_EQ(words(mark->rowHeaderCells()), "3 Smith, Ann");
  EXPECT_EQ(words(cells->cellAt(4, 0)->tableCellInterface()->columnHeaderCells()), "NAME");
  EXPECT_EQ(cells->columnDescription(0), QStringLiteral("NAME"));
  EXPECT_EQ(cells->columnDescription(2), QStringLiteral("T1"));
  EXPECT_EQ(cells->rowDescription(4), QStringLiteral("3 Smith, Ann"));
}

TEST_F(GridWidgetTest, ATableWithoutAGridHasNoHeads) {
  widget.SetGrid(nullptr);
  QAccessibleTableInterface* cells =
      QAccessible::queryAccessibleInterface(&widget)->tableInterface();
  EXPECT_EQ(cells->columnCount(), 0);
  EXPECT_EQ(cells->columnDescription(0), QString());
}

TEST_F(GridWidgetTest, AScreenReaderMovesTheCurrentCell) {
  QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&widget);
  QAccessibleInterface* cell = table->tableInterface()->cellAt(40, 6);
  cell->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(Current(), At(40, 6));
  EXPECT_TRUE(InView(40, 6));
  EXPECT_EQ(table->focusChild(), cell);
}

}  // namespace
}  // namespace tallyroll
