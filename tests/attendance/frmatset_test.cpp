// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/frmatset.h"

#include "tests/attendance/attendance_test.h"

namespace tallyroll {
namespace {

class FrmatsetTest : public AttendanceTest {
 protected:
  FrmatsetTest() { Enrol("Ng", "Ada", "1"); }

  // Presses a month button that often: forward when it is positive.
  void Step(const char* back, const char* forward, int months) {
    for (; months > 0; --months) driver->Press(forward);
    for (; months < 0; ++months) driver->Press(back);
  }
  void StepStart(int months) { Step("Command1", "Command2", months); }
  void StepEnd(int months) { Step("Command3", "Command4", months); }
  std::string Start() const { return driver->Text("startmonth") + " " + driver->Text("startyear"); }
  std::string End() const { return driver->Text("endmonth") + " " + driver->Text("endyear"); }
};

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

// ---- Every kind of move, as pictures of before and after ----

struct Move {
  const char* name;
  TermMonth first, last;
  std::vector<std::pair<CivilDate, const char*>> marks;
  int start, end;  // months that the buttons are pressed
  std::vector<std::string> questions;
  int days;
  const char* after;
  int moved, lost;  // marks under other dates, and gone
};

// September 2026 to June 2027, with marks at both edges of every month that a move touches.
const std::vector<std::pair<CivilDate, const char*>> kTerm = {{{2026, 9, 1}, "A"},
                                                              {{2026, 9, 30}, "C"},
                                                              {{2026, 10, 1}, "E"},
                                                              {{2027, 5, 31}, "S"},
                                                              {{2027, 6, 30}, "L"}};
// The same over two years.
const std::vector<std::pair<CivilDate, const char*>> kTwoYears = {
    {{2026, 9, 1}, "A"}, {{2027, 6, 30}, "L"}, {{2027, 9, 1}, "C"}, {{2028, 6, 30}, "S"}};

const Move kMoves[] = {
    {"start one month later",
     {9, 2026},
     {6, 2027},
     kTerm,
     1,
     0,
     {kStartsLater},
     273,
     "10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     2},
    {"start later, into the next year",
     {9, 2026},
     {6, 2027},
     kTerm,
     4,
     0,
     {kStartsLater},
     181,
     "5/31/2027 S, 6/30/2027 L",
     0,
     3},
    {"start one month earlier",
     {9, 2026},
     {6, 2027},
     kTerm,
     -1,
     0,
     {},
     334,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     0},
    {"start earlier, into the year before",
     {9, 2026},
     {6, 2027},
     kTerm,
     -9,
     0,
     {},
     577,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     0},
    {"start a year earlier: nobody asks, marks stay in place",
     {9, 2026},
     {6, 2027},
     kTerm,
     -12,
     0,
     {},
     668,
     "9/1/2025 A, 9/30/2025 C, 10/1/2025 E, 5/31/2026 S, 6/30/2026 L",
     5,
     0},
    {"start a year later: nobody asks, marks stay in place",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     12,
     0,
     {},
     304,
     "9/1/2027 A, 6/29/2028 L",
     2,
     2},
    {"start thirteen months later: nobody asks, marks stay in place",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     13,
     0,
     {},
     274,
     "10/1/2027 A",
     1,
     3},
    {"start thirteen months later and end earlier: the higher month takes that question along",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     13,
     -1,
     {},
     244,
     "10/1/2027 A",
     1,
     3},
    {"start thirteen months earlier: nobody asks, marks stay in place",
     {9, 2026},
     {6, 2027},
     kTerm,
     -13,
     0,
     {},
     699,
     "8/1/2025 A, 8/30/2025 C, 8/31/2025 E, 4/30/2026 S, 5/30/2026 L",
     5,
     0},
    {"start earlier and end a year earlier: nobody asks, and no mark is left",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     -1,
     -12,
     {},
     334,
     "",
     0,
     4},
    {"end one month earlier",
     {9, 2026},
     {6, 2027},
     kTerm,
     0,
     -1,
     {kEndsEarlier},
     273,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S",
     0,
     1},
    {"end earlier, into the year before",
     {9, 2026},
     {6, 2027},
     kTerm,
     0,
     -7,
     {kEndsEarlier},
     91,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E",
     0,
     2},
    {"end earlier, in a December",
     {9, 2026},
     {6, 2027},
     kTerm,
     0,
     -6,
     {kEndsEarlier},
     122,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E",
     0,
     2},
    {"end a year earlier: nobody asks",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     0,
     -12,
     {},
     303,
     "9/1/2026 A, 6/30/2027 L",
     0,
     2},
    {"end one month later",
     {9, 2026},
     {6, 2027},
     kTerm,
     0,
     1,
     {},
     334,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     0},
    {"end later, into the next year",
     {9, 2026},
     {6, 2027},
     kTerm,
     0,
     7,
     {},
     518,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     0},
    {"start later and end earlier: one question",
     {9, 2026},
     {6, 2027},
     kTerm,
     1,
     -1,
     {kStartsLater},
     243,
     "10/1/2026 E, 5/31/2027 S",
     0,
     3},
    {"start in a later year and end earlier: two questions",
     {9, 2026},
     {6, 2027},
     kTerm,
     4,
     -1,
     {kStartsLater, kEndsEarlier},
     151,
     "5/31/2027 S",
     0,
     4},
    {"start earlier and end earlier",
     {9, 2026},
     {6, 2027},
     kTerm,
     -1,
     -1,
     {kEndsEarlier},
     304,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S",
     0,
     1},
    {"start earlier and end later",
     {9, 2026},
     {6, 2027},
     kTerm,
     -1,
     1,
     {},
     365,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     0},
    {"start later and end later",
     {9, 2026},
     {6, 2027},
     kTerm,
     1,
     1,
     {kStartsLater},
     304,
     "10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     2},
    {"both a year later: nobody asks, marks stay in place",
     {9, 2026},
     {6, 2027},
     kTerm,
     12,
     12,
     {},
     304,
     "9/1/2027 A, 9/30/2027 C, 10/1/2027 E, 5/30/2028 S, 6/29/2028 L",
     5,
     0},
    {"behind the old end, where nothing of the old range is left",
     {9, 2026},
     {9, 2026},
     {{{2026, 9, 1}, "A"}, {{2026, 9, 30}, "C"}},
     3,
     3,
     {kStartsLater},
     31,
     "",
     0,
     2},
    {"behind the old end by less than its length: the last days come along",
     {9, 2026},
     {10, 2026},
     {{{2026, 9, 1}, "A"}, {{2026, 10, 1}, "E"}, {{2026, 10, 31}, "S"}},
     3,
     2,
     {kStartsLater},
     31,
     "12/30/2026 S",
     1,
     2},
};

class RangeMoveTest : public FrmatsetTest, public testing::WithParamInterface<Move> {
 protected:
  void Press() {
    LoadTermGrid();
    frmatset portal;
    Open(portal);
    StepStart(GetParam().start);
    StepEnd(GetParam().end);
    for (const std::string& question : GetParam().questions) screen.ExpectBox(question);
    driver->Press("OKButton");
    EXPECT_TRUE(portal.Unloaded());
    EXPECT_EQ(screen.boxes.size(), GetParam().questions.size());
    EXPECT_EQ(Current().NumDays, GetParam().days);
    EXPECT_EQ(Grid2.Days(), GetParam().days);
  }
};

TEST_P(RangeMoveTest, PutsTheMarksWhereThePictureHasThem) {
  const Move& move = GetParam();
  SetRange(move.first, move.last);
  for (const auto& [date, code] : move.marks) Mark(1, DateSerial(date), code);
  const int before = static_cast<int>(move.marks.size());
  Press();
  EXPECT_EQ(Grid2.MarksUnderOtherDates(), move.moved);
  EXPECT_EQ(before - Grid2.MarkCount(), move.lost);
  StoreDailyMarks();
  EXPECT_EQ(Picture(1), move.after);
}

TEST_P(RangeMoveTest, MovesNothingWithoutMarks) {
  SetRange(GetParam().first, GetParam().last);
  Press();
  StoreDailyMarks();
  EXPECT_EQ(Picture(1), "");
}

INSTANTIATE_TEST_SUITE_P(Moves, RangeMoveTest, testing::ValuesIn(kMoves),
                         [](const testing::TestParamInfo<Move>& move) {
                           std::string name(move.param.name);
                           std::erase_if(name, [](char c) { return !std::isalpha(c); });
                           return name;
                         });

TEST_F(FrmatsetTest, TheOldMonthsSetAgainBringTheMarksBackUnderTheirDates) {
  SetRange({9, 2026}, {6, 2027});
  for (const auto& [date, code] : kTerm) Mark(1, DateSerial(date), code);
  const std::string before = Picture(1);
  for (const int months : {12, -12}) {
    LoadTermGrid();
    frmatset portal;
    Open(portal);
    StepStart(months);
    StepEnd(months);
    driver->Press("OKButton");
    StoreDailyMarks();
  }
  EXPECT_EQ(Picture(1), before);
}

}  // namespace
}  // namespace tallyroll
