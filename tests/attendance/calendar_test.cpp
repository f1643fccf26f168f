// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/calendar.h"

#include "store/program_state.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

class CalendarTest : public PortalTest {
 protected:
  // Ten days from 1 September 2026 (serial 46266), and one student marked "ALCESN L A".
  CalendarTest() {
    Class& c = Current();
    c.NumDays = 10;
    ReDim(c.AttendanceDays, 10);
    for (int j = 1; j <= 10; ++j) c.AttendanceDays[static_cast<std::size_t>(j)].date = 46265 + j;
    c.NumStudents = 1;
    ReDim(c.Students, 1);
    const std::string_view marks = " ALCESN L A";
    for (const char mark : marks) c.Students[1].DailyMarks.emplace_back(std::string_view(&mark, 1));
    c.NumSummaries = 1;
    ReDim(c.Summaries, 1);
    ReDim(c.Students[1].SummaryAbsent, 1, FixedText<5>("old"));
    ReDim(c.Students[1].SummaryLate, 1, ShortText("old"));
    ReDim(c.Students[1].SummaryDetail, 1, ShortText("old"));
  }
  // Absences, lates and details of the range.
  std::string Count(const std::string& start, const std::string& end, i16 kind = 2) {
    AttendanceSummary& summary = Current().Summaries[1];
    summary.kind = kind;
    summary.startdate = start;
    summary.enddate = end;
    RecalculateRangeSummaries();
    const Student& s = Current().Students[1];
    return std::string(s.SummaryAbsent[1].view()) + "|" + s.SummaryLate[1].str() + "|" +
           s.SummaryDetail[1].str();
  }
};

TEST_F(CalendarTest, TheFirstOfAMonthInEachOrder) {
  EXPECT_EQ(FirstOfMonthDate(9, 2026), " 9/01/ 2026");
  EXPECT_EQ(FirstOfMonthDate(12, 2026), " 12/01/ 2026");
  screen.date_order = DateOrder::kDayFirst;
  EXPECT_EQ(FirstOfMonthDate(9, 2026), "01/ 9/ 2026");
  screen.date_order = DateOrder::kYearFirst;
  EXPECT_EQ(FirstOfMonthDate(9, 2026), " 2026/ 9/01");
}

TEST_F(CalendarTest, ItsTextIsReadBackAsTheSameDay) {
  for (const DateOrder order :
       {DateOrder::kMonthFirst, DateOrder::kDayFirst, DateOrder::kYearFirst}) {
    screen.date_order = order;
    EXPECT_EQ(DateFromText(FirstOfMonthDate(9, 2026), order), 46266);
  }
}

TEST_F(CalendarTest, EachCodeCountsUnderItselfAlone) {
  EXPECT_EQ(Count("9/1/2026", "9/10/2026"), "2    |2| 1/ 1/ 1/ 1/");
}

TEST_F(CalendarTest, BothEndsBelongToTheRange) {
  EXPECT_EQ(Count("9/2/2026", "9/4/2026"), "0    |1| 1/ 1/ 0/ 0/");
  EXPECT_EQ(Count(" 9/1/2026 ", " 9/1/2026 "), "1    |0| 0/ 0/ 0/ 0/");
}

TEST_F(CalendarTest, ADateOutsideWidensTheRange) {
  EXPECT_EQ(Count("9/8/2026", "12/31/2026"), "1    |1| 0/ 0/ 0/ 0/");
  EXPECT_EQ(Count("1/1/2026", "9/1/2026"), "1    |0| 0/ 0/ 0/ 0/");
  EXPECT_EQ(Count("", "no date"), "2    |2| 1/ 1/ 1/ 1/");
}

TEST_F(CalendarTest, AnEndBeforeTheStartCountsNothing) {
  EXPECT_EQ(Count("9/5/2026", "9/1/2026"), "0    |0| 0/ 0/ 0/ 0/");
}

TEST_F(CalendarTest, OtherKindsAreLeftAlone) {
  EXPECT_EQ(Count("9/1/2026", "9/10/2026", 1), "old  |old|old");
}

TEST_F(CalendarTest, LowerCaseAndOtherCharactersCountNowhere) {
  Current().Students[1].DailyMarks.assign(11, FixedText<1>("a"));
  EXPECT_EQ(Count("9/1/2026", "9/10/2026"), "0    |0| 0/ 0/ 0/ 0/");
}

TEST_F(CalendarTest, TenTakesThreeCharacters) {
  Current().Students[1].DailyMarks.assign(11, FixedText<1>("C"));
  EXPECT_EQ(Count("9/1/2026", "9/10/2026"), "0    |0| 10/ 0/ 0/ 0/");
}

TEST_F(CalendarTest, AStudentWithoutPlacesForFiguresGetsThem) {
  Current().Students[1].SummaryAbsent.clear();
  Current().Students[1].SummaryLate.clear();
  Current().Students[1].SummaryDetail.clear();
  EXPECT_EQ(Count("9/2/2026", "9/4/2026"), "0    |1| 1/ 1/ 0/ 0/");
}

TEST_F(CalendarTest, PeriodsThatOverlapAreCountedEachForItself) {
  Class& c = Current();
  c.NumSummaries = 2;
  ReDimPreserve(c.Summaries, 2);
  c.Summaries[2] = {"", "", 2, 0, "9/4/2026", "9/10/2026"};
  EXPECT_EQ(Count("9/1/2026", "9/4/2026"), "1    |1| 1/ 1/ 0/ 0/");
  const Student& s = c.Students[1];
  EXPECT_EQ(s.SummaryAbsent[2].view(), "1    ");
  EXPECT_EQ(s.SummaryLate[2], "1");
  EXPECT_EQ(s.SummaryDetail[2], " 0/ 1/ 1/ 1/");
}

TEST_F(CalendarTest, AStudentWithoutDailyMarksHasNone) {
  Current().Students[1].DailyMarks.clear();
  EXPECT_EQ(Count("9/1/2026", "9/10/2026"), "0    |0| 0/ 0/ 0/ 0/");
}

}  // namespace
}  // namespace tallyroll
