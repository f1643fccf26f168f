// SPDX-License-Identifier: GPL-3.0-or-later
// Opening, months and leaving.
#include "tests/attendance/frmAtt_test.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

TEST_F(FrmAttTest, TheModesHaveTheirTitles) {
  for (const auto& [mode, title] :
       {std::pair{15, "Enter Attendance Portal"}, std::pair{25, "Edit Attendance Portal"},
        std::pair{112, "View Daily Attendance Portal"}}) {
    OpenPortal(mode);
    EXPECT_EQ(portal->Caption, title);
  }
}

TEST_F(FrmAttTest, TheViewOnlyShowsAndHasOneWayOut) {
  Mark(1, Day(2026, 9, 1), "A");
  const std::string before = Bytes();
  OpenPortal(112);
  for (const char* hidden : {"mnudate", "mnuPrint", "mnuExit", "munatt"})
    EXPECT_FALSE(driver->Visible(hidden)) << hidden;
  EXPECT_EQ(driver->Text("mnucancel"), "E&xit");
  Type(1, 1, "C");
  EXPECT_EQ(Cell(1, 2), "A");
  EXPECT_FALSE(driver->Visible("Combo1"));
  EXPECT_EQ(screen.beeps, 0);
  driver->Press("mnucancel");
  EXPECT_TRUE(portal->Unloaded());
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmAttTest, TheOtherModesHaveEveryMenu) {
  OpenPortal(25);
  for (const char* shown : {"mnudate", "mnuPrint", "mnuExit", "munatt", "mnucancel"})
    EXPECT_TRUE(driver->Visible(shown)) << shown;
  EXPECT_EQ(driver->Text("mnucancel"), "&Cancel");
}

TEST_F(FrmAttTest, ShowsTheMonthOfToday) {
  Mark(2, Day(2026, 9, 30), "L");
  OpenPortal();
  EXPECT_EQ(Shown(), "September 2026");
  EXPECT_EQ(Cols(), 38);
  EXPECT_EQ(Rows(), 11);
  EXPECT_EQ(Row(0, 2, 4), "1|2|3");
  EXPECT_EQ(Cell(0, 31), "30");
  EXPECT_EQ(Row(0, 32, 37), "Totals: ABS|CUT|EXC|SPA|NOTE|LATE");
  EXPECT_EQ(Cell(2, 31), "L");
  EXPECT_EQ(Column(0, 4, 10),
            "        Daily Totals|Absent|Cut|Excused|Special Absence|Absent with Note|Late");
  for (int col = 32; col <= 37; ++col) EXPECT_EQ(portal->Grid1.ColWidth(col), 0);
  for (int row = 4; row <= 10; ++row) EXPECT_EQ(portal->Grid1.RowHeight(row), 0);
  EXPECT_EQ(portal->Grid1.ColWidth(2), 290);
  EXPECT_EQ(portal->Grid1.Row, 0);
  EXPECT_EQ(portal->Grid1.Col, 0);
  EXPECT_FALSE(driver->Visible("Combo1"));
}

TEST_F(FrmAttTest, AFebruaryOfALeapYearHas29Days) {
  SetRange({9, 2027}, {6, 2028});
  screen.now = Day(2028, 2, 1);
  Mark(1, Day(2028, 2, 29), "A");
  // February has a lower number than September, so the last month comes first.
  OpenPortal();
  for (int i = 0; i < 4; ++i) driver->Press("Command1");
  EXPECT_EQ(Shown(), "February 2028");
  EXPECT_EQ(Cols(), 37);
  EXPECT_EQ(Cell(0, 30), "29");
  EXPECT_EQ(Cell(1, 30), "A");
  EXPECT_EQ(Cell(0, Cols() - 6), "Totals: ABS");
  driver->Tick("mnuStudent");
  EXPECT_EQ(Row(1, Cols() - 6, Cols() - 1), "1|0|0|0|0|0");
}

TEST_F(FrmAttTest, TheLabelsFollowTheNameMode) {
  struct Labels {
    i16 mode;
    const char *head0, *head1, *first, *second;
    int width0, width1;
  };
  const Labels all[] = {{73, "      ID", "", "1", "", 2000, 0},
                        {82, "      ID", "   NAME", "1", "Li, Cy", 1500, 3100},
                        {68, "   NAME", "      ID", "Li, Cy", "1", 3100, 1500},
                        {57, "   NAME", "", "Li, Cy", "", 3000, 0}};
  for (const Labels& labels : all) {
    NameMode = labels.mode;
    OpenPortal();
    EXPECT_EQ(Cell(0, 0), labels.head0) << labels.mode;
    EXPECT_EQ(Cell(0, 1), labels.head1) << labels.mode;
    EXPECT_EQ(Cell(2, 0), labels.first) << labels.mode;
    EXPECT_EQ(Cell(2, 1), labels.second) << labels.mode;
    EXPECT_EQ(portal->Grid1.ColWidth(0), labels.width0) << labels.mode;
    EXPECT_EQ(portal->Grid1.ColWidth(1), labels.width1) << labels.mode;
  }
}

