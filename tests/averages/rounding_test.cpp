// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/rounding.h"

#include <gtest/gtest.h>

#include <limits>

#include "averages/average_lines.h"
#include "base/run_time_error.h"
#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

class RoundingTest : public AverageTest {
 protected:
  void SetUp() override {
    AverageTest::SetUp();
    Put(0, {{"Q", 10, "8", "100"}});
    Current().RoundMode = 0;
  }

  // The final grade of an average.
  std::string GradeOf(const char* average) {
    ExactAverage = Money(average);
    FinalGrade grade;
    EXPECT_EQ(RoundedGrade(grade).number, 0);
    return grade.Text();
  }
  static std::string Mark() { return Current().Students[1].Marks[0].str(); }
  static void SkipRounding() {
    Current().RoundMode = 1;
    UseLetterValuesAsScale();
  }
};

TEST_F(RoundingTest, EachLegendHas16Characters) {
  for (const std::string_view label : FinalLabels) EXPECT_EQ(label.size(), 16u) << label;
}

TEST_F(RoundingTest, AHalfHundredthGoesUp) {
  EXPECT_EQ(GradeOf("89.995"), " 90 (A-/EX/4.0)     ");
  EXPECT_EQ(ExactAverage, Money("90"));
  EXPECT_EQ(Mark(), "90");
  GradeOf("89.9949");
  EXPECT_EQ(ExactAverage, Money("89.99"));
  GradeOf("-0.005");
  // Half up, not away from zero.
  EXPECT_EQ(ExactAverage, Money("0"));
  GradeOf("-0.0051");
  EXPECT_EQ(ExactAverage, Money("-0.01"));
}

TEST_F(RoundingTest, EachRowOfTheDefaultScaleBeginsAtItsMinimum) {
  const char* const minimums[] = {"99.5", "97",   "92.5", "89",   "86.5", "82.5", "78.5",
                                  "76.5", "72.5", "68.5", "66.5", "62.5", "58.5"};
  for (std::size_t k = 0; k < 13; ++k) {
    GradeOf(minimums[k]);
    EXPECT_EQ(Mark(), PlainNumberText(FinalValues[k])) << minimums[k];
    GradeOf(PlainNumberText(Money(minimums[k]) - Money("0.01")).c_str());
    EXPECT_EQ(Mark(), PlainNumberText(FinalValues[k + 1])) << "below " << minimums[k];
  }
}

TEST_F(RoundingTest, TheTopOfTheScale) {
  EXPECT_EQ(GradeOf("99.49"), " 99 (A+/EX/4.0)     ");
  EXPECT_EQ(GradeOf("99.50"), " 100 (A+/EX/4.0)     ");
}

TEST_F(RoundingTest, BelowTheLastMinimumIsAnF) {
  EXPECT_EQ(GradeOf("58.49"), " 55 (F/UNSAT/0.0)   ");
}

TEST_F(RoundingTest, FortyAndBelowAsksNoScale) {
  for (const bool skip : {false, true}) {
    if (skip) SkipRounding();
    EXPECT_EQ(GradeOf("40"), " 40 (F/UNSAT/ABS)  ");
    EXPECT_EQ(Mark(), " 40");
    EXPECT_EQ(GradeOf("39.5"), " 40 (F/UNSAT/ABS)  ");
    EXPECT_EQ(GradeOf("0"), " 0 (F/UNSAT/ABS)  ");
    EXPECT_EQ(GradeOf("-12.5"), "-12 (F/UNSAT/ABS)  ");
    EXPECT_EQ(Mark(), "-12");
    EXPECT_EQ(GradeOf("40.004"), " 40 (F/UNSAT/ABS)  ");
  }
}

TEST_F(RoundingTest, JustAboveFortyGoesThroughTheScale) {
  EXPECT_EQ(GradeOf("40.01"), " 55 (F/UNSAT/0.0)   ");
  SkipRounding();
  EXPECT_EQ(GradeOf("40.01"), " 40 (F/UNSAT/0.0)   ");
  EXPECT_EQ(Mark(), "40");
}

TEST_F(RoundingTest, SkipRoundingGivesTheNearestWholeNumber) {
  SkipRounding();
  EXPECT_EQ(GradeOf("94.5"), " 95 (A/EX/4.0)      ");
  EXPECT_EQ(Mark(), "95");
  EXPECT_EQ(GradeOf("94.49"), " 94 (A-/EX/4.0)     ");
  EXPECT_EQ(GradeOf("59.4"), " 59 (F/UNSAT/0.0)   ");
  EXPECT_EQ(GradeOf("60"), " 60 (D-/N/1.0)      ");
  EXPECT_EQ(GradeOf("100"), " 100 (A+/EX/4.0)     ");
}

TEST_F(RoundingTest, EveryHalfGoesUpUnderSkipRounding) {
  SkipRounding();
  GradeOf("84.5");
  EXPECT_EQ(Mark(), "85");
  GradeOf("85.5");
  EXPECT_EQ(Mark(), "86");
}

