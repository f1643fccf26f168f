// SPDX-License-Identifier: GPL-3.0-or-later
// What the menu of the Daily Attendance Portal leads to.
#include "tests/attendance/frmAtt_test.h"

namespace tallyroll {
namespace {

// ---- Print and Att Summary ----

TEST_F(FrmAttTest, PrintPrintsTheMonthShown) {
  OpenPortal();
  driver->Press("Command2");
  driver->Press("mnuPrint");
  EXPECT_EQ(months_printed, 1);
  EXPECT_EQ(month_printed, Day(2026, 10, 1));
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmAttTest, WhatWasStoredForAPrintStaysAfterCancel) {
  OpenPortal();
  Type(1, 1, "A");
  driver->Press("mnuPrint");
  EXPECT_EQ(Picture(1), "9/1/2026 A");
  driver->Press("mnucancel");
  EXPECT_TRUE(portal->Unloaded());
  EXPECT_EQ(Picture(1), "9/1/2026 A");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmAttTest, ASummaryIsMadeOfWhatWasEntered) {
  OpenPortal();
  Type(1, 1, "A");
  screen.ExpectPortal("frmAtsum", [](PortalDriver& work) {
    EXPECT_EQ(Picture(1), "9/1/2026 A");
    work.Press("cancel");
  });
  driver->Press("munatt");
  driver->Press("mnucancel");
  EXPECT_TRUE(portal->Unloaded());
}

TEST_F(FrmAttTest, ASummaryWithoutAnEntryStoresNothing) {
  OpenPortal();
  screen.ExpectPortal("frmAtsum", [](PortalDriver& work) { work.Press("cancel"); });
  driver->Press("munatt");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmAttTest, TwentySummariesAreTheMost) {
  for (int k = 1; k <= 20; ++k) AddPeriod("T", "C", 1);
  OpenPortal();
  screen.ExpectBox(kTwenty);
  driver->Press("munatt");
  ExpectLastBox("Note to the Teacher", BoxButtons::kOk, BoxIcon::kNone);
}

TEST_F(FrmAttTest, TheTwentiethSummaryCanBeMade) {
  for (int k = 1; k <= 19; ++k) AddPeriod("T", "C", 1);
  OpenPortal();
  screen.ExpectPortal("frmAtsum", [](PortalDriver& work) { work.Press("cancel"); });
  driver->Press("munatt");
  EXPECT_TRUE(screen.boxes.empty());
}

// ---- Date Setting ----

// Steps the months of the settings and presses OK.
auto Settings(int start, int end) {
  return [=](PortalDriver& work) {
    for (int i = 0; i < std::abs(start); ++i) work.Press(start > 0 ? "Command2" : "Command1");
    for (int i = 0; i < std::abs(end); ++i) work.Press(end > 0 ? "Command4" : "Command3");
    work.Press("OKButton");
  };
}

// From the Portal: the first month goes, after the question.
class DateSettingTest : public FrmAttTest {
 protected:
  void GiveUpTheFirstMonth() {
    screen.ExpectPortal("frmatset", Settings(1, 0));
    screen.ExpectBox(kStartsLater);
    driver->Press("mnudate");
  }
};

TEST_F(DateSettingTest, DateSettingMovesWhatWasEnteredAlong) {
  OpenPortal();
  Type(1, 1, "A");
  screen.ExpectPortal("frmatset", Settings(-1, 0));
  driver->Press("mnudate");
  // September lies above June: the last month comes up.
  EXPECT_EQ(Shown(), "June 2027");
  EXPECT_EQ(driver->Text("status"), "");
  driver->Press("mnuExit");
  EXPECT_EQ(Picture(1), "9/1/2026 A");
  EXPECT_EQ(Current().NumDays, 334);
}

TEST_F(DateSettingTest, ADateSettingWithinAYearStaysInItsMonth) {
  SetRange({1, 2027}, {6, 2027});
  screen.now = Day(2027, 3, 1);
  Mark(1, Day(2027, 3, 31), "A");
  OpenPortal();
  GiveUpTheFirstMonth();
  EXPECT_EQ(Shown(), "March 2027");
  EXPECT_EQ(Cell(1, 32), "A");
  EXPECT_EQ(portal->portalchanged, 0);
}

TEST_F(DateSettingTest, AMonthThatLeftTheRangeGivesWayToTheLastOneWhichIsAChange) {
  SetRange({1, 2027}, {6, 2027});
  screen.now = Day(2027, 6, 1);
  OpenPortal();
  screen.ExpectPortal("frmatset", Settings(0, -1));
  screen.ExpectBox(kEndsEarlier);
  driver->Press("mnudate");
  EXPECT_EQ(Shown(), "May 2027");
  EXPECT_EQ(portal->portalchanged, 1);
}

TEST_F(DateSettingTest, AYearThatLeftTheRangeGivesWayToTheLastMonthToo) {
  SetRange({1, 2027}, {6, 2027});
  screen.now = Day(2027, 3, 1);
  OpenPortal();
  screen.ExpectPortal("frmatset", Settings(12, 12));
  driver->Press("mnudate");
  EXPECT_EQ(Shown(), "June 2028");
}

TEST_F(DateSettingTest, MarksThatComeUnderOtherDatesAreTold) {
  Mark(1, Day(2026, 9, 1), "A");
  Mark(2, Day(2026, 10, 1), "L");
  OpenPortal();
  screen.ExpectPortal("frmatset", Settings(12, 12));
  driver->Press("mnudate");
  EXPECT_EQ(driver->Text("status"), "Marks that now stand under other dates: 2.");
  screen.ExpectPortal("frmatset", [](PortalDriver& work) { work.Press("CancelButton"); });
  driver->Press("mnudate");
  EXPECT_EQ(driver->Text("status"), "");
}

TEST_F(DateSettingTest, MarksThatFellOutOfTheRangeAreTold) {
  SetRange({9, 2026}, {6, 2028});
  Mark(1, Day(2028, 6, 1), "A");
  OpenPortal();
  screen.ExpectPortal("frmatset", Settings(0, -12));
  driver->Press("mnudate");
  EXPECT_EQ(driver->Text("status"), "Marks that fell out of the range: 1.");
}

TEST_F(DateSettingTest, MovedMarksThatExitWouldNotStoreAreTold) {
  SetRange({1, 2027}, {6, 2027});
  screen.now = Day(2027, 3, 1);
  Mark(1, Day(2027, 3, 31), "A");
  OpenPortal();
  GiveUpTheFirstMonth();
  EXPECT_EQ(driver->Text("status"),
            "Marks that keep their dates only if one is entered before Exit: 1.");
  driver->Press("mnuExit");
  // Index 90 of a range that begins a month later.
  EXPECT_EQ(Picture(1), "5/1/2027 A");
}

TEST_F(DateSettingTest, TheyAreToldAgainUntilTheyAreStored) {
  SetRange({1, 2027}, {6, 2027});
  screen.now = Day(2027, 3, 1);
  Mark(1, Day(2027, 3, 31), "A");
  OpenPortal();
  GiveUpTheFirstMonth();
  screen.ExpectPortal("frmatset", [](PortalDriver& work) { work.Press("CancelButton"); });
  driver->Press("mnudate");
  EXPECT_EQ(driver->Text("status"),
            "Marks that keep their dates only if one is entered before Exit: 1.");
  Type(2, 1, "L");
  driver->Press("mnuPrint");
  screen.ExpectPortal("frmatset", [](PortalDriver& work) { work.Press("CancelButton"); });
  driver->Press("mnudate");
  EXPECT_EQ(driver->Text("status"), "");
  EXPECT_EQ(Picture(1), "3/31/2027 A");
}

TEST_F(DateSettingTest, MarksThatLookAlikeAreToldAsWell) {
  SetRange({1, 2027}, {6, 2027});
  screen.now = Day(2027, 3, 1);
  for (double day = Day(2027, 1, 1); day <= Day(2027, 6, 30); ++day) Mark(1, day, "A");
  OpenPortal();
  GiveUpTheFirstMonth();
  EXPECT_EQ(driver->Text("status"),
            "Marks that fell out of the range: 31.  "
            "Marks that keep their dates only if one is entered before Exit: 150.");
}

TEST_F(DateSettingTest, AnEndThatTheClassLostOnTheWayThereAndBackIsTold) {
  SetRange({1, 2027}, {6, 2027});
  screen.now = Day(2027, 3, 1);
  Mark(1, Day(2027, 3, 31), "A");
  Mark(1, Day(2027, 6, 30), "L");
  OpenPortal();
  GiveUpTheFirstMonth();
  screen.ExpectPortal("frmatset", Settings(-1, 0));
  driver->Press("mnudate");
  EXPECT_EQ(driver->Text("status"),
            "Marks that keep their dates only if one is entered before Exit: 1.");
  driver->Press("mnuExit");
  EXPECT_EQ(Picture(1), "3/31/2027 A");
}

TEST_F(DateSettingTest, AfterASecondQuestionWasCancelledNoMarkWaitsForExit) {
  SetRange({9, 2026}, {11, 2027});
  screen.now = Day(2026, 10, 15);
  Mark(1, Day(2026, 9, 1), "A");
  Mark(1, Day(2027, 1, 1), "L");
  const std::string before = Bytes();
  OpenPortal();
  screen.ExpectPortal("frmatset", [](PortalDriver& work) {
    Settings(4, -1)(work);
    work.Press("CancelButton");
  });
  screen.ExpectBox(kStartsLater);
  screen.ExpectBox(kEndsEarlier, BoxAnswer::kCancel);
  driver->Press("mnudate");
  EXPECT_EQ(Shown(), "October 2026");
  EXPECT_EQ(driver->Text("status"),
            "Marks that now stand under other dates: 1.  Marks that fell out of the range: 1.");
  driver->Press("mnuExit");
  EXPECT_EQ(Bytes(), before);
}

TEST_F(DateSettingTest, MarksThatACancelledQuestionMovedAreStoredWithTheNextEntry) {
  SetRange({9, 2026}, {11, 2027});
  screen.now = Day(2026, 10, 15);
  Mark(1, Day(2027, 1, 1), "L");
  OpenPortal();
  screen.ExpectPortal("frmatset", [](PortalDriver& work) {
    Settings(4, -1)(work);
    work.Press("CancelButton");
  });
  screen.ExpectBox(kStartsLater);
  screen.ExpectBox(kEndsEarlier, BoxAnswer::kCancel);
  driver->Press("mnudate");
  Type(2, 1, "E");
  driver->Press("mnuExit");
  EXPECT_EQ(Picture(1), "9/1/2026 L");
  EXPECT_EQ(Picture(2), "10/1/2026 E");
}

TEST_F(DateSettingTest, CancelKeepsACalendarThatWasChanged) {
  Mark(1, Day(2026, 9, 1), "A");
  OpenPortal();
  screen.ExpectPortal("frmatset", Settings(0, 1));
  driver->Press("mnudate");
  screen.ExpectBox(kSureToCancel, BoxAnswer::kYes);
  driver->Press("mnucancel");
  EXPECT_EQ(Current().NumDays, 334);
  EXPECT_EQ(Picture(1), "9/1/2026 A");
}

}  // namespace
}  // namespace tallyroll
