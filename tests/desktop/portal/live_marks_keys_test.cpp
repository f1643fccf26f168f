// SPDX-License-Identifier: GPL-3.0-or-later
// The keys beside a column of marks, as a keyboard gives them: they reach the marks from the grid
// and leave the fields above their own.
#include <QLineEdit>
#include <QPushButton>

#include "desktop/portal/telling_label.h"
#include "grades/frmMarks.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

class LiveMarksKeys : public ClassDialogs {
 protected:
  LiveMarksKeys() {
    Open(portal);
    grid().setFocus();
  }
  ~LiveMarksKeys() override { dialog.reset(); }
  std::string Mark(int row) { return std::string(portal.Grid1.TextMatrix(row, 2)); }

  frmMarks portal;
};

TEST_F(LiveMarksKeys, ControlZTakesAMarkBackAndWithShiftDoesItAgain) {
  QTest::keyClicks(&grid(), QStringLiteral("85"));
  QTest::keyClick(&grid(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Mark(1), "");
  EXPECT_EQ(Focused(), "Grid1");
  QTest::keyClick(&grid(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Mark(1), "85");
}

TEST_F(LiveMarksKeys, ControlVPastesAColumn) {
  surroundings.clipboard = "81\n82\n";
  QTest::keyClick(&grid(), Qt::Key_Down);
  QTest::keyClick(&grid(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Mark(1), "");
  EXPECT_EQ(Mark(2), "81");
  EXPECT_EQ(Mark(3), "82");
  QTest::keyClick(&grid(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Mark(2), "");
}

TEST_F(LiveMarksKeys, F5GoesToTheNextEmptyCellFromTheHeaderToo) {
  QTest::keyClicks(&grid(), QStringLiteral("85"));
  QTest::keyClick(&grid(), Qt::Key_F5);
  EXPECT_EQ(portal.Grid1.Row, 2);
  Find<QLineEdit>("title").setFocus();
  QTest::keyClick(&Find<QLineEdit>("title"), Qt::Key_F5);
  EXPECT_EQ(portal.Grid1.Row, 2);
  EXPECT_EQ(Focused(), "Grid1");
  QTest::keyClick(&grid(), Qt::Key_F5);
  EXPECT_EQ(portal.Grid1.Row, 3);
  QTest::mouseClick(&Find<QPushButton>("nextempty"), Qt::LeftButton);
  EXPECT_EQ(portal.Grid1.Row, 4);
}

TEST_F(LiveMarksKeys, InAFieldControlZIsTheFieldsOwn) {
  QTest::keyClicks(&grid(), QStringLiteral("85"));
  auto& title = Find<QLineEdit>("title");
  title.setFocus();
  QTest::keyClicks(&title, QStringLiteral("Rivers"));
  QTest::keyClick(&title, Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&title, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(title.text(), QString());
  EXPECT_EQ(Mark(1), "85");
}

TEST_F(LiveMarksKeys, TheReasonShowsWhileItIsTypedAndNothingMoves) {
  const QRect before = grid().geometry();
  QTest::keyClicks(&grid(), QStringLiteral("101"));
  EXPECT_EQ(Find<TellingLabel>("doubt").text(), QStringLiteral("101 is above the maximum of 100"));
  EXPECT_EQ(grid().geometry(), before);
}

}  // namespace
}  // namespace tallyroll
