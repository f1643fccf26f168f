// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/frmEatt.h"

#include "tests/attendance/attendance_test.h"

namespace tallyroll {
namespace {

const std::string kDayReminder =
    "You must fill in the TITLE and CODE of the attendance period, and the ATTENDANCE for each "
    "student.\nUse TAB to move from one entry to the next.\nUse ARROW KEYS to move between student "
    "names.";

class FrmEattTest : public AttendanceTest {
 protected:
  FrmEattTest() {
    Enrol("Li", "Bo", "2");
    Enrol("Ng", "Ada", "1");
    AddPeriod(" Fall ", "F  ", 1);
    AddPeriod("9/1/2026- 11/15/2026", "A1", 2);
    At(1).SummaryAbsent[1] = "3";
    At(1).SummaryLate[1] = " 1";
    Current().Changed = kFalse;
  }
  void OpenPeriod(int index) {
    Open(portal);
    driver->Choose("list1", index);
  }
  void Figure(int student, int col, const std::string& keys) {
    driver->PickCell("Grid1", student, col);
    driver->TypeKeys("Grid1", keys);
  }
  std::string Cell(int row, int col) const {
    return std::string(portal.Grid1.TextMatrix(row, col));
  }

  frmEatt portal;
};

TEST_F(FrmEattTest, ListsTheTitlesAndWhichOnesAreCalculated) {
  Open(portal);
  EXPECT_EQ(portal.Caption, "Edit  Summary Attendance Portal");
  EXPECT_EQ(portal.list1.List,
            (std::vector<std::string>{"Fall", "9/1/2026- 11/15/2026 Calculated"}));
  EXPECT_FALSE(driver->Enabled("Title"));
  EXPECT_FALSE(driver->Visible("calmess"));
}

TEST_F(FrmEattTest, TheHeadsFollowTheNameMode) {
  const std::tuple<i16, const char*, const char*> all[] = {
      {73, "      ID ", ""}, {82, "ID ", "NAME "}, {68, "NAME", "ID"}, {57, "     NAME", ""}};
  for (const auto& [mode, first, second] : all) {
    NameMode = mode;
    frmEatt again;
    Open(again);
    EXPECT_EQ(again.Grid1.TextMatrix(0, 0), first);
    EXPECT_EQ(again.Grid1.TextMatrix(0, 1), second);
    EXPECT_EQ(again.Grid1.TextMatrix(0, 2), "ABS");
    EXPECT_EQ(again.Grid1.TextMatrix(0, 3), "LATE");
  }
}

TEST_F(FrmEattTest, ShowsAPeriod) {
  OpenPeriod(0);
  EXPECT_EQ(driver->Text("Title"), " Fall");
  EXPECT_EQ(driver->Text("code"), "F");
  EXPECT_EQ(Cell(1, 2), "3");
  EXPECT_EQ(Cell(1, 3), "1");
  EXPECT_FALSE(driver->Visible("calmess"));
}

TEST_F(FrmEattTest, OfACalculatedPeriodOnlyTitleAndCodeCanBeEdited) {
  OpenPeriod(1);
  EXPECT_TRUE(driver->Visible("calmess"));
  EXPECT_EQ(portal.calmess.Caption, "Note to the Teacher");
  EXPECT_EQ(portal.Label4.Caption,
            "You can only edit the title and 3 letter codes for calculated attendance at this "
            "Portal.");
  Figure(1, 2, "9");
  EXPECT_EQ(Cell(1, 2), "0");
  driver->Type("Title", "First quarter");
  driver->Type("code", "Q1");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Summaries[2].title, "First quarter");
  EXPECT_EQ(Current().Summaries[2].code, "Q1");
  EXPECT_EQ(Current().Summaries[2].kind, 2);
  EXPECT_EQ(Figures(1, 2), "0    |0| 0/ 0/ 0/ 0/");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmEattTest, ExitStoresADirectPeriod) {
  OpenPeriod(0);
  Figure(1, 2, "14");
  Figure(2, 3, "x");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Figures(1, 1), "14   |1| 0/ 0/ 0/ 0/");
  EXPECT_EQ(Figures(2, 1), "0    |x| 0/ 0/ 0/ 0/");
  EXPECT_EQ(Current().Summaries[1].title, " Fall");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmEattTest, AnotherLineWithoutAnEditStoresNothing) {
  const std::string before = Bytes();
  OpenPeriod(0);
  driver->Choose("list1", 1);
  EXPECT_EQ(driver->Text("code"), "A1");
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmEattTest, ExitStoresThePeriodShownEvenWithoutAnEdit) {
  OpenPeriod(0);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Summaries[1].title, " Fall");
  EXPECT_EQ(Current().Summaries[1].code, "F");
  EXPECT_EQ(Figures(1, 1), "3    |1| 0/ 0/ 0/ 0/");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmEattTest, ExitThatWasRefusedKeepsTheReminderComingUntilTheFiguresAreFilled) {
  EnrolStudent("Zoe", "Zed", "9");  // as a text import adds one, without figures
  OpenPeriod(0);
  screen.ExpectBox(kDayReminder);
  driver->Press("exit");
  for (int i = 0; i < 2; ++i) {
    screen.ExpectBox(kDayReminder);
    driver->Focus("list1");
    EXPECT_EQ(driver->Focused(), "Grid1");
  }
  Figure(3, 2, "0");
  Figure(3, 3, "2");
  driver->Focus("list1");
  EXPECT_EQ(driver->Focused(), "list1");
  EXPECT_EQ(Figures(3, 1), "0    |2| 0/ 0/ 0/ 0/");
}

