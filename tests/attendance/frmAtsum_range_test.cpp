// SPDX-License-Identifier: GPL-3.0-or-later
// Summaries that are counted between two dates.
#include "tests/attendance/frmAtsum_test.h"

namespace tallyroll {
namespace {

const std::string kBackwards = "The start date must come befor the end date. Please Correct.";
const std::string kNoOk =
    "You changed a date but didn't press OK. Do you want to abandon your summary?";

TEST_F(FrmAtsumTest, TheTotalLeavesOutExcusedAndLate) {
  SetRange({9, 2026}, {6, 2027});
  int day = 1;
  for (const char code : std::string("ACCEEESSSSNNNNNLLLLLL"))
    Mark(2, Day(2026, 9, day++), std::string(1, code).c_str());
  Open(portal);
  driver->Tick("Summary");
  driver->Press("ok");
  EXPECT_EQ(Row(1), "0|0|0|0|0|0|0");
  EXPECT_EQ(Row(2), "1|2|3|4|5|6|12");
  EXPECT_TRUE(driver->Enabled("another"));
}

TEST_F(FrmAtsumTest, BothDaysBelongToTheRange) {
  SetRange({9, 2026}, {6, 2027});
  for (const int day : {1, 2, 3, 4}) Mark(1, Day(2026, 9, day), "A");
  Open(portal);
  driver->Tick("Summary");
  driver->PickDate("termstart", Day(2026, 9, 2));
  driver->PickDate("termend", Day(2026, 9, 3));
  driver->Press("ok");
  EXPECT_EQ(Row(1), "2|0|0|0|0|0|2");
}

// The figures are those of the dates shown, so nothing is asked and they are kept.
TEST_F(FrmAtsumTest, ADatePickedAsItWasCountedChangesNothing) {
  SetRange({9, 2026}, {6, 2027});
  Mark(1, Day(2026, 9, 2), "A");
  Open(portal);
  driver->Tick("Summary");
  driver->PickDate("termstart", Day(2026, 9, 2));
  driver->PickDate("termend", Day(2026, 9, 2));
  driver->Press("ok");
  driver->PickDate("termend", Day(2026, 9, 3));
  EXPECT_EQ(portal.datechanged, 1);
  driver->PickDate("termend", Day(2026, 9, 2));
  EXPECT_EQ(portal.datechanged, 0);
}

TEST_F(FrmAtsumTest, OneDayIsARange) {
  SetRange({9, 2026}, {6, 2027});
  for (const int day : {1, 2, 3}) Mark(1, Day(2026, 9, day), "A");
  Open(portal);
  driver->Tick("Summary");
  driver->PickDate("termstart", Day(2026, 9, 2));
  driver->PickDate("termend", Day(2026, 9, 2));
  driver->Press("ok");
  EXPECT_EQ(Row(1), "1|0|0|0|0|0|1");
}

TEST_F(FrmAtsumTest, AStartBehindTheEndIsRefused) {
  OpenWithDays();
  driver->Tick("Summary");
  driver->PickDate("termstart", Day(2026, 10, 2));
  driver->PickDate("termend", Day(2026, 10, 1));
  screen.ExpectBox(kBackwards);
  driver->Press("ok");
  ExpectLastBox("Note to the Teacher", BoxButtons::kOk, BoxIcon::kCritical);
  EXPECT_EQ(Row(1), "||||||");
  EXPECT_EQ(portal.datechanged, 0);
  EXPECT_EQ(portal.entered, 1);
  EXPECT_FALSE(driver->Enabled("another"));
  driver->Press("Exits");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumSummaries, 0);
}

TEST_F(FrmAtsumTest, TheFirstRangeIsA1WithItsDatesForATitle) {
  SetRange({9, 2026}, {6, 2027});
  Mark(1, Day(2026, 9, 1), "A");
  Mark(1, Day(2026, 9, 2), "L");
  Mark(1, Day(2026, 9, 3), "C");
  Mark(2, Day(2026, 9, 3), "E");
  Mark(2, Day(2026, 9, 4), "S");
  Mark(2, Day(2026, 11, 15), "N");
  Mark(2, Day(2026, 11, 16), "A");
  Open(portal);
  driver->Tick("Summary");
  driver->PickDate("termend", Day(2026, 11, 15));
  driver->Press("ok");
  driver->Press("Exits");
  EXPECT_TRUE(portal.Unloaded());
  ASSERT_EQ(Current().NumSummaries, 1);
  EXPECT_EQ(Period(1),
            (AttendanceSummary{"9/1/2026- 11/15/2026", "A1", 2, 1, "9/1/2026", "11/15/2026"}));
  EXPECT_EQ(Figures(1, 1), "1    |1|1/0/0/0/");
  EXPECT_EQ(Figures(2, 1), "0    |0|0/1/1/1/");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_GE(window.enablings, 1);
}

TEST_F(FrmAtsumTest, AStudentWithoutDailyMarksHasNoneInARange) {
  SetRange({9, 2026}, {6, 2027});
  EnrolStudent("Zoe", "Zed", "9");  // as a text import adds one
  Open(portal);
  driver->Tick("Summary");
  driver->Press("ok");
  EXPECT_EQ(Row(3), "0|0|0|0|0|0|0");
  driver->Press("Exits");
  EXPECT_EQ(Figures(3, 1), "0    |0|0/0/0/0/");
}

TEST_F(FrmAtsumTest, ADateChangedAfterOkIsTheDateThatAnotherKeeps) {
  SetRange({9, 2026}, {6, 2027});
  Mark(1, Day(2026, 9, 30), "A");
  Open(portal);
  driver->Tick("Summary");
  driver->Press("ok");
  driver->PickDate("termend", Day(2026, 9, 15));
  driver->Press("another");
  EXPECT_EQ(Period(1).enddate, "9/15/2026");
  EXPECT_EQ(Figures(1, 1), "1    |0|0/0/0/0/");
  LoadTermGrid();
  StoreDailyMarks();
  EXPECT_EQ(Figures(1, 1), "0    |0| 0/ 0/ 0/ 0/");
}

TEST_F(FrmAtsumTest, ARangeTakesTheNumberBehindTheLastOneThatStands) {
  AddPeriod("second", "A2", 2).rangenumber = 2;  // the first was deleted
  AddPeriod("by hand", "H", 1).rangenumber = 0;
  OpenWithDays();
  driver->Tick("Summary");
  driver->Press("ok");
  driver->Press("Exits");
  EXPECT_EQ(Period(3).code, "A3");
  EXPECT_EQ(Period(3).rangenumber, 3);
}

TEST_F(FrmAtsumTest, TypingDoesNotReachARange) {
  OpenWithDays();
  driver->Tick("Summary");
  driver->Press("ok");
  Figure(1, 2, "9");
  EXPECT_EQ(Row(1), "0|0|0|0|0|0|0");
}

TEST_F(FrmAtsumTest, ExitAsksAboutADateThatWasNotTaken) {
  OpenWithDays();
  driver->Tick("Summary");
  driver->Press("ok");
  driver->PickDate("termend", Day(2026, 11, 15));
  screen.ExpectBox(kNoOk, BoxAnswer::kNo);
  driver->Press("Exits");
  ExpectLastBox("Note to the Teacher", BoxButtons::kYesNo, BoxIcon::kNone);
  EXPECT_FALSE(portal.Unloaded());
  screen.ExpectBox(kNoOk, BoxAnswer::kYes);
  driver->Press("Exits");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumSummaries, 0);
}