TEST_F(RoundingTest, TheValueOfFIsNoMinimum) {
  Current().LetterValues[13] = Money("59");
  SkipRounding();
  EXPECT_EQ(GradeOf("50"), " 50 (F/UNSAT/0.0)   ");
}

TEST_F(RoundingTest, AMinimumOf101PassesARowBy) {
  Current().RoundTable[0][4] = 101;
  EXPECT_EQ(GradeOf("88"), " 85 (B/SAT/3.0)     ");
  // Extra credit can lift an average past it, but the first row that is reached wins.
  Current().RoundTable[0][0] = Current().RoundTable[0][1] = 200;
  Current().RoundTable[0][2] = Current().RoundTable[0][3] = 200;
  EXPECT_EQ(GradeOf("105"), " 88 (B+/SAT/3.5)    ");
}

TEST_F(RoundingTest, TheFirstRowThatIsReachedWins) {
  Current().RoundTable[0][1] = 50;
  EXPECT_EQ(GradeOf("60"), " 99 (A+/EX/4.0)     ");
}

TEST_F(RoundingTest, AMinimumOfZeroIsReachedByEveryAverage) {
  Current().RoundTable[0][0] = 0;
  EXPECT_EQ(GradeOf("41"), " 100 (A+/EX/4.0)     ");
}

// The Single next to 92.3 is 92.3000030517578125: compared as it is, 92.3 would not reach it.
TEST_F(RoundingTest, AMinimumWithDecimalsIsReachedAtItsOwnFigure) {
  for (const char* minimum : {"92.3", "92.6", "78.1", "66.7"}) {
    Current().RoundTable[0][0] = static_cast<float>(Money(minimum).ToDouble());
    EXPECT_EQ(GradeOf(minimum), " 100 (A+/EX/4.0)     ") << minimum;
  }
}

TEST_F(RoundingTest, TheScaleInForceIsAsked) {
  Current().RoundTable[2].fill(101);
  Current().RoundTable[2][6] = 70;
  Current().RoundScale = 2;
  EXPECT_EQ(GradeOf("71"), " 80 (B-/SAT/3.0)    ");
  EXPECT_EQ(GradeOf("69.99"), " 55 (F/UNSAT/0.0)   ");
}

TEST_F(RoundingTest, AModeNotYetChosenRounds) {
  Current().RoundMode = 2;
  EXPECT_EQ(GradeOf("94.5"), " 95 (A/EX/4.0)      ");
  EXPECT_EQ(GradeOf("90"), " 90 (A-/EX/4.0)     ");
  EXPECT_EQ(GradeOf("91"), " 90 (A-/EX/4.0)     ");
}

TEST_F(RoundingTest, TheFormOfTheFinalGradeChangesNothing) {
  for (const bool skip : {false, true}) {
    if (skip) SkipRounding();
    for (const i16 form : {i16{3}, i16{0}}) {
      Current().FinalGradeForm = form;
      EXPECT_EQ(GradeOf("91"), skip ? " 91 (A-/EX/4.0)     " : " 90 (A-/EX/4.0)     ") << form;
      EXPECT_EQ(Mark(), skip ? "91" : "90") << form;
    }
  }
}

TEST_F(RoundingTest, AnAverageAbove327IsNoOverflow) {
  SkipRounding();
  EXPECT_EQ(GradeOf("327.68"), " 328 (A+/EX/4.0)     ");
  EXPECT_EQ(GradeOf("32767.49"), " 32767 (A+/EX/4.0)     ");
}

TEST_F(RoundingTest, AnAverageBeyond16BitsChangesNothing) {
  Current().Students[1].Marks[0] = "90";
  for (const char* average : {"32767.5", "-32769", "900000000000000"}) {
    ExactAverage = Money(average);
    FinalGrade grade;
    const AverageError error = RoundedGrade(grade);
    EXPECT_EQ(error.number, kErrorOverflow);
    EXPECT_EQ(error.student, 1);
    EXPECT_EQ(ExactAverage, Money(average));
    EXPECT_EQ(Mark(), "90");
  }
}

TEST_F(RoundingTest, MarksNeverDimensionedStaySo) {
  Current().Students[1].Marks.clear();
  EXPECT_EQ(GradeOf("90"), " 90 (A-/EX/4.0)     ");
  EXPECT_TRUE(Current().Students[1].Marks.empty());
}

TEST_F(RoundingTest, WithoutAStudentThereIsNoGrade) {
  CurrentStudent = 0;
  FinalGrade grade;
  EXPECT_EQ(RoundedGrade(grade).number, kErrorSubscript);
}

TEST_F(RoundingTest, DamagedScalesDoNoHarm) {
  Current().RoundScale = 9;
  EXPECT_EQ(GradeOf("90"), " 90 (A-/EX/4.0)     ");
  Current().RoundScale = 0;
  Current().RoundTable[0][0] = std::numeric_limits<float>::quiet_NaN();
  Current().RoundTable[0][1] = std::numeric_limits<float>::infinity();
  Current().RoundTable[0][2] = -std::numeric_limits<float>::infinity();
  EXPECT_EQ(GradeOf("99"), " 95 (A/EX/4.0)      ");
}

