// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

constexpr std::string_view kHeading = "              Testing Instruments  ";

using ClassGridTest = ShellTest;

TEST_F(ClassGridTest, SmallClassHasTheDefaultSize) {
  const Grid& grid = Open("A.TYR", Sample(26, 7)).Grid1;
  EXPECT_EQ(grid.Rows(), 28);
  EXPECT_EQ(grid.Cols(), 11);
  EXPECT_EQ(grid.FixedRows, 2);
  EXPECT_EQ(grid.FixedCols, 2);
}

TEST_F(ClassGridTest, TwentySevenStudentsNeedTwentyNineRows) {
  EXPECT_EQ(Open("A.TYR", Sample(27)).Grid1.Rows(), 29);
}

TEST_F(ClassGridTest, EightGradesDecideTheColumns) {
  EXPECT_EQ(Open("A.TYR", Sample(1, 8)).Grid1.Cols(), 10);
  EXPECT_EQ(Open("B.TYR", Sample(1, 20)).Grid1.Cols(), 22);
}

TEST_F(ClassGridTest, IdsAloneLeaveRoomForThirteenColumns) {
  NameMode = 73;
  EXPECT_EQ(Open("A.TYR").Grid1.Cols(), 13);
  EXPECT_EQ(Open("B.TYR", Sample(1, 8)).Grid1.Cols(), 10);
}

TEST_F(ClassGridTest, HeadingReachesFromTheThirdColumnToTheNinthAtLeast) {
  const Grid& grid = Open("A.TYR", Sample(1, 1)).Grid1;
  EXPECT_EQ(grid.TextMatrix(0, 0), "     NAME");
  EXPECT_EQ(grid.TextMatrix(0, 1), "       ID");
  for (int col = 2; col <= 8; ++col) EXPECT_EQ(grid.TextMatrix(0, col), kHeading) << col;
  EXPECT_EQ(grid.TextMatrix(0, 9), "");
  EXPECT_TRUE(grid.MergeRow(0));
  const Grid& wide = Open("B.TYR", Sample(1, 9)).Grid1;
  EXPECT_EQ(wide.TextMatrix(0, 10), kHeading);
}

TEST_F(ClassGridTest, CodesAndMarksStandUnderTheHeading) {
  Class c = Sample(2, 2);
  c.Students[2].Marks[2] = " A- ";
  const Grid& grid = Open("A.TYR", c).Grid1;
  EXPECT_EQ(grid.RowHeight(1), 2 * grid.RowHeight(0));
  EXPECT_EQ(grid.TextMatrix(1, 2), "Q1");
  EXPECT_EQ(grid.TextMatrix(1, 3), "Q2");
  EXPECT_EQ(grid.TextMatrix(1, 4), "");
  EXPECT_EQ(grid.TextMatrix(2, 2), "80");
  EXPECT_EQ(grid.TextMatrix(3, 3), "A-");
}

TEST_F(ClassGridTest, MarksStandRightAndNamesLeft) {
  const Grid& grid = Open("A.TYR", Sample(2, 9)).Grid1;
  EXPECT_EQ(grid.ColAlignment(0), ColumnAlign::kLeft);
  EXPECT_EQ(grid.ColAlignment(1), ColumnAlign::kLeft);
  for (int col = 2; col < grid.Cols(); ++col)
    EXPECT_EQ(grid.ColAlignment(col), ColumnAlign::kRight) << col;
}

TEST_F(ClassGridTest, EachDisplayModeHasItsTwoColumns) {
  Class c = Sample(1);
  c.Students[1].lastname = " Ng ";
  c.Students[1].firstname = "Ada ";
  Form1& window = Open("A.TYR", c);
  const Grid& grid = window.Grid1;
  EXPECT_EQ(grid.TextMatrix(2, 0), " 1 Ng, Ada");
  EXPECT_EQ(grid.TextMatrix(2, 1), "101 ");
  EXPECT_EQ(grid.ColWidth(0), 3360);
  EXPECT_EQ(grid.ColWidth(1), 1440);
  window.ClickMenu("mnuname");
  EXPECT_EQ(grid.TextMatrix(2, 0), " 1 Ng, Ada");
  EXPECT_EQ(grid.ColWidth(0), 3360);
  EXPECT_EQ(grid.ColWidth(1), 0);
  window.ClickMenu("mnuidfirst");
  EXPECT_EQ(grid.TextMatrix(0, 0), "       ID");
  EXPECT_EQ(grid.TextMatrix(0, 1), "     NAME");
  EXPECT_EQ(grid.TextMatrix(2, 0), "101 ");
  EXPECT_EQ(grid.TextMatrix(2, 1), "Ng, Ada");
  EXPECT_EQ(grid.ColWidth(0), 1440);
  EXPECT_EQ(grid.ColWidth(1), 3360);
  window.ClickMenu("mnuid");
  EXPECT_EQ(grid.TextMatrix(2, 0), "101 ");
  EXPECT_EQ(grid.ColWidth(0), 1440);
  EXPECT_EQ(grid.ColWidth(1), 0);
}

TEST_F(ClassGridTest, SmallerClassLeavesNothingOfTheLargerBehind) {
  Form1& window = Open("A.TYR", Sample(30, 12));
  window.Grid1.Row = 31;
  window.Grid1.Col = 13;
  Current().NumStudents = 1;
  Current().NumInstruments = 1;
  window.showform3();
  EXPECT_EQ(window.Grid1.Rows(), 28);
  EXPECT_EQ(window.Grid1.Cols(), 11);
  EXPECT_EQ(window.Grid1.Row, 27);
  EXPECT_EQ(window.Grid1.Col, 10);
  for (int row = 3; row < 28; ++row)
    for (int col = 0; col < 11; ++col) ASSERT_EQ(window.Grid1.TextMatrix(row, col), "");
  EXPECT_EQ(window.Grid1.TextMatrix(2, 3), "");
  EXPECT_EQ(window.Grid1.TextMatrix(1, 3), "");
}

TEST_F(ClassGridTest, RedrawIsOnAgainAfterTheFill) {
  EXPECT_TRUE(Open("A.TYR").Grid1.Redraw());
}

TEST_F(ClassGridTest, WindowWithoutAClassStaysEmpty) {
  Form1 window;
  window.showform3();
  EXPECT_EQ(window.Grid1.Rows(), 0);
}

TEST_F(ClassGridTest, DisplayModeOfOneWindowReachesOthersWhenTheyComeToTheFront) {
  Class c = Sample(2);
  std::swap(c.Students[1].id, c.Students[2].id);  // by id the other way round
  Form1& first = Open("A.TYR", c);
  Form1& second = Open("B.TYR", c);
  second.ClickMenu("mnuidfirst");
  EXPECT_EQ(second.Grid1.TextMatrix(2, 1), "Last02, First02");
  EXPECT_TRUE(second.menu.Find("mnuidfirst")->checked);
  EXPECT_FALSE(second.menu.Find("mnunamefirst")->checked);
  EXPECT_EQ(first.Grid1.TextMatrix(2, 0), " 1 Last01, First01");
  EXPECT_TRUE(first.menu.Find("mnunamefirst")->checked);
  first.Activate();
  EXPECT_EQ(CurrentClass, 1);
  EXPECT_EQ(first.Grid1.TextMatrix(2, 1), "Last02, First02");
  EXPECT_TRUE(first.menu.Find("mnuidfirst")->checked);
}

}  // namespace
}  // namespace tallyroll
