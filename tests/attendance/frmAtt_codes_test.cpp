// SPDX-License-Identifier: GPL-3.0-or-later
// Entering codes by key and by the list, and the totals.
#include "tests/attendance/frmAtt_test.h"

namespace tallyroll {
namespace {

class FrmAttCodesTest : public FrmAttTest {
 protected:
  FrmAttCodesTest() { OpenPortal(); }
};

TEST_F(FrmAttCodesTest, EachCodeIsAKeyInEitherCase) {
  int day = 1;
  for (const char* key : {"A", "a", "C", "c", "E", "e", "S", "s", "N", "n", "L", "l"}) {
    Type(1, day, key);
    ++day;
  }
  EXPECT_EQ(Row(1, 2, 13), "A|A|C|C|E|E|S|S|N|N|L|L");
  EXPECT_EQ(screen.beeps, 0);
}

TEST_F(FrmAttCodesTest, AnotherKeyEmptiesTheCellAndBeeps) {
  Type(1, 1, "A");
  Type(1, 1, "1");
  EXPECT_EQ(Cell(1, 2), "");
  EXPECT_EQ(screen.beeps, 1);
}

TEST_F(FrmAttCodesTest, ACellHoldsOneCodeHoweverManyKeysAreTyped) {
  Type(1, 1, "ACL");
  EXPECT_EQ(Cell(1, 2), "L");
}

TEST_F(FrmAttCodesTest, BackspaceEmptiesTheCell) {
  Type(1, 1, "A\b");
  EXPECT_EQ(Cell(1, 2), "");
  EXPECT_EQ(driver->Text("Combo1"), "");
  EXPECT_EQ(screen.beeps, 0);
  driver->Press("mnuExit");
  EXPECT_EQ(MarkOf(1, Day(2026, 9, 1)), " ");
}

TEST_F(FrmAttCodesTest, TheLastLineOfTheListWritesABlankThatCountsNowhere) {
  driver->Tick("mnuStudent");
  Type(1, 1, "A");
  driver->Choose("Combo1", 6);
  EXPECT_EQ(Cell(1, 2), " ");
  EXPECT_EQ(Row(1, 32, 37), "0|0|0|0|0|0");
  driver->Press("mnuExit");
  EXPECT_EQ(MarkOf(1, Day(2026, 9, 1)), " ");
}

TEST_F(FrmAttCodesTest, TheListWritesTheCodeOfItsLine) {
  EXPECT_EQ(portal->Combo1.List,
            (std::vector<std::string>{"A - Absent", "C - Cut", "E - Excused-per Admin.",
                                      "S - Special Abs.-per Admin.", "N - Absent-Note Received",
                                      "L - Late", "Delete Entry (Backspace)"}));
  for (int line = 0; line < 6; ++line) {
    driver->PickCell("Grid1", 2, line + 2);
    driver->Choose("Combo1", line);
    EXPECT_FALSE(driver->Visible("Combo1"));
    EXPECT_EQ(driver->Focused(), "Grid1");
  }
  EXPECT_EQ(Row(2, 2, 7), "A|C|E|S|N|L");
  EXPECT_EQ(portal->monthchanged, 1);
}

TEST_F(FrmAttCodesTest, AChoiceCountsWhateverKeysCameBefore) {
  for (const Key key : {Key::kHome, Key::kUp, Key::kRight, Key::kDown, Key::kLeft}) {
    driver->PickCell("Grid1", 1, 2);
    driver->PressKey("Combo1", key);
    EXPECT_EQ(Cell(1, 2), "");
    driver->Choose("Combo1", 2);
    EXPECT_EQ(Cell(1, 2), "E");
    driver->PickCell("Grid1", 1, 2);
    driver->TypeKeys("Grid1", "\b");
  }
}

TEST_F(FrmAttCodesTest, TheListBeginsAtWhatTheCellHolds) {
  Type(1, 1, "N");
  EXPECT_EQ(portal->Combo1.ListIndex, 4);
  EXPECT_EQ(driver->Text("Combo1"), "N");
  driver->PickCell("Grid1", 2, 2);
  EXPECT_EQ(portal->Combo1.ListIndex, -1);
  driver->PickCell("Grid1", 1, 2);
  EXPECT_EQ(portal->Combo1.ListIndex, 4);
}

TEST_F(FrmAttCodesTest, TheKeyForTheListBringsItBackAfterAChoice) {
  driver->PickCell("Grid1", 1, 2);
  driver->Choose("Combo1", 0);
  EXPECT_FALSE(driver->Visible("Combo1"));
  driver->PressKey("Grid1", Key::kF4);
  EXPECT_TRUE(driver->Visible("Combo1"));
  EXPECT_EQ(portal->Combo1.ListIndex, 0);
  EXPECT_EQ(Cell(1, 2), "A");
}

TEST_F(FrmAttCodesTest, TheListStandsOverTheCurrentCellAndShowsItsCode) {
  Type(1, 1, "A");
  driver->PickCell("Grid1", 1, 3);
  EXPECT_TRUE(driver->Visible("Combo1"));
  EXPECT_EQ(driver->Text("Combo1"), "");
  driver->PickCell("Grid1", 1, 2);
  EXPECT_EQ(driver->Text("Combo1"), "A");
  EXPECT_EQ(portal->Combo1.Over, &portal->Grid1);
}

TEST_F(FrmAttCodesTest, TheCellInWorkIsBlueAndTheOneBeforeBlackAgain) {
  driver->PickCell("Grid1", 1, 2);
  EXPECT_EQ(portal->Grid1.Style(1, 2), CellStyle::kInWork);
  driver->PickCell("Grid1", 2, 3);
  EXPECT_EQ(portal->Grid1.Style(1, 2), CellStyle::kPlain);
  EXPECT_EQ(portal->Grid1.Style(2, 3), CellStyle::kInWork);
}

TEST_F(FrmAttCodesTest, OutsideTheDaysThereIsNoList) {
  driver->Tick("mnuDaily");
  driver->Tick("mnuStudent");
  driver->PickCell("Grid1", 1, 2);
  driver->PickCell("Grid1", 1, 32);
  EXPECT_FALSE(driver->Visible("Combo1"));
  driver->PickCell("Grid1", 5, 2);
  EXPECT_FALSE(driver->Visible("Combo1"));
}

TEST_F(FrmAttCodesTest, AKeyOnATotalWritesNothingButIsAChange) {
  driver->Tick("mnuDaily");
  driver->PickCell("Grid1", 5, 2);
  driver->TypeKeys("Grid1", "A");
  EXPECT_EQ(Cell(5, 2), "0");
  driver->PickCell("Grid1", 1, 32);
  driver->TypeKeys("Grid1", "A");
  EXPECT_EQ(Cell(1, 32), "");
  EXPECT_EQ(portal->portalchanged, 1);
  EXPECT_EQ(portal->monthchanged, 1);
  screen.ExpectBox(kSureToCancel, BoxAnswer::kYes);
  driver->Press("mnucancel");
}

TEST_F(FrmAttCodesTest, AKeyOnTheHeadsWritesNothing) {
  driver->TypeKeys("Grid1", "A");  // the current cell is still in the corner
  EXPECT_EQ(Cell(0, 0), "   NAME");
  EXPECT_EQ(Cell(1, 2), "");
}

TEST_F(FrmAttCodesTest, TheFirstArrowGoesToTheFirstStudentOnTheDayOfToday) {
  driver->PressKey("Grid1", Key::kDown);
  EXPECT_EQ(portal->Grid1.Row, 1);
  EXPECT_EQ(portal->Grid1.Col, 15);  // the 14th
  EXPECT_TRUE(driver->Visible("Combo1"));
}

TEST_F(FrmAttCodesTest, ReturnGoesToTheNextStudent) {
  driver->PickCell("Grid1", 1, 2);
  for (int i = 0; i < 3; ++i) {
    driver->TypeKeys("Grid1", "A");
    driver->PressKey("Grid1", Key::kEnter);
  }
  EXPECT_EQ(Column(2, 1, 3), "A|A|A");
  EXPECT_EQ(portal->Grid1.Row, 3);
}

// ---- Totals ----

TEST_F(FrmAttCodesTest, AStudentsTotalsAreThoseOfTheMonth) {
  int day = 1;
  for (const char code : std::string("ACCEEESSSSNNNNNLLLLLL")) {
    Type(1, day, std::string(1, code));
    ++day;
  }
  driver->Tick("mnuStudent");
  EXPECT_EQ(Row(1, 32, 37), "1|2|3|4|5|6");
  EXPECT_EQ(Row(2, 32, 37), "0|0|0|0|0|0");
  EXPECT_EQ(portal->Grid1.ColWidth(32), 1125);
  for (int col = 33; col <= 37; ++col) EXPECT_EQ(portal->Grid1.ColWidth(col), 600);
  EXPECT_EQ(portal->Grid1.Style(1, 32), CellStyle::kTotal);
  EXPECT_EQ(portal->Grid1.Style(4, 37), CellStyle::kTotal);
  EXPECT_EQ(portal->Grid1.Style(5, 37), CellStyle::kPlain);
  EXPECT_EQ(portal->Grid1.TopRow, 2);
  EXPECT_EQ(portal->Grid1.LeftCol, 31);
}

TEST_F(FrmAttCodesTest, ADaysTotalsAreThoseOfItsStudents) {
  Type(1, 1, "A");
  Type(2, 1, "A");
  Type(3, 1, "L");
  driver->Tick("mnuDaily");
  EXPECT_EQ(Column(2, 5, 10), "2|0|0|0|0|1");
  EXPECT_EQ(Column(3, 5, 10), "0|0|0|0|0|0");
  EXPECT_EQ(Cell(4, 2), "");
  for (int row = 4; row <= 10; ++row) EXPECT_EQ(portal->Grid1.RowHeight(row), 240);
  EXPECT_EQ(portal->Grid1.Style(5, 2), CellStyle::kTotal);
  EXPECT_EQ(portal->Grid1.Style(10, 31), CellStyle::kTotal);
  EXPECT_EQ(portal->Grid1.Style(4, 2), CellStyle::kPlain);
  EXPECT_EQ(portal->Grid1.TopRow, 4);
  EXPECT_EQ(portal->Grid1.LeftCol, 2);
}

TEST_F(FrmAttCodesTest, AKeyBringsItsTwoTotalsUpToDate) {
  driver->Tick("mnuDaily");
  driver->Tick("mnuStudent");
  Type(2, 30, "A");
  EXPECT_EQ(Row(2, 32, 37), "1|0|0|0|0|0");
  EXPECT_EQ(Column(31, 5, 10), "1|0|0|0|0|0");
  Type(2, 30, "L");
  EXPECT_EQ(Row(2, 32, 37), "0|0|0|0|0|1");
  EXPECT_EQ(Column(31, 5, 10), "0|0|0|0|0|1");
  driver->Choose("Combo1", 1);
  EXPECT_EQ(Row(2, 32, 37), "0|1|0|0|0|0");
  EXPECT_EQ(Column(31, 5, 10), "0|1|0|0|0|0");
}

TEST_F(FrmAttCodesTest, TotalsThatAreOffAreNotCounted) {
  Type(1, 1, "A");
  EXPECT_EQ(Cell(1, 32), "");
  EXPECT_EQ(Cell(5, 2), "");
}

TEST_F(FrmAttCodesTest, TotalsStayOnAndAreThoseOfTheMonthShown) {
  Type(1, 1, "A");
  driver->Tick("mnuStudent");
  driver->Tick("mnuDaily");
  driver->Press("Command2");
  EXPECT_EQ(Cols(), 39);
  EXPECT_EQ(Row(1, 33, 38), "0|0|0|0|0|0");
  EXPECT_EQ(portal->Grid1.ColWidth(33), 1125);
  EXPECT_EQ(portal->Grid1.RowHeight(5), 240);
  driver->Press("Command1");
  EXPECT_EQ(Row(1, 32, 37), "1|0|0|0|0|0");
  EXPECT_EQ(Column(2, 5, 10), "1|0|0|0|0|0");
}

TEST_F(FrmAttCodesTest, SwitchedOffTheDailyTotalsAreHidden) {
  driver->Tick("mnuDaily");
  driver->Tick("mnuDaily", false);
  for (int row = 4; row <= 10; ++row) EXPECT_EQ(portal->Grid1.RowHeight(row), 0);
  EXPECT_EQ(portal->Grid1.TopRow, 3);
  EXPECT_EQ(portal->Grid1.LeftCol, 2);
}

TEST_F(FrmAttCodesTest, SwitchedOffTheStudentTotalsTakeTheLastDayAlongUntilTheMonthIsBuiltAgain) {
  driver->Tick("mnuStudent");
  driver->Tick("mnuStudent", false);
  for (int col = 31; col <= 37; ++col) EXPECT_EQ(portal->Grid1.ColWidth(col), 0);
  EXPECT_EQ(portal->Grid1.ColWidth(30), 290);
  EXPECT_EQ(portal->Grid1.TopRow, 3);
  EXPECT_EQ(portal->Grid1.LeftCol, 2);
  driver->Press("Command2");
  driver->Press("Command1");
  EXPECT_EQ(portal->Grid1.ColWidth(31), 290);
}

TEST_F(FrmAttCodesTest, AMonthWithFewerDaysKeepsTheCurrentCellWithin) {
  driver->Press("Command2");
  driver->PickCell("Grid1", 3, 32);  // 31 October
  driver->Press("Command2");
  EXPECT_EQ(portal->Grid1.Row, 3);
  EXPECT_EQ(portal->Grid1.Col, 31);  // 30 November
  EXPECT_FALSE(driver->Visible("Combo1"));
}

}  // namespace
}  // namespace tallyroll
