// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/marks.h"

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/letters.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

class MarksTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetStore();
    SetDefaultLetterValues();
  }
  void TearDown() override { ResetStore(); }
  static std::string Value(std::string_view mark) { return PlainNumberText(GradeValue(mark)); }
};

TEST_F(MarksTest, EachLetterHasItsValue) {
  const char* const values[] = {"99", "95", "90", "88", "85", "80", "78",
                                "75", "70", "68", "65", "60", "55"};
  for (std::size_t k = 1; k <= 13; ++k) EXPECT_EQ(Value(Trim(LetterNames[k])), values[k - 1]);
}

TEST_F(MarksTest, TheStatusWordIsNoMarksValue) {
  Current().LetterValues[0] = Currency::FromWhole(343);
  Current().LetterValues[1] = Currency::FromWhole(98);
  EXPECT_EQ(Value("A+"), "98");
}

TEST_F(MarksTest, BlanksBehindALetterDoNotCountAndBlanksAheadDo) {
  EXPECT_EQ(Value("A- "), "90");
  EXPECT_EQ(Value("F   "), "55");
  EXPECT_EQ(Value(" A"), "0");
}

TEST_F(MarksTest, WhatOnlyLooksLikeALetterIsWorthNothing) {
  for (const char* mark : {"b+", "a", "E", "F+", "F-", "A*", "A++", "G", "B*", "AB"}) {
    EXPECT_EQ(Value(mark), "0") << mark;
  }
}

TEST_F(MarksTest, SpecialMarksAndEmptyOnesAreWorthNothing) {
  for (const char* mark : {"NEW", "ABS", "EXC", "CUT", "NON", "", "   "}) {
    EXPECT_EQ(Value(mark), "0") << mark;
  }
}

TEST_F(MarksTest, ANumberIsReadFromTheFront) {
  EXPECT_EQ(Value("85"), "85");
  EXPECT_EQ(Value("85*"), "85");
  EXPECT_EQ(Value("18.5"), "18.5");
  EXPECT_EQ(Value(".5"), "0.5");
  EXPECT_EQ(Value("7."), "7");
  EXPECT_EQ(Value("  9"), "9");
  EXPECT_EQ(Value("-3"), "-3");
  EXPECT_EQ(Value("+3"), "3");
  EXPECT_EQ(Value("5e1"), "50");
  EXPECT_EQ(Value("5 1"), "5");
  EXPECT_EQ(Value("1.2.3"), "1.2");
  EXPECT_EQ(Value("."), "0");
  EXPECT_EQ(Value("8,5"), "8");
}

TEST_F(MarksTest, ANumberHasFourDecimalsATieGoingToTheEvenDigit) {
  EXPECT_EQ(Value("1.00005"), "1");
  EXPECT_EQ(Value("1.00015"), "1.0002");
  EXPECT_EQ(Value("1.2345"), "1.2345");
  EXPECT_EQ(Value(".12345"), "0.1234");
}

TEST_F(MarksTest, ANumberBeyondCurrencyOverflows) {
  int number = 0;
  try {
    GradeValue("9e99");
  } catch (const RunTimeError& fault) {
    number = fault.number;
  }
  EXPECT_EQ(number, kErrorOverflow);
}

TEST_F(MarksTest, SpecialMarksAreToldByTheirExactText) {
  for (const char* mark : {"NEW", "ABS", "EXC"}) EXPECT_EQ(KindOfMark(mark), MarkKind::kLeftOut);
  for (const char* mark : {"CUT", "NON"}) EXPECT_EQ(KindOfMark(mark), MarkKind::kZero);
  for (const char* mark : {"new", "Abs", "EXC ", "NO", "CUTS", "85", ""}) {
    EXPECT_EQ(KindOfMark(mark), MarkKind::kGraded) << mark;
  }
}

TEST_F(MarksTest, AMarkThatIsMissingIsNew) {
  Student student;
  EXPECT_EQ(MarkOf(student, 1), "NEW");
  student.Marks = {"", "85"};
  EXPECT_EQ(MarkOf(student, 1), "85");
  EXPECT_EQ(MarkOf(student, 2), "NEW");
}

}  // namespace
}  // namespace tallyroll
