// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/frmDatt.h"

#include "attendance/summary_periods.h"
#include "store/check_class.h"
#include "tests/attendance/attendance_test.h"

namespace tallyroll {
namespace {

class FrmDattTest : public AttendanceTest {
 protected:
  FrmDattTest() {
    Enrol("Li", "Bo", "2");
    AddPeriod("Fall  ", "F", 1);
    AddPeriod("Winter", "A1", 2).rangenumber = 1;
    AddPeriod("Spring", "A2", 2).rangenumber = 2;
    At(1).SummaryAbsent[2] = "2";
    At(1).SummaryAbsent[3] = "3";
    At(1).SummaryLate[3] = "30";
    At(1).SummaryDetail[3] = " 3/ 3/ 3/ 3/";
    Current().Changed = kFalse;
  }
  void Delete(int index, const std::string& title) {
    driver->Choose("list1", index);
    screen.ExpectBox("Delete " + title + "?");
    driver->Press("delete");
  }

  frmDatt portal;
};

TEST_F(FrmDattTest, ListsTitlesAndCodes) {
  Open(portal);
  EXPECT_EQ(portal.Caption, "Delete Attendance Portal");
  EXPECT_EQ(portal.delete_.Caption, "&Delete");
  EXPECT_EQ(portal.exitbt.Caption, "E&xit");
  EXPECT_EQ(portal.list1.List, (std::vector<std::string>{"Fall  \tF", "Winter\tA1", "Spring\tA2"}));
}

TEST_F(FrmDattTest, NothingChosenIsTold) {
  Open(portal);
  screen.ExpectBox("You must select an attendance summary to delete or press Exit.");
  driver->Press("delete");
  ExpectLastBox("Note to the Teacher", BoxButtons::kOk, BoxIcon::kNone);
  EXPECT_EQ(Current().NumSummaries, 3);
}

TEST_F(FrmDattTest, TheQuestionIsAnsweredWithCancelByDefault) {
  const std::string before = Bytes();
  Open(portal);
  driver->Choose("list1", 0);
  screen.ExpectBox("Delete Fall?", BoxAnswer::kCancel);
  driver->Press("delete");
  ExpectLastBox("Delete Portal", BoxButtons::kOkCancel, BoxIcon::kQuestion);
  EXPECT_TRUE(screen.boxes.back().second_is_default);
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmDattTest, TheLaterPeriodsMoveUp) {
  Open(portal);
  Delete(1, "Winter");
  EXPECT_EQ(Current().NumSummaries, 2);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(portal.list1.List, (std::vector<std::string>{"Fall  \tF", "Spring\tA2"}));
  EXPECT_EQ(portal.list1.ListIndex, -1);
  EXPECT_EQ(Current().Summaries[2].title, "Spring");
  EXPECT_EQ(Figures(1, 2), "3    |30| 3/ 3/ 3/ 3/");
}

TEST_F(FrmDattTest, TheListsKeepTheirLengthAndAreNoFault) {
  Open(portal);
  Delete(2, "Spring");
  EXPECT_EQ(Current().Summaries.size(), 4u);
  EXPECT_EQ(At(1).SummaryAbsent.size(), 4u);
  EXPECT_EQ(Figures(1, 3), "3    |30| 3/ 3/ 3/ 3/");
  Current().Magic = "ty8";
  Class read;
  ASSERT_EQ(ParseClass(Bytes(), read).error, 0);
  EXPECT_TRUE(BrokenInvariants(read).empty());
  EXPECT_EQ(read.NumSummaries, 2);
}

TEST_F(FrmDattTest, ANewPeriodTakesThePlaceOfADeletedOne) {
  Open(portal);
  Delete(2, "Spring");
  AddSummary().title = "Summer";
  EXPECT_EQ(Current().NumSummaries, 3);
  EXPECT_EQ(Current().Summaries.size(), 4u);
  EXPECT_EQ(At(1).SummaryAbsent.size(), 4u);
}

TEST_F(FrmDattTest, TheNumberOfTheLastRangeThatStandsCounts) {
  Open(portal);
  Delete(1, "Winter");
  EXPECT_EQ(NextRangeNumber(), 3);
  Delete(1, "Spring");
  EXPECT_EQ(NextRangeNumber(), 1);
}

TEST_F(FrmDattTest, WithTheLastPeriodGoneExitStillEnablesTheCommands) {
  Open(portal);
  Delete(0, "Fall");
  Delete(0, "Winter");
  Delete(0, "Spring");
  EXPECT_EQ(Current().NumSummaries, 0);
  EXPECT_TRUE(portal.list1.List.empty());
  driver->Press("exitbt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(window.enablings, 1);
}

TEST_F(FrmDattTest, EscapeIsExit) {
  Open(portal);
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(window.enablings, 1);
}

}  // namespace
}  // namespace tallyroll
