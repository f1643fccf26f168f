// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/attendance/frmatset_test.h"

namespace tallyroll {
namespace {

TEST_F(FrmatsetTest, ShowsTheRangeAndWhatItWas) {
  SetRange({9, 2026}, {6, 2027});
  frmatset portal;
  Open(portal);
  EXPECT_EQ(portal.Caption, "Attendance Settings Portal");
  EXPECT_EQ(Start(), "September 2026");
  EXPECT_EQ(End(), "June 2027");
  EXPECT_EQ(driver->Text("startlabel"), "Original Starting Date is September 2026");
  EXPECT_EQ(driver->Text("endlabel"), "Original Ending Date is June 2027");
}

TEST_F(FrmatsetTest, StepsMonthByMonthAcrossYears) {
  SetRange({1, 2027}, {12, 2027});
  frmatset portal;
  Open(portal);
  StepStart(-1);
  StepEnd(1);
  EXPECT_EQ(Start(), "December 2026");
  EXPECT_EQ(End(), "January 2028");
  StepStart(1);
  StepEnd(-1);
  EXPECT_EQ(Start(), "January 2027");
  EXPECT_EQ(End(), "December 2027");
  EXPECT_EQ(driver->Text("startlabel"), "Original Starting Date is January 2027");
}

TEST_F(FrmatsetTest, CancelChangesNothing) {
  SetRange({9, 2026}, {6, 2027});
  Mark(1, Day(2026, 9, 1), "A");
  const std::string before = Bytes();
  frmatset portal;
  Open(portal);
  StepStart(2);
  StepEnd(-2);
  driver->Press("CancelButton");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(window.enablings, 0);
}

TEST_F(FrmatsetTest, AnEndBeforeTheStartIsRefusedAndTheOldRangeShown) {
  SetRange({9, 2026}, {6, 2027});
  const std::string before = Bytes();
  frmatset portal;
  Open(portal);
  StepStart(10);
  screen.ExpectBox("The start date must precede the end date");
  driver->Press("OKButton");
  ExpectLastBox("Note to the Teacher", BoxButtons::kOk, BoxIcon::kNone);
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Start(), "September 2026");
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmatsetTest, ARangeLongerThanAClassHoldsIsRefused) {
  SetRange({9, 2026}, {6, 2027});
  frmatset portal;
  Open(portal);
  StepEnd(12 * 90);
  screen.ExpectBox("A class holds no more than 32767 days of attendance");
  driver->Press("OKButton");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Current().NumDays, 303);
}

TEST_F(FrmatsetTest, TheFirstOkSetsTheRangeUp) {
  screen.now = Day(2026, 9, 14);
  frmatset portal;
  Open(portal);
  StepEnd(9);
  driver->Press("OKButton");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumDays, 303);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(At(1).DailyMarks.size(), 304u);
  EXPECT_EQ(Current().termstart, "9/1/2026");
  EXPECT_EQ(Current().termend, "7/1/2027");
}

TEST_F(FrmatsetTest, TheFirstRangeWithDatesThatBeginWithTheDayOrTheYear) {
  for (const auto& [order, start, end] :
       {std::tuple{DateOrder::kDayFirst, "01/09/2026", "01/10/2026"},
        std::tuple{DateOrder::kYearFirst, "2026/09/01", "2026/10/01"}}) {
    screen.date_order = order;
    screen.now = Day(2026, 9, 14);
    Current().NumDays = 0;
    Current().termstart.clear();
    Current().termend.clear();
    frmatset portal;
    Open(portal);
    driver->Press("OKButton");
    EXPECT_EQ(Current().NumDays, 30);
    EXPECT_EQ(Current().termstart, start);
    EXPECT_EQ(Current().termend, end);
  }
}

TEST_F(FrmatsetTest, AMoveKeepsTheEndOfTheTermAsItWasPutTogether) {
  SetRange({9, 2026}, {6, 2027});
  LoadTermGrid();
  frmatset portal;
  Open(portal);
  StepEnd(1);
  driver->Press("OKButton");
  EXPECT_EQ(Current().termstart, "9/1/2026");
  EXPECT_EQ(Current().termend, " 8/01/ 2027");
  EXPECT_EQ(window.enablings, 1);
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmatsetTest, ADecemberChosenInALaterYearEndsInTheYearOpenedWith) {
  SetRange({9, 2026}, {11, 2026});
  LoadTermGrid();
  frmatset portal;
  Open(portal);
  StepEnd(13);
  EXPECT_EQ(End(), "December 2027");
  driver->Press("OKButton");
  EXPECT_EQ(Current().AttendanceDays.back().date, Day(2026, 12, 31));
}

TEST_F(FrmatsetTest, LosingTheStartCanBeRefused) {
  SetRange({9, 2026}, {6, 2027});
  Mark(1, Day(2026, 9, 1), "A");
  const std::string before = Bytes();
  LoadTermGrid();
  frmatset portal;
  Open(portal);
  StepStart(1);
  screen.ExpectBox(kStartsLater, BoxAnswer::kCancel);
  driver->Press("OKButton");
  ExpectLastBox("Note to the teacher", BoxButtons::kOkCancel, BoxIcon::kExclamation);
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Start(), "September 2026");
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Grid2.Mark(1, 1), 'A');
}

TEST_F(FrmatsetTest, LosingTheEndCanBeRefused) {
  SetRange({9, 2026}, {6, 2027});
  const std::string before = Bytes();
  LoadTermGrid();
  frmatset portal;
  Open(portal);
  StepEnd(-1);
  screen.ExpectBox(kEndsEarlier, BoxAnswer::kCancel);
  driver->Press("OKButton");
  ExpectLastBox("Note to the teacher", BoxButtons::kOkCancel, BoxIcon::kExclamation);
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(End(), "June 2027");
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmatsetTest, ARefusedEndLeavesTheMarksWhereTheStartPutThem) {
  SetRange({9, 2026}, {6, 2027});
  Mark(1, Day(2027, 1, 1), "L");
  const std::string before = Bytes();
  LoadTermGrid();
  frmatset portal;
  Open(portal);
  StepStart(4);  // January: a later year, a lower month number
  StepEnd(-1);
  screen.ExpectBox(kStartsLater);
  screen.ExpectBox(kEndsEarlier, BoxAnswer::kCancel);
  driver->Press("OKButton");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Grid2.Mark(1, 1), 'L');
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmatsetTest, AStudentWithoutDailyMarksGetsThemWithTheNextRange) {
  SetRange({9, 2026}, {6, 2027});
  EnrolStudent("Li", "Bo", "2");  // as a text import adds one
  LoadTermGrid();
  frmatset portal;
  Open(portal);
  StepEnd(1);
  driver->Press("OKButton");
  EXPECT_EQ(At(2).DailyMarks.size(), 335u);
  EXPECT_EQ(Picture(2), "");
}

TEST_F(FrmatsetTest, AClassWithoutStudentsHasARangeToo) {
  Current().NumStudents = 0;
  ReDim(Current().Students, 0);
  SetRange({9, 2026}, {6, 2027});
  LoadTermGrid();
  frmatset portal;
  Open(portal);
  StepStart(1);
  screen.ExpectBox(kStartsLater);
  driver->Press("OKButton");
  EXPECT_EQ(Current().NumDays, 273);
}

}  // namespace
}  // namespace tallyroll
