// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/check_class.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/random_class.h"

namespace tallyroll {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Class Plain(int students) {
  Class c;
  c.Magic = "ty8";
  c.NumStudents = static_cast<i16>(students);
  ReDim(c.Students, students);
  return c;
}

TEST(CheckClassTest, RandomClassesKeepTheInvariants) {
  std::mt19937 random(1);
  for (int round = 0; round < 200; ++round) {
    EXPECT_THAT(BrokenInvariants(RandomClass(random)), IsEmpty());
  }
}

TEST(CheckClassTest, NamesTheListAndTheCount) {
  Class c = Plain(3);
  c.NumInstruments = 5;
  ReDim(c.Instruments, 5);
  for (int i : {1, 2}) ReDim(c.Students[static_cast<std::size_t>(i)].Marks, 5);
  ReDim(c.Students[3].Marks, 4);
  EXPECT_THAT(BrokenInvariants(c),
              ElementsAre("Students[3].Marks has 4 items, NumInstruments is 5"));
}

TEST(CheckClassTest, EveryListOfAStudentIsHeldAgainstItsCount) {
  Class c = Plain(1);
  Student& s = c.Students[1];
  ReDim(s.Marks, 1);
  ReDim(s.DailyMarks, 1);
  ReDim(s.SeatRow, 2);
  ReDim(s.SeatColumn, 2);
  EXPECT_THAT(BrokenInvariants(c),
              ElementsAre("Students[1].Marks has 1 items, NumInstruments is 0",
                          "Students[1].DailyMarks has 1 items, NumDays is 0",
                          "Students[1].SeatRow has 2 items, NumCharts is 0",
                          "Students[1].SeatColumn has 2 items, NumCharts is 0"));
}

TEST(CheckClassTest, AStudentHasAPlaceForEverySummaryAndMayHaveMore) {
  Class c = Plain(2);
  c.NumSummaries = 1;
  ReDim(c.Summaries, 1);
  for (Student& s : c.Students) {
    ReDim(s.SummaryAbsent, 2);
    ReDim(s.SummaryDetail, 2);
    ReDim(s.SummaryLate, 2);
  }
  EXPECT_THAT(BrokenInvariants(c), ElementsAre());
  c.Students[2].SummaryAbsent.clear();
  c.Students[2].SummaryDetail.clear();
  c.Students[2].SummaryLate.clear();
  EXPECT_THAT(BrokenInvariants(c),
              ElementsAre("Students[2].SummaryAbsent has 0 items, NumSummaries is 1",
                          "Students[2].SummaryDetail has 0 items, NumSummaries is 1",
                          "Students[2].SummaryLate has 0 items, NumSummaries is 1"));
}

TEST(CheckClassTest, DailyMarksNeverDimensionedAreNoFault) {
  Class c = Plain(1);
  c.NumDays = 2;
  ReDim(c.AttendanceDays, 2);
  EXPECT_THAT(BrokenInvariants(c), IsEmpty());
  ReDim(c.Students[1].DailyMarks, 0);
  EXPECT_THAT(BrokenInvariants(c), ElementsAre("Students[1].DailyMarks has 0 items, NumDays is 2"));
}

TEST(CheckClassTest, OneSeatWithoutAChartIsNoFault) {
  Class c = Plain(1);
  ReDim(c.Students[1].SeatRow, 1);
  ReDim(c.Students[1].SeatColumn, 1);
  EXPECT_THAT(BrokenInvariants(c), IsEmpty());
}

TEST(CheckClassTest, TopLevelListsAndCounts) {
  Class c = Plain(0);
  c.NumStudents = 2;
  c.NumInstruments = -1;
  c.NumCharts = 1;
  EXPECT_THAT(BrokenInvariants(c),
              ElementsAre("ChartRows has 0 items, NumCharts is 1",
                          "ChartColumns has 0 items, NumCharts is 1", "NumInstruments is -1",
                          "Students has 0 items, NumStudents is 2"));
}

TEST(CheckClassTest, AtMostTwentySummaries) {
  Class c = Plain(0);
  c.NumSummaries = 20;
  ReDim(c.Summaries, 20);
  EXPECT_THAT(BrokenInvariants(c), IsEmpty());
  c.NumSummaries = 21;
  ReDim(c.Summaries, 21);
  EXPECT_THAT(BrokenInvariants(c), ElementsAre("NumSummaries is 21, at most 20 are allowed"));
}

TEST(CheckClassTest, AnUnknownMagic) {
  Class c = Plain(0);
  c.Magic = "ty9";
  EXPECT_THAT(BrokenInvariants(c), ElementsAre("Magic is \"ty9\", known are ty8, ty7 and ty5"));
  c.Magic = "ty5";
  EXPECT_THAT(BrokenInvariants(c), IsEmpty());
}

TEST(CheckClassTest, TextsThatNoFileCanHold) {
  Class c = Plain(1);
  c.room = std::string(65536, 'x');
  c.Categories[0] = c.Categories[2] = c.room;
  c.Students[1].comments = c.room;
  c.Students[1].ReservedFields[4] = c.room;
  const std::string much = " has 65536 characters, at most 65535 fit into a class file";
  EXPECT_THAT(BrokenInvariants(c),
              ElementsAre("room" + much, "Categories[0]" + much, "Categories[2]" + much,
                          "Students[1].comments" + much, "Students[1].ReservedFields[4]" + much));
}

}  // namespace
}  // namespace tallyroll
