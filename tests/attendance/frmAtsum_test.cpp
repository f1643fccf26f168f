// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/attendance/frmAtsum_test.h"

namespace tallyroll {
namespace {

const std::string kReminder =
    "You must fill in the TITLE and CODE of the attendance period, and the ATTENDANCE for each "
    "student.\nUse TAB to move from one entry to the next.\nUse ARROW KEYS to move between student "
    "names.";

TEST_F(FrmAtsumTest, WithoutDailyAttendanceOnlyDirectEntryIsOffered) {
  Open(portal);
  EXPECT_EQ(portal.Caption, "Summary Attendance Portal");
  for (const char* hidden : {"typpe", "message", "summ"}) EXPECT_FALSE(driver->Visible(hidden));
  EXPECT_TRUE(driver->Visible("ind"));
  EXPECT_EQ(portal.summkind, 1);
  EXPECT_TRUE(portal.Hand.Value);
  EXPECT_FALSE(driver->Enabled("another"));
  EXPECT_EQ(driver->Focused(), "Title");
}

TEST_F(FrmAtsumTest, WithDailyAttendanceTheKindIsChosen) {
  OpenWithDays();
  EXPECT_TRUE(driver->Visible("typpe"));
  EXPECT_TRUE(driver->Visible("message"));
  EXPECT_FALSE(driver->Visible("summ"));
  EXPECT_FALSE(driver->Visible("ind"));
  EXPECT_EQ(portal.termstart.Value, Day(2026, 9, 1));
  EXPECT_EQ(portal.termend.Value, Day(2027, 6, 30));
  for (const DTPicker* picker : {&portal.termstart, &portal.termend}) {
    EXPECT_EQ(picker->MinDate, Day(2026, 9, 1));
    EXPECT_EQ(picker->MaxDate, Day(2027, 6, 30));
  }
}

TEST_F(FrmAtsumTest, TheTextsAreThoseThatTeachersKnow) {
  EXPECT_EQ(portal.typpe.Caption, "Summary Attendace Options");
  EXPECT_EQ(portal.Summary.Caption, "Summary--Range of Dates");
  EXPECT_EQ(portal.Hand.Caption, "Direct Entering of Att.Info");
  EXPECT_EQ(portal.labmessage.Caption, "Please Choose an option for your Summary Attendance.");
  EXPECT_EQ(portal.labrange.Caption,
            "1. Summary--Range. After you enter the starting and ending dates, the program will "
            "automatically calculate the number of Abs, Cuts, Notes, Lates and Exc each student "
            "has. You cannot edit this info.");
  EXPECT_EQ(portal.Label5.Caption,
            "2. Direct Entering of Individual Attendance. If you prefer, you can manually enter "
            "each student's attendance.  After you enter a title for the attendance period and a 3 "
            "letter code, you then enter the number of absences for every student.");
  EXPECT_EQ(portal.summ.Caption, "Attendance Summary");
  EXPECT_EQ(portal.another.Caption, "&Another");
  EXPECT_EQ(portal.Exits.Caption, "E&xit");
  EXPECT_EQ(portal.cancel.Caption, "&Cancel");
}

TEST_F(FrmAtsumTest, TheDirectLayout) {
  Open(portal);
  const Grid& grid = portal.Grid1;
  EXPECT_EQ(grid.Rows(), 3);
  EXPECT_EQ(grid.Cols(), 4);
  EXPECT_EQ(grid.TextMatrix(0, 0), "     NAME");
  EXPECT_EQ(grid.TextMatrix(0, 1), "       ID");
  EXPECT_EQ(Row(0), "ABS|LATE");
  EXPECT_EQ(grid.TextMatrix(1, 0), "Li, Bo");
  EXPECT_EQ(grid.TextMatrix(1, 1), "2");
  EXPECT_EQ(grid.ColWidth(0), 3125);
  EXPECT_EQ(grid.ColWidth(1), 1440);
  EXPECT_EQ(grid.ColWidth(2), 780);
  EXPECT_EQ(grid.ColWidth(3), 780);
}

TEST_F(FrmAtsumTest, TheRangeLayout) {
  OpenWithDays();
  driver->Tick("Summary");
  const Grid& grid = portal.Grid1;
  EXPECT_EQ(portal.summkind, 2);
  EXPECT_EQ(grid.Cols(), 9);
  EXPECT_EQ(Row(0), "A|C|E|S|N|L|T");
  EXPECT_EQ(grid.ColWidth(0), 3100);
  EXPECT_EQ(grid.ColWidth(2), 470);
  for (int col = 3; col <= 8; ++col) EXPECT_EQ(grid.ColWidth(col), 600);
  EXPECT_TRUE(driver->Visible("summ"));
  EXPECT_FALSE(driver->Visible("message"));
  EXPECT_FALSE(driver->Visible("ind"));
}

TEST_F(FrmAtsumTest, ChoosingAKindStoresNothing) {
  OpenWithDays();
  const std::string before = Bytes();
  driver->Tick("Summary");
  driver->Tick("Hand");
  EXPECT_EQ(portal.summkind, 1);
  EXPECT_TRUE(driver->Visible("ind"));
  EXPECT_FALSE(driver->Visible("summ"));
  EXPECT_EQ(driver->Focused(), "Title");
  EXPECT_EQ(Bytes(), before);
}

// ---- Direct entry ----

TEST_F(FrmAtsumTest, ADirectSummaryIsStoredAsTyped) {
  Open(portal);
  FillDirect();
  EXPECT_TRUE(driver->Enabled("another"));
  driver->Press("Exits");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Period(1), (AttendanceSummary{"First marking period", "MP1", 1, 0, "", ""}));
  EXPECT_EQ(Figures(1, 1), "3    |1| 0/ 0/ 0/ 0/");
  EXPECT_EQ(Figures(2, 1), "0    |12| 0/ 0/ 0/ 0/");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmAtsumTest, ALetterIsTakenAndStored) {
  Open(portal);
  FillDirect();
  Figure(1, 2, "x");
  driver->Press("Exits");
  EXPECT_EQ(Figures(1, 1), "x    |1| 0/ 0/ 0/ 0/");
}

TEST_F(FrmAtsumTest, AbsencesAreCutToFiveCharacters) {
  Open(portal);
  FillDirect();
  Figure(1, 2, "1234567");
  driver->Press("Exits");
  EXPECT_EQ(Figures(1, 1), "12345|1| 0/ 0/ 0/ 0/");
}

TEST_F(FrmAtsumTest, TheFirstKeyInACellReplacesAndBackspaceTakesTheLast) {
  Open(portal);
  Figure(1, 2, "12");
  EXPECT_EQ(Row(1), "12|");
  driver->TypeKeys("Grid1", "\b");
  EXPECT_EQ(Row(1), "1|");
  driver->TypeKeys("Grid1", "\b\b");
  EXPECT_EQ(Row(1), "|");
  Figure(1, 2, "7");
  driver->PressKey("Grid1", Key::kDown);
  driver->PressKey("Grid1", Key::kUp);
  driver->TypeKeys("Grid1", "8");
  EXPECT_EQ(Row(1), "8|");
}

TEST_F(FrmAtsumTest, TabGoesFromAbsencesToLatesAndToTheNextStudent) {
  Open(portal);
  driver->PickCell("Grid1", 1, 2);
  for (const char* key : {"1", "2", "3", "4"}) {
    driver->TypeKeys("Grid1", key);
    driver->PressKey("Grid1", Key::kTab);
  }
  EXPECT_EQ(Row(1), "1|2");
  EXPECT_EQ(Row(2), "3|4");
  EXPECT_EQ(portal.Grid1.Row, 2);
  EXPECT_EQ(portal.Grid1.Col, 3);
}

TEST_F(FrmAtsumTest, ShiftTabGoesBackAndStaysWithTheFirstFigure) {
  Open(portal);
  driver->PickCell("Grid1", 2, 2);
  for (const char* key : {"3", "2", "1"}) {
    driver->TypeKeys("Grid1", key);
    driver->PressKey("Grid1", Key::kBackTab);
  }
  EXPECT_EQ(Row(1), "1|2");
  EXPECT_EQ(Row(2), "3|");
  EXPECT_EQ(portal.Grid1.Row, 1);
  EXPECT_EQ(portal.Grid1.Col, 2);
}

TEST_F(FrmAtsumTest, CodeHoldsThreeCharacters) {
  EXPECT_EQ(portal.code.MaxLength, 3);
}

TEST_F(FrmAtsumTest, WithoutATitleExitLeadsThere) {
  Open(portal);
  FillDirect();
  driver->Type("Title", "");
  screen.ExpectBox(kReminder);
  driver->Press("Exits");
  ExpectLastBox("Note to the Teacher", BoxButtons::kOk, BoxIcon::kCritical);
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Focused(), "Title");
  EXPECT_EQ(Current().NumSummaries, 0);
}