TEST_F(FrmAttTest, TodayBehindTheRangeShowsTheLastMonth) {
  screen.now = Day(2027, 11, 2);
  OpenPortal();
  EXPECT_EQ(Shown(), "June 2027");
}

TEST_F(FrmAttTest, AMonthNumberBelowThatOfTheFirstMonthShowsTheLastOne) {
  screen.now = Day(2027, 1, 11);
  OpenPortal();
  EXPECT_EQ(Shown(), "June 2027");
}

TEST_F(FrmAttTest, FromSeptemberToDecemberTheMonthOfTodayIsShown) {
  for (const auto& [month, name] :
       {std::pair{9, "September 2026"}, std::pair{10, "October 2026"},
        std::pair{11, "November 2026"}, std::pair{12, "December 2026"}}) {
    screen.now = Day(2026, month, 30);
    OpenPortal();
    EXPECT_EQ(Shown(), name);
  }
}

TEST_F(FrmAttTest, ARangeThatIsStillToComeShowsItsFirstMonth) {
  screen.now = Day(2025, 10, 1);
  OpenPortal();
  EXPECT_EQ(Shown(), "September 2026");
  EXPECT_FALSE(driver->Enabled("Command1"));
}

TEST_F(FrmAttTest, NoMonthBeforeTheFirstAndNoneBehindTheLast) {
  OpenPortal();
  EXPECT_FALSE(driver->Enabled("Command1"));
  EXPECT_TRUE(driver->Enabled("Command2"));
  for (int i = 0; i < 9; ++i) {
    driver->Press("Command2");
    EXPECT_TRUE(driver->Enabled("Command1"));
  }
  EXPECT_EQ(Shown(), "June 2027");
  EXPECT_FALSE(driver->Enabled("Command2"));
}

TEST_F(FrmAttTest, TheSameMonthOfAnotherYearIsNotTheLastOne) {
  SetRange({9, 2026}, {9, 2027});
  OpenPortal();
  EXPECT_FALSE(driver->Enabled("Command1"));
  EXPECT_TRUE(driver->Enabled("Command2"));
}

TEST_F(FrmAttTest, AMonthAndBackKeepsWhatWasEntered) {
  OpenPortal();
  Type(3, 30, "N");
  driver->Press("Command2");
  EXPECT_EQ(Shown(), "October 2026");
  EXPECT_EQ(Cell(3, 31), "");
  driver->Press("Command1");
  EXPECT_EQ(Cell(3, 31), "N");
}

TEST_F(FrmAttTest, ExitStoresEveryMonth) {
  OpenPortal();
  Type(1, 1, "A");
  driver->Press("Command2");
  Type(3, 31, "l");
  driver->Press("mnuExit");
  EXPECT_TRUE(portal->Unloaded());
  EXPECT_EQ(Picture(1), "9/1/2026 A");
  EXPECT_EQ(Picture(2), "");
  EXPECT_EQ(Picture(3), "10/31/2026 L");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(window.enablings, 1);
}

TEST_F(FrmAttTest, ExitWithoutAnEntryStoresNothing) {
  const std::string before = Bytes();
  OpenPortal();
  driver->Press("Command2");
  driver->Press("mnuExit");
  EXPECT_TRUE(portal->Unloaded());
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(window.enablings, 0);
}

TEST_F(FrmAttTest, ExitCountsRangeSummariesAnew) {
  AttendanceSummary& period = AddPeriod("all", "A1", 2);
  period.startdate = "9/1/2026";
  period.enddate = "9/30/2026";
  AddPeriod("by hand", "H", 1);
  OpenPortal();
  Type(1, 1, "A");
  Type(1, 2, "L");
  Type(1, 3, "C");
  driver->Press("mnuExit");
  EXPECT_EQ(Figures(1, 1), "1    |1| 1/ 0/ 0/ 0/");
  EXPECT_EQ(Figures(1, 2), "0    |0| 0/ 0/ 0/ 0/");
}

TEST_F(FrmAttTest, ASummaryWhoseDatesLeftTheRangeIsCountedFromItsFirstToItsLastDay) {
  AttendanceSummary& period = AddPeriod("wide", "A1", 2);
  period.startdate = "8/1/2026";
  period.enddate = "7/31/2027";
  Mark(1, Day(2027, 6, 30), "A");
  OpenPortal();
  Type(1, 1, "A");
  driver->Press("mnuExit");
  EXPECT_EQ(Figures(1, 1), "2    |0| 0/ 0/ 0/ 0/");
}

