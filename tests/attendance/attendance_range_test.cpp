// SPDX-License-Identifier: GPL-3.0-or-later
// The attendance range by itself: which days it has, and how marks keep their dates.
#include "attendance/attendance_range.h"

#include <random>

#include "attendance/calendar.h"
#include "tests/attendance/attendance_test.h"

namespace tallyroll {
namespace {

class AttendanceRangeTest : public AttendanceTest {
 protected:
  static int DaysOf(TermMonth start, TermMonth end, int opened) {
    const auto dates = DatesOf({start, end, opened});
    return dates ? dates->Days() : -1;
  }
  // Every question is answered with OK.
  static void MoveRangeTo(TermMonth start, TermMonth end) {
    RangeChoice choice = ChoiceOfClass();
    choice.start = start;
    choice.end = end;
    const auto dates = DatesOf(choice);
    ASSERT_TRUE(dates.has_value());
    LoadTermGrid();
    const RangeMove move = MoveTo(*dates);
    if (StartsLater(choice, move)) MoveMarksToLaterStart(move);
    if (StartsEarlier(choice, move)) MoveMarksToEarlierStart(move);
    AdoptRange(*dates);
    StoreDailyMarks();
  }
  static TermMonth Months(TermMonth month, int by) {
    for (; by > 0; --by) month = Stepped(month, 1);
    for (; by < 0; ++by) month = Stepped(month, -1);
    return month;
  }
};

TEST_F(AttendanceRangeTest, SeptemberToJuneHasEveryDayOfTenMonths) {
  EXPECT_EQ(DaysOf({9, 2026}, {6, 2027}, 2027), 303);
}

TEST_F(AttendanceRangeTest, AFebruary29IsOneDayMore) {
  EXPECT_EQ(DaysOf({9, 2027}, {6, 2028}, 2028), 304);
}

TEST_F(AttendanceRangeTest, TheSameDaysInEveryDateOrder) {
  for (const DateOrder order :
       {DateOrder::kMonthFirst, DateOrder::kDayFirst, DateOrder::kYearFirst}) {
    screen.date_order = order;
    EXPECT_EQ(DaysOf({9, 2026}, {6, 2027}, 2027), 303);
    EXPECT_EQ(DaysOf({10, 2026}, {12, 2026}, 2026), 92);
  }
}

TEST_F(AttendanceRangeTest, OneMonthIsARange) {
  EXPECT_EQ(DaysOf({9, 2026}, {9, 2026}, 2026), 30);
  EXPECT_EQ(DaysOf({2, 2028}, {2, 2028}, 2028), 29);
}

TEST_F(AttendanceRangeTest, AnEndBeforeTheStartIsNone) {
  EXPECT_EQ(DaysOf({9, 2026}, {8, 2026}, 2026), -1);
  EXPECT_EQ(DaysOf({9, 2026}, {6, 2026}, 2026), -1);
}

TEST_F(AttendanceRangeTest, ADecemberEndOfTheYearOpenedWithIsItsLastDay) {
  EXPECT_EQ(DatesOf({{9, 2026}, {12, 2026}, 2026})->end_next, Day(2027, 1, 1));
}

TEST_F(AttendanceRangeTest, ADecemberEndOfALaterYearStaysInTheYearOpenedWith) {
  EXPECT_EQ(DatesOf({{9, 2026}, {12, 2027}, 2026})->end_next, Day(2027, 1, 1));
}

TEST_F(AttendanceRangeTest, ADecemberEndOfAnEarlierYearComesBeforeTheYearOpenedWith) {
  EXPECT_EQ(DatesOf({{9, 2026}, {12, 2026}, 2027})->end_next, Day(2027, 1, 1));
  EXPECT_EQ(DatesOf({{9, 2025}, {12, 2025}, 2027})->end_next, Day(2027, 1, 1));
}

TEST_F(AttendanceRangeTest, AYearThatNoDateHasIsRefused) {
  EXPECT_EQ(DaysOf({9, 2026}, {6, 10000}, 10000), -1);
}

TEST_F(AttendanceRangeTest, TheChoiceBeginsWithTheStoredRange) {
  SetRange({9, 2026}, {6, 2027});
  Current().termstart = "1/1/2020";
  const RangeChoice choice = ChoiceOfClass();
  EXPECT_EQ(choice.start, (TermMonth{9, 2026}));
  EXPECT_EQ(choice.end, (TermMonth{6, 2027}));
  EXPECT_EQ(choice.openedendyear, 2027);
}

TEST_F(AttendanceRangeTest, WithoutARangeItBeginsWithTheTerm) {
  Current().termstart = " 9/01/ 2026";
  Current().termend = "7/1/2027";
  const RangeChoice choice = ChoiceOfClass();
  EXPECT_EQ(choice.start, (TermMonth{9, 2026}));
  EXPECT_EQ(choice.end, (TermMonth{7, 2027}));
  EXPECT_EQ(choice.openedendyear, 2027);
}

TEST_F(AttendanceRangeTest, WithoutATermItBeginsWithToday) {
  screen.now = Day(2026, 11, 21) + 0.75;
  Current().termend = "some day";
  EXPECT_EQ(ChoiceOfClass().start, (TermMonth{11, 2026}));
  EXPECT_EQ(ChoiceOfClass().end, (TermMonth{11, 2026}));
}

TEST_F(AttendanceRangeTest, SteppingGoesFromYearToYear) {
  EXPECT_EQ(Stepped({1, 2026}, -1), (TermMonth{12, 2025}));
  EXPECT_EQ(Stepped({12, 2026}, 1), (TermMonth{1, 2027}));
  EXPECT_EQ(Stepped({6, 2026}, 1), (TermMonth{7, 2026}));
}

TEST_F(AttendanceRangeTest, ANewRangeHasItsDatesAndNoMarks) {
  Enrol("Ng", "Ada", "1");
  SetRange({9, 2026}, {6, 2027});
  const Class& c = Current();
  EXPECT_EQ(c.NumDays, 303);
  ASSERT_EQ(c.AttendanceDays.size(), 304u);
  EXPECT_EQ(c.AttendanceDays[1].date, Day(2026, 9, 1));
  EXPECT_EQ(c.AttendanceDays[303].date, Day(2027, 6, 30));
  EXPECT_EQ(c.AttendanceDays[1].dayflag, " ");
  EXPECT_EQ(At(1).DailyMarks.size(), 304u);
  EXPECT_EQ(Picture(1), "");
  EXPECT_EQ(c.termstart, "9/1/2026");
  EXPECT_EQ(c.termend, "7/1/2027");
}

TEST_F(AttendanceRangeTest, NotesOfDaysStayWithTheirPlaceWhenDatesMove) {
  SetRange({9, 2026}, {6, 2027});
  Current().AttendanceDays[1].daynote = "first";
  Current().AttendanceDays[1].dayflag = "x";
  MoveRangeTo({8, 2026}, {6, 2027});
  EXPECT_EQ(Current().AttendanceDays[1].date, Day(2026, 8, 1));
  EXPECT_EQ(Current().AttendanceDays[1].daynote, "first");
  EXPECT_EQ(Current().AttendanceDays[1].dayflag, "x");
}

// A start up to eleven months earlier and an end up to eleven months later.
class RangeProperty : public AttendanceRangeTest, public testing::WithParamInterface<unsigned> {
 protected:
  RangeProperty() : random_(GetParam()) {
    start_ = Months({1, 2024}, Pick(0, 60));
    end_ = Months(start_, Pick(0, 15));
    for (int i = 0; i < 4; ++i) EnrolStudent("Student", std::string(1, "ABCD"[i]), "1");
    SetRange(start_, end_);
    for (int i = 1; i <= 4; ++i)
      for (std::size_t j = 1; j < At(i).DailyMarks.size(); ++j)
        At(i).DailyMarks[j] =
            std::string_view(" ACESNL").substr(static_cast<std::size_t>(Pick(0, 6)), 1);
    MoveRangeTo(start_, end_);  // the texts of its ends as a move writes them
  }
  int Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