TEST_F(FrmAtsumTest, WithoutACodeAnotherLeadsThere) {
  Open(portal);
  FillDirect();
  driver->Type("code", "");
  screen.ExpectBox(kReminder);
  driver->Press("another");
  EXPECT_EQ(driver->Focused(), "code");
  EXPECT_EQ(Current().NumSummaries, 0);
}

TEST_F(FrmAtsumTest, WithoutAFigureItLeadsToTheFirstStudent) {
  for (const char* missing : {"\b\b", " "}) {
    frmAtsum again;
    Open(again);
    FillDirect();
    Figure(2, 3, missing);
    screen.ExpectBox(kReminder);
    driver->Press("Exits");
    EXPECT_EQ(driver->Focused(), "Grid1");
    EXPECT_EQ(again.Grid1.Row, 1);
    EXPECT_EQ(again.Grid1.Col, 2);
  }
}

TEST_F(FrmAtsumTest, ExitWithNothingTypedClosesAndStoresNothing) {
  AddPeriod("old", "O", 1);
  Open(portal);
  const std::string before = Bytes();
  driver->Press("Exits");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(window.enablings, 1);
}

TEST_F(FrmAtsumTest, AnotherStoresADirectSummaryAndEmptiesTheFields) {
  Open(portal);
  FillDirect();
  driver->Press("another");
  EXPECT_EQ(Current().NumSummaries, 1);
  EXPECT_EQ(driver->Text("Title"), "");
  EXPECT_EQ(driver->Text("code"), "");
  EXPECT_EQ(Row(1), "|");
  EXPECT_FALSE(driver->Enabled("another"));
  FillDirect();
  driver->Press("Exits");
  EXPECT_EQ(Current().NumSummaries, 2);
}

