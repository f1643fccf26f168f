// SPDX-License-Identifier: GPL-3.0-or-later
// The list of codes in the attendance grid, by real keys, clicks and the wheel.
#include <QAbstractItemView>
#include <QComboBox>
#include <QScrollBar>

#include "attendance/frmAtt.h"
#include "desktop/grid/grid_widget.h"
#include "tests/desktop/class_dialogs.h"
#include "tests/desktop/turn_wheel.h"

namespace tallyroll {
namespace {

class CodeListTest : public ClassDialogs {
 protected:
  CodeListTest() {
    OpenState = 15;
    Open(month);
  }
  ~CodeListTest() override { dialog.reset(); }

  QComboBox& codes() { return Find<QComboBox>("Combo1"); }
  QAbstractItemView& lines() { return *codes().view(); }
  std::string Mark(int row, int col) { return std::string(month.Grid1.TextMatrix(row, col)); }
  void ClickAt(int row, int col) { ClassDialogs::ClickAt(PlaceOf(row, col).center()); }
  void GoTo(int row, int col) {
    month.Grid1.Row = month.Grid1.Col = 0;
    ClickAt(row, col);
    ASSERT_EQ(month.Grid1.Row, row);
    ASSERT_EQ(month.Grid1.Col, col);
  }
  void PickLine(int line) {
    ASSERT_TRUE(lines().isVisible());
    QTest::mouseMove(lines().viewport(), LinePlace(line));
    QTest::mouseClick(lines().viewport(), Qt::LeftButton, {}, LinePlace(line));
  }
  QPoint LinePlace(int line) {
    return lines().visualRect(lines().model()->index(line, 0)).center();
  }

  frmAtt month;
};

TEST_F(CodeListTest, TheListStaysWithinItsCell) {
  GoTo(2, 6);
  EXPECT_EQ(codes().geometry(), PlaceOf(2, 6));
}

TEST_F(CodeListTest, AClickOnTheNextDayIsItsOwn) {
  GoTo(2, 6);
  ClassDialogs::ClickAt(PlaceOf(2, 7).center() - QPoint(PlaceOf(2, 7).width() / 2 - 2, 0));
  EXPECT_EQ(month.Grid1.Col, 7);
  EXPECT_FALSE(lines().isVisible());
}

TEST_F(CodeListTest, APickIsWrittenInTheCellOfTheList) {
  GoTo(2, 6);
  ClickAt(2, 7);
  ClickAt(2, 7);
  PickLine(4);
  EXPECT_EQ(Mark(2, 6), "");
  EXPECT_EQ(Mark(2, 7), "N");
  EXPECT_TRUE(codes().isHidden());
  EXPECT_TRUE(grid().hasFocus());
}

TEST_F(CodeListTest, TheWheelOverTheListScrollsTheGridAndWritesNothing) {
  GoTo(2, 6);
  QTest::keyClicks(&grid(), QStringLiteral("n"));
  const int top = month.Grid1.TopRow;
  for (const int notches : {-1, 1, -3}) TurnWheel(codes(), notches);
  EXPECT_EQ(Mark(2, 6), "N");
  EXPECT_GT(month.Grid1.TopRow, top);
}

TEST_F(CodeListTest, TheWheelOverTheDroppedListIsNoChoice) {
  GoTo(2, 6);
  QTest::keyClicks(&grid(), QStringLiteral("n"));
  QTest::keyClick(&grid(), Qt::Key_F4);
  TurnWheel(*lines().viewport(), -1);
  TurnWheel(codes(), -1);
  QTest::keyClick(&lines(), Qt::Key_Escape);
  EXPECT_EQ(Mark(2, 6), "N");
}

TEST_F(CodeListTest, F4AndAltDownDropTheListAtWhatTheCellHolds) {
  GoTo(2, 6);
  QTest::keyClicks(&grid(), QStringLiteral("e"));
  QTest::keyClick(&grid(), Qt::Key_F4);
  ASSERT_TRUE(lines().isVisible());
  EXPECT_EQ(lines().currentIndex().row(), 2);
  QTest::keyClick(&lines(), Qt::Key_Escape);
  EXPECT_FALSE(lines().isVisible());
  QTest::keyClick(&grid(), Qt::Key_Down, Qt::AltModifier);
  ASSERT_TRUE(lines().isVisible());
  EXPECT_EQ(lines().currentIndex().row(), 2);
  EXPECT_EQ(month.Grid1.Row, 2);
}

TEST_F(CodeListTest, AfterAChoiceTheKeyDropsTheListAgain) {
  GoTo(2, 6);
  QTest::keyClick(&grid(), Qt::Key_F4);
  QTest::keyClick(&lines(), Qt::Key_Home);
  QTest::keyClick(&lines(), Qt::Key_Return);
  EXPECT_EQ(Mark(2, 6), "A");
  QTest::keyClick(&grid(), Qt::Key_F4);
  ASSERT_TRUE(lines().isVisible());
  EXPECT_EQ(lines().currentIndex().row(), 0);
}

TEST_F(CodeListTest, MovingThroughTheDroppedListIsNoChoiceAndTheNextChoiceCounts) {
  GoTo(2, 6);
  for (const Qt::Key away : {Qt::Key_Home, Qt::Key_Up, Qt::Key_Down, Qt::Key_Right}) {
    QTest::keyClick(&grid(), Qt::Key_F4);
    QTest::keyClick(&lines(), away);
    QTest::keyClick(&lines(), Qt::Key_Escape);
    EXPECT_EQ(Mark(2, 6), "");
  }
  ClickAt(2, 6);
  PickLine(2);
  EXPECT_EQ(Mark(2, 6), "E");
}

TEST_F(CodeListTest, AKeyTypedWhileTheListIsDroppedGoesToTheCell) {
  GoTo(2, 6);
  QTest::keyClick(&grid(), Qt::Key_F4);
  QTest::keyClicks(&lines(), QStringLiteral("n"));
  EXPECT_FALSE(lines().isVisible());
  EXPECT_EQ(Mark(2, 6), "N");
  EXPECT_TRUE(grid().hasFocus());
  QTest::keyClick(&grid(), Qt::Key_F4);
  QTest::keyClick(&lines(), Qt::Key_Backspace);
  EXPECT_EQ(Mark(2, 6), "");
  QTest::keyClick(&grid(), Qt::Key_Right);
  EXPECT_EQ(month.Grid1.Col, 7);
}

TEST_F(CodeListTest, KeysInTheClosedListChooseNothing) {
  GoTo(2, 6);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home})
    QTest::keyClick(&codes(), key);
  EXPECT_EQ(Mark(2, 6), "");
}

TEST_F(CodeListTest, AnotherCellMayBeClickedWhileTheListIsDropped) {
  GoTo(2, 6);
  QTest::keyClick(&grid(), Qt::Key_F4);
  lines().window()->close();
  ClickAt(5, 9);
  EXPECT_EQ(month.Grid1.Row, 5);
  QTest::keyClicks(&grid(), QStringLiteral("c"));
  EXPECT_EQ(Mark(5, 9), "C");
  EXPECT_EQ(Mark(2, 6), "");
}

}  // namespace
}  // namespace tallyroll