TEST_F(FrmAtsumTest, AnotherStoresARangeAndBeginsAnew) {
  OpenWithDays();
  driver->Tick("Summary");
  driver->Press("ok");
  driver->Press("another");
  EXPECT_EQ(Current().NumSummaries, 1);
  EXPECT_EQ(portal.summkind, 0);
  EXPECT_TRUE(driver->Visible("message"));
  EXPECT_FALSE(driver->Enabled("another"));
  driver->Press("Exits");
  EXPECT_EQ(Current().NumSummaries, 1);
}

TEST_F(FrmAtsumTest, ARangeThatWasNeverCountedIsNotStored) {
  OpenWithDays();
  driver->Tick("Hand");
  driver->Type("Title", "Started");
  driver->Tick("Summary");
  driver->Press("Exits");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumSummaries, 0);
}

TEST_F(FrmAtsumTest, AStoredRangeFollowsTheDailyMarks) {
  OpenWithDays();
  driver->Tick("Summary");
  driver->Press("ok");
  driver->Press("Exits");
  LoadTermGrid();
  Grid2.SetMark(1, 1, 'A');
  StoreDailyMarks();
  EXPECT_EQ(Figures(1, 1), "1    |0| 0/ 0/ 0/ 0/");
}

}  // namespace
}  // namespace tallyroll