class AverageStudentTest : public AverageTest {
 protected:
  StudentAverage student;
};

TEST_F(AverageStudentTest, HoldsAllFiguresOfAStudent) {
  Put(2, {{"Q", 30, "25"}});
  EXPECT_FALSE(AverageStudent(student));
  EXPECT_EQ(student.points, (Points{Money("25"), Money("30")}));
  EXPECT_EQ(student.totals.counts[kQuiz], 1);
  EXPECT_EQ(student.computed, Money("83.3333"));
  EXPECT_EQ(student.exact, Money("83.33"));
  EXPECT_EQ(ExactAverage, Money("83.33"));
  EXPECT_EQ(student.grade.Text(), " 85 (B/SAT/3.0)     ");
}

// 400 points of one are 40000 percent: an average, but no final grade.
TEST_F(AverageStudentTest, AnErrorOfTheFinalGradeChangesNothing) {
  Current().AverageFlag2 = kTrue;
  Weigh(kQuiz, "100");
  for (i16 method = 0; method <= 3; ++method) {
    Put(method, {{"Q", 1, "400", "100"}});
    Current().Students[1].Marks[0] = "90";
    ASSERT_EQ(Average(), "40000") << method;
    Current().TypeWeights.fill(Currency());
    DropLowestOf(kTest);
    const auto flags = Current().TypeWeights;
    ExactAverage = Money("77");
    const AverageError error = AverageStudent(student);
    EXPECT_EQ(error.number, kErrorOverflow) << method;
    EXPECT_EQ(error.student, 1);
    EXPECT_EQ(error.grade, 0);
    EXPECT_EQ(ExactAverage, Money("77")) << method;
    EXPECT_EQ(Current().TypeWeights, flags) << method;
    EXPECT_EQ(Current().Students[1].Marks[0], "90");
    EXPECT_EQ(student.totals, TypeTotals());
    EXPECT_EQ(student.points, Points());
  }
}

class AverageLinesTest : public AverageTest {
 protected:
  LineWriter Writer() {
    return [this](std::string_view line) { text += std::string(line) + "\n"; };
  }
  std::string text;
};

TEST_F(AverageLinesTest, TheWeightMethodsTakeTheAverageAsItStands) {
  Put(0, {{"Q", 10, "8", "100"}});
  ExactAverage = Money("91.256");
  EXPECT_FALSE(WriteAverageLines(Writer()));
  EXPECT_EQ(text, "\nAVERAGE IS: 91.26\nROUNDED AVERAGE/GRADE:  90 (A-/EX/4.0)     \n");
}

TEST_F(AverageLinesTest, ThePointMethodsComputeTheirPoints) {
  Put(2, {{"Q", 30, "25.5"}});
  EXPECT_FALSE(PrintAverageLines(Writer()));
  EXPECT_EQ(text,
            "TOTAL POINTS: 25.50/30  AVERAGE = 85\nROUNDED AVERAGE/GRADE:  85 (B/SAT/3.0)     \n");
}

TEST_F(AverageLinesTest, PointsHaveTwoDecimals) {
  Put(2, {{"Q", 30, "0.055"}});
  EXPECT_FALSE(PrintAverageLines(Writer()));
  EXPECT_EQ(text.substr(0, 22), "TOTAL POINTS: 0.06/30 ");
  text.clear();
  Put(2, {{"Q", 30, "-0.5"}});
  EXPECT_FALSE(PrintAverageLines(Writer()));
  EXPECT_EQ(text.substr(0, 23), "TOTAL POINTS: -0.50/30 ");
}

TEST_F(AverageLinesTest, TheLastFormComputesByEveryMethod) {
  Weigh(kQuiz, "100");
  for (const i16 method : {i16{0}, i16{1}}) {
    text.clear();
    Put(method, {{"Q", 10, "9", "100"}});
    EXPECT_FALSE(PrintAverageAndCompute(Writer(), totals));
    EXPECT_EQ(text, "AVERAGE IS: 90\nROUNDED AVERAGE/GRADE:  90 (A-/EX/4.0)     \n");
    EXPECT_EQ(totals.counts[kQuiz], 1);
  }
  for (const i16 method : {i16{2}, i16{3}}) {
    text.clear();
    Put(method, {{"Q", 10, "9"}});
    EXPECT_FALSE(PrintAverageAndCompute(Writer(), totals));
    EXPECT_EQ(text,
              "TOTAL POINTS: 9.00/10  AVERAGE = 90\nROUNDED AVERAGE/GRADE:  90 (A-/EX/4.0)     \n");
  }
}

TEST_F(AverageLinesTest, AfterAnErrorThereAreNoLines) {
  Put(0, {{"Q", 0, "8", "100"}});
  EXPECT_TRUE(PrintAverageAndCompute(Writer(), totals));
  Put(0, {{"Q", 1, "400", "100"}});
  EXPECT_TRUE(PrintAverageAndCompute(Writer(), totals));
  EXPECT_EQ(totals, TypeTotals());
  EXPECT_EQ(text, "");
}

}  // namespace
}  // namespace tallyroll