TEST_F(FrmAttTest, CancelAsksAndThrowsTheCopyAway) {
  Mark(1, Day(2026, 9, 1), "A");
  const std::string before = Bytes();
  OpenPortal();
  Type(1, 1, "C");
  screen.ExpectBox(kSureToCancel, BoxAnswer::kNo);
  driver->Press("mnucancel");
  ExpectLastBox("CANCEL", BoxButtons::kYesNo, BoxIcon::kNone);
  EXPECT_FALSE(portal->Unloaded());
  screen.ExpectBox(kSureToCancel, BoxAnswer::kYes);
  driver->Press("mnucancel");
  EXPECT_TRUE(portal->Unloaded());
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmAttTest, CancelWithoutAnEntryAsksNothing) {
  OpenPortal();
  driver->Press("mnucancel");
  EXPECT_TRUE(portal->Unloaded());
}

TEST_F(FrmAttTest, ClosingTheWindowIsCancel) {
  const std::string before = Bytes();
  OpenPortal();
  Type(1, 1, "A");
  screen.ExpectBox(kSureToCancel, BoxAnswer::kYes);
  driver->CloseWindow();
  EXPECT_TRUE(portal->Unloaded());
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmAttTest, ExitAfterARefusedCancelStores) {
  OpenPortal();
  Type(1, 1, "A");
  screen.ExpectBox(kSureToCancel, BoxAnswer::kNo);
  driver->CloseWindow();
  driver->Press("mnuExit");
  EXPECT_EQ(Picture(1), "9/1/2026 A");
}

TEST_F(FrmAttTest, WithoutARangeCancelledSettingsCloseItAtOnce) {
  Current().NumDays = 0;
  ReDim(Current().AttendanceDays, 0);
  for (Student& student : Current().Students) student.DailyMarks.clear();
  const std::string before = Bytes();
  screen.ExpectPortal("frmatset", [](PortalDriver& work) { work.Press("CancelButton"); });
  OpenPortal();
  EXPECT_TRUE(portal->Unloaded());
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmAttTest, ARangeThatIsSetUpAtOpeningIsAChange) {
  Current().NumDays = 0;
  ReDim(Current().AttendanceDays, 0);
  Current().termstart = "9/1/2026";
  Current().termend = "6/1/2027";
  screen.ExpectPortal("frmatset", [](PortalDriver& work) { work.Press("OKButton"); });
  OpenPortal();
  EXPECT_EQ(portal->portalchanged, 1);
  EXPECT_EQ(Shown(), "September 2026");
  screen.ExpectBox(kSureToCancel, BoxAnswer::kYes);
  driver->Press("mnucancel");
  EXPECT_EQ(Current().NumDays, 303);
}

TEST_F(FrmAttTest, AClassWithoutStudentsShowsItsMonths) {
  Current().NumStudents = 0;
  ReDim(Current().Students, 0);
  OpenPortal();
  EXPECT_EQ(Rows(), 8);
  driver->Tick("mnuDaily");
  driver->Tick("mnuStudent");
  driver->Press("Command2");
  EXPECT_EQ(Column(2, 2, 7), "0|0|0|0|0|0");
  driver->Press("mnuExit");
  EXPECT_TRUE(portal->Unloaded());
}

TEST_F(FrmAttTest, AThousandStudentsOver400Days) {
  for (int i = 4; i <= 1000; ++i) EnrolStudent("Student", "S", PlainNumberText(i));
  SetRange({9, 2026}, {10, 2027});  // 365 days and 61 more
  OpenPortal();
  Type(1000, 30, "A");
  driver->Tick("mnuDaily");
  EXPECT_EQ(Cell(Rows() - 6, 31), "1");
  driver->Press("mnuExit");
  EXPECT_EQ(Picture(1000), "9/30/2026 A");
  EXPECT_EQ(Picture(999), "");
}

TEST_F(FrmAttTest, AStudentAddedWithoutDailyMarksHasABlankMonthAndTakesMarks) {
  EnrolStudent("Zoe", "Zed", "9");
  OpenPortal();
  EXPECT_EQ(Row(4, 2, 4), "||");
  Type(4, 2, "A");
  driver->Press("mnuExit");
  EXPECT_EQ(At(4).DailyMarks.size(), 304u);
  EXPECT_EQ(Picture(4), "9/2/2026 A");
}

}  // namespace
}  // namespace tallyroll