TEST_F(FrmEattTest, TheButtonsHaveTheirNames) {
  EXPECT_EQ(portal.exit.Caption, "E&xit");
  EXPECT_EQ(portal.cancel.Caption, "&Cancel");
}

TEST_F(FrmEattTest, ExitWithNothingChosenCloses) {
  Open(portal);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmEattTest, ComingBackToTheListStoresAndShowsTheNewTitle) {
  OpenPeriod(0);
  driver->Type("Title", "Autumn");
  driver->Focus("list1");
  EXPECT_EQ(Current().Summaries[1].title, "Autumn");
  EXPECT_EQ(portal.list1.List.front(), "Autumn");
  EXPECT_EQ(portal.list1.ListIndex, 0);
  driver->Choose("list1", 1);
  EXPECT_EQ(driver->Text("code"), "A1");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmEattTest, ComingBackToTheListWithAnEmptyFieldIsRefusedUntilItIsFilled) {
  OpenPeriod(0);
  driver->Type("code", "");
  for (int i = 0; i < 2; ++i) {
    screen.ExpectBox(kDayReminder);
    driver->Focus("list1");
    EXPECT_EQ(driver->Focused(), "code");
    EXPECT_TRUE(portal.check_failed);
  }
  EXPECT_EQ(Current().Changed, kFalse);
  driver->Type("code", "N");
  driver->Focus("list1");
  EXPECT_FALSE(portal.check_failed);
  EXPECT_EQ(Current().Summaries[1].code, "N");
}

TEST_F(FrmEattTest, ExitWithAnEmptyFigureLeadsToTheFirstStudent) {
  OpenPeriod(0);
  Figure(2, 2, "\b");
  screen.ExpectBox(kDayReminder);
  driver->Press("exit");
  ExpectLastBox("Note to the Teacher", BoxButtons::kOk, BoxIcon::kCritical);
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Focused(), "Grid1");
  EXPECT_EQ(portal.Grid1.Row, 1);
}

TEST_F(FrmEattTest, CancelAsksAndLeavesEveryByte) {
  const std::string before = Bytes();
  OpenPeriod(0);
  Figure(1, 2, "9");
  screen.ExpectBox(kSureToCancel, BoxAnswer::kNo);
  driver->Press("cancel");
  ExpectLastBox("CANCEL", BoxButtons::kYesNo, BoxIcon::kQuestion);
  EXPECT_FALSE(portal.Unloaded());
  screen.ExpectBox(kSureToCancel, BoxAnswer::kYes);
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmEattTest, CodeHoldsThreeCharactersUnlessItHasMoreAlready) {
  Current().Summaries[2].code = "A1000";
  OpenPeriod(0);
  EXPECT_EQ(portal.code.MaxLength, 3);
  driver->Choose("list1", 1);
  EXPECT_EQ(portal.code.MaxLength, 5);
  EXPECT_EQ(driver->Text("code"), "A1000");
}

}  // namespace
}  // namespace tallyroll
