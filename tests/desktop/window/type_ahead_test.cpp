// SPDX-License-Identifier: GPL-3.0-or-later
// Typing a name goes to the student in the table.
#include <gtest/gtest.h>

#include <QTest>

#include "desktop/grid/grid_widget.h"
#include "desktop/window/class_window_view.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

class TypeAheadInTheTableTest : public FrameTest {
 protected:
  TypeAheadInTheTableTest() : form(OpenClass("MATH.TYR")) { grid().MoveTo(2, 2); }

  GridWidget& grid() const { return *window->Current()->findChild<GridWidget*>(); }

  Form1& form;
};

TEST_F(TypeAheadInTheTableTest, ANameGoesToItsRow) {
  grid().setFocus();
  QTest::keyClicks(&grid(), QStringLiteral("br"));
  EXPECT_EQ(form.Grid1.Row, 3);
  EXPECT_EQ(form.Grid1.Col, 2);
}

TEST_F(TypeAheadInTheTableTest, AnIdGoesToItsRow) {
  grid().setFocus();
  QTest::keyClicks(&grid(), QStringLiteral("22"));
  EXPECT_EQ(form.Grid1.Row, 3);
}

TEST_F(TypeAheadInTheTableTest, ANameOfNobodyIsToldAndBackspaceMendsIt) {
  grid().setFocus();
  QTest::keyClicks(&grid(), QStringLiteral("bq"));
  EXPECT_EQ(form.StatusText, "No student begins with \"bq\".");
  EXPECT_EQ(form.Grid1.Row, 3);
  QTest::keyClick(&grid(), Qt::Key_Backspace);
  EXPECT_EQ(form.StatusText, "");
  QTest::keyClicks(&grid(), QStringLiteral("r"));
  EXPECT_EQ(form.Grid1.Row, 3);
  EXPECT_EQ(form.StatusText, "");
}

TEST_F(TypeAheadInTheTableTest, AnArrowBeginsANewName) {
  grid().setFocus();
  QTest::keyClicks(&grid(), QStringLiteral("br"));
  QTest::keyClick(&grid(), Qt::Key_Right);
  QTest::keyClicks(&grid(), QStringLiteral("a"));
  EXPECT_EQ(form.Grid1.Row, 2);
}

TEST_F(TypeAheadInTheTableTest, AwayAndBackBeginsANewName) {
  grid().setFocus();
  QTest::keyClicks(&grid(), QStringLiteral("br"));
  QTest::keyClick(&grid(), Qt::Key_Up);
  QTest::keyClick(&grid(), Qt::Key_Down);
  QTest::keyClicks(&grid(), QStringLiteral("a"));
  EXPECT_EQ(form.Grid1.Row, 2);
}

TEST_F(TypeAheadInTheTableTest, TheBlankStillDoesWhatADoubleClickDoes) {
  RecordPortals();
  grid().setFocus();
  QTest::keyClicks(&grid(), QStringLiteral("br "));
  Settle();
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmEmarks"});
}

}  // namespace
}  // namespace tallyroll