// ---- The limit ----

TEST_F(FrmAtsumTest, ExitStoresTheTwentieth) {
  for (int k = 1; k <= 19; ++k) AddPeriod("T", "C", 1);
  Open(portal);
  FillDirect();
  driver->Press("Exits");
  EXPECT_EQ(Current().NumSummaries, 20);
}

TEST_F(FrmAtsumTest, AnotherStoresTheTwentiethAndOffersNoOtherOne) {
  for (int k = 1; k <= 19; ++k) AddPeriod("T", "C", 1);
  Open(portal);
  FillDirect();
  screen.ExpectBox(kTwenty);
  driver->Press("another");
  EXPECT_EQ(Current().NumSummaries, 20);
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmAtsumTest, AnotherBehindTheTwentiethIsRefused) {
  for (int k = 1; k <= 20; ++k) AddPeriod("T", "C", 1);
  Open(portal);
  FillDirect();
  screen.ExpectBox(kTwenty);
  driver->Press("another");
  ExpectLastBox("Note to the Teacher", BoxButtons::kOk, BoxIcon::kCritical);
  EXPECT_EQ(Current().NumSummaries, 20);
  EXPECT_EQ(driver->Text("Title"), "First marking period");
}

// ---- Cancel ----

TEST_F(FrmAtsumTest, CancelAsksOnceATitleWasTyped) {
  Open(portal);
  const std::string before = Bytes();
  FillDirect();
  screen.ExpectBox(kSureToCancel, BoxAnswer::kNo);
  driver->Press("cancel");
  ExpectLastBox("CANCEL", BoxButtons::kYesNo, BoxIcon::kQuestion);
  EXPECT_FALSE(portal.Unloaded());
  screen.ExpectBox(kSureToCancel, BoxAnswer::kYes);
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmAtsumTest, CancelOfARangeIsQuiet) {
  OpenWithDays();
  const std::string before = Bytes();
  driver->Tick("Summary");
  driver->Press("ok");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmAtsumTest, CancelIsQuietWithFiguresAlone) {
  Open(portal);
  Figure(1, 2, "3");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmAtsumTest, CancelAfterATitleWasTakenBackAsksWhileAStudentIsBlank) {
  Open(portal);
  driver->Type("Title", "x");
  driver->Type("Title", "");
  screen.ExpectBox(kSureToCancel, BoxAnswer::kNo);
  driver->Press("cancel");
  Figure(1, 2, "3");
  Figure(2, 2, "3");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmAtsumTest, AClassWithoutStudentsTakesATitleAndACode) {
  Current().NumStudents = 0;
  ReDim(Current().Students, 0);
  Open(portal);
  driver->Type("Title", "Empty");
  driver->Type("code", "E");
  driver->Press("Exits");
  EXPECT_EQ(Current().NumSummaries, 1);
}

}  // namespace
}  // namespace tallyroll