  std::mt19937 random_;
  TermMonth start_, end_;
};

TEST_P(RangeProperty, AMoveThatOnlyExtendsKeepsEachMarkUnderItsDate) {
  std::vector<std::string> before;
  for (int i = 1; i <= 4; ++i) before.push_back(Picture(i));
  MoveRangeTo(Months(start_, -Pick(0, 11)), Months(end_, Pick(0, 11)));
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(Picture(i), before[static_cast<std::size_t>(i) - 1]);
}

TEST_P(RangeProperty, ExtendedAndCutBackItIsTheSameToTheByte) {
  const std::string before = Bytes();
  MoveRangeTo(Months(start_, -Pick(0, 11)), Months(end_, Pick(0, 11)));
  MoveRangeTo(start_, end_);
  EXPECT_EQ(Bytes(), before);
}

TEST_P(RangeProperty, TheDaysFollowOneAnotherWithoutAGap) {
  MoveRangeTo(Months(start_, Pick(-11, 0)), Months(end_, Pick(0, 11)));
  const Class& c = Current();
  ASSERT_EQ(c.AttendanceDays.size(), static_cast<std::size_t>(c.NumDays) + 1);
  for (std::size_t j = 2; j < c.AttendanceDays.size(); ++j)
    ASSERT_EQ(c.AttendanceDays[j].date, c.AttendanceDays[j - 1].date + 1);
  for (int i = 1; i <= 4; ++i)
    EXPECT_EQ(At(i).DailyMarks.size(), static_cast<std::size_t>(c.NumDays) + 1);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RangeProperty, testing::Range(1u, 41u));

}  // namespace
}  // namespace tallyroll
