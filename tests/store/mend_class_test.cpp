// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/mend_class.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "store/check_class.h"

namespace tallyroll {
namespace {

Class ClassWithOneStudent() {
  Class c;
  c.Magic = "ty8";
  c.NumStudents = 1;
  ReDim(c.Students, 1);
  c.NumInstruments = 2;
  ReDim(c.Instruments, 2);
  c.NumSummaries = 1;
  ReDim(c.Summaries, 1);
  c.NumDays = 2;
  ReDim(c.AttendanceDays, 2);
  c.NumCharts = 1;
  c.ChartRows = c.ChartColumns = {0, 5};
  return c;
}

TEST(MendClassTest, ShortListsGetTheValuesOfANewStudent) {
  Class c = ClassWithOneStudent();
  Student& s = c.Students[1];
  s.Marks = {"A", "90"};
  s.DailyMarks = {" ", "A"};
  EXPECT_EQ(MendClass(c, 100), 0);
  EXPECT_EQ(s.Marks, (List<ShortText>{"A", "90", "NEW"}));
  EXPECT_EQ(s.SummaryAbsent, (List<FixedText<5>>{"", "0"}));
  EXPECT_EQ(s.SummaryLate, (List<ShortText>{"", "0"}));
  EXPECT_EQ(s.SummaryDetail, (List<ShortText>{"", " 0/ 0/ 0/ 0/"}));
  EXPECT_EQ(s.SeatRow, (List<i16>{0, -1}));
  EXPECT_EQ(s.SeatColumn, (List<i16>{0, -1}));
  EXPECT_EQ(s.DailyMarks, (List<FixedText<1>>{" ", "A", " "}));
  EXPECT_EQ(BrokenInvariants(c), std::vector<std::string>());
}

TEST(MendClassTest, DailyMarksNeverDimensionedStaySo) {
  Class c = ClassWithOneStudent();
  MendClass(c, 100);
  EXPECT_TRUE(c.Students[1].DailyMarks.empty());
}

TEST(MendClassTest, LongerListsStay) {
  Class c = ClassWithOneStudent();
  c.Students[1].Marks = {"", "1", "2", "3"};
  MendClass(c, 100);
  EXPECT_EQ(c.Students[1].Marks.size(), 4u);
}

TEST(MendClassTest, ListsStayNeverDimensionedWhereTheCountIsNothing) {
  Class c;
  c.NumStudents = 1;
  ReDim(c.Students, 1);
  MendClass(c, 100);
  EXPECT_TRUE(c.Students[1].Marks.empty());
  EXPECT_TRUE(c.Students[1].SeatRow.empty());
}

TEST(MendClassTest, ChartsWithoutASizeDoNotCount) {
  Class c = ClassWithOneStudent();
  c.NumCharts = 3;
  c.ChartRows = {0, 5, 5};
  MendClass(c, 100);
  EXPECT_EQ(c.NumCharts, 1);
}

TEST(MendClassTest, AScaleThatDoesNotExistBecomesTheFirst) {
  for (const int scale : {-1, 5, 32767, -32768}) {
    Class c;
    c.RoundScale = static_cast<i16>(scale);
    MendClass(c, 100);
    EXPECT_EQ(c.RoundScale, 0) << scale;
  }
  Class c;
  c.RoundScale = 3;
  MendClass(c, 100);
  EXPECT_EQ(c.RoundScale, 3);
}

TEST(MendClassTest, NegativeWidthsBecomeNothing) {
  Class c;
  c.LastNameWidth = -3;
  c.FirstNameWidth = -32768;
  MendClass(c, 100);
  EXPECT_EQ(c.LastNameWidth, 0);
  EXPECT_EQ(c.FirstNameWidth, 0);
}

// 30,000 students without marks under 30,000 grades ask for 7 gigabytes; their file has 4 million
// bytes.
TEST(MendClassTest, PaddingEndsAtAMultipleOfTheFile) {
  Class c;
  c.NumStudents = 30000;
  ReDim(c.Students, 30000);
  c.NumInstruments = 30000;
  ReDim(c.Instruments, 30000);
  EXPECT_EQ(MendClass(c, 4'000'000), kErrorDevice);
  EXPECT_LT(c.NumStudents, 60);
  EXPECT_EQ(c.Students.size(), static_cast<std::size_t>(c.NumStudents) + 1);
  for (int i = 1; i <= c.NumStudents; ++i) {
    EXPECT_EQ(UpperBound(c.Students[static_cast<std::size_t>(i)].Marks), 30000);
  }
}

}  // namespace
}  // namespace tallyroll
