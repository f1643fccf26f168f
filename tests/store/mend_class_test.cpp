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

TEST(MendClassTest, TheTemporaryScaleExists) {
  for (const int scale : {0, 1, 4}) {
    Class c;
    c.RoundScale = static_cast<i16>(scale);
    MendClass(c, 100);
    EXPECT_EQ(c.RoundScale, scale);
  }
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

// A class of one student whose list of marks lacks so many. Each asks for 40 bytes: 8 of its own
// and 32 of a block.
Class ClassThatLacks(int marks, int has = 0) {
  Class c;
  c.NumInstruments = static_cast<i16>(marks + has - 1);
  ReDim(c.Instruments, c.NumInstruments);
  c.NumStudents = 1;
  ReDim(c.Students, 1);
  c.Students[1].Marks.resize(static_cast<std::size_t>(has));
  return c;
}

// 1,048,576 bytes are granted to every class: 26,214 marks are 1,048,560.
TEST(MendClassTest, PaddingMayUseUpWhatIsGranted) {
  Class c = ClassThatLacks(26214);
  EXPECT_EQ(MendClass(c, 0), 0);
  EXPECT_EQ(UpperBound(c.Students[1].Marks), c.NumInstruments);
  c = ClassThatLacks(26215);
  EXPECT_EQ(MendClass(c, 0), kErrorDevice);
  EXPECT_EQ(c.NumStudents, 0);
}

TEST(MendClassTest, WhatAListHoldsAlreadyAsksForNothing) {
  Class c = ClassThatLacks(26214, 1000);
  EXPECT_EQ(MendClass(c, 0), 0);
  c = ClassThatLacks(26215, 1000);
  EXPECT_EQ(MendClass(c, 0), kErrorDevice);
}

// Each byte of the file grants 16 more: 4 of them make the 1,048,640 of 26,216 marks to the byte.
TEST(MendClassTest, PaddingMayTakeTheVeryLastByte) {
  Class c = ClassThatLacks(26216);
  EXPECT_EQ(MendClass(c, 3), kErrorDevice);
  c = ClassThatLacks(26216);
  EXPECT_EQ(MendClass(c, 4), 0);
  c = ClassThatLacks(26217);
  EXPECT_EQ(MendClass(c, 4), kErrorDevice);
}

// 65,536 bytes of a file double the grant to 2,097,152: 52,428 marks of two students.
TEST(MendClassTest, PaddingIsGrantedOnceForAllStudents) {
  for (const int lacking : {20428, 20429}) {
    Class c = ClassThatLacks(32000);
    c.NumStudents = 2;
    ReDimPreserve(c.Students, 2);
    c.Students[2].Marks.resize(static_cast<std::size_t>(32000 - lacking));
    const bool fits = lacking == 20428;
    EXPECT_EQ(MendClass(c, 65536), fits ? 0 : kErrorDevice);
    EXPECT_EQ(c.NumStudents, fits ? 2 : 1) << "who is whole stays";
    EXPECT_EQ(UpperBound(c.Students), c.NumStudents);
  }
}

TEST(MendClassTest, WholeListsOfManyStudentsAskForNothing) {
  Class c;
  c.NumInstruments = 1;
  ReDim(c.Instruments, 1);
  c.NumStudents = 30000;
  ReDim(c.Students, 30000);
  for (Student& s : c.Students) s.Marks.resize(2);
  EXPECT_EQ(MendClass(c, 0), 0);
  EXPECT_EQ(c.NumStudents, 30000);
}

}  // namespace
}  // namespace tallyroll
