// SPDX-License-Identifier: GPL-3.0-or-later
// Method 1, "Assign Weights by Type".
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

class AverageByTypesTest : public AverageTest {
 protected:
  void SetUp() override {
    AverageTest::SetUp();
    Weigh(kQuiz, "50");
    Weigh(kTest, "50");
  }
};

TEST_F(AverageByTypesTest, ATypeWithoutAGradeLeavesItsWeightToTheOthers) {
  Put(1, {{"Q", 10, "9"}, {"Q", 10, "5"}});
  // 14 of 20 at 50 are 35, of the 50 that are left.
  EXPECT_EQ(Average(), "70");
  EXPECT_EQ(Sum(kTest), "-1");
}

TEST_F(AverageByTypesTest, WithoutRedistributionATypeWithoutAGradeIsAZero) {
  Current().AverageFlag3 = kTrue;
  Put(1, {{"Q", 10, "9"}, {"Q", 10, "5"}, {"T", 100, "ABS"}});
  EXPECT_EQ(Average(), "35");
}

TEST_F(AverageByTypesTest, WithoutRedistributionATypeThatTheClassLacksIsAZeroToo) {
  Current().AverageFlag3 = kTrue;
  Put(1, {{"Q", 10, "9"}, {"Q", 10, "5"}});
  EXPECT_EQ(Average(), "35");
}

TEST_F(AverageByTypesTest, AGradeOfNoTypeIsNeverComputed) {
  Put(1, {{"ZZ", 0, "5"}, {"Q", 10, "9"}, {"Q", 10, "5"}, {"ZZ", 10, "1e30"}, {"ZZ", 0, "CUT"}});
  EXPECT_EQ(Average(), "70");
  EXPECT_EQ(totals.counts[kQuiz], 2);
}

TEST_F(AverageByTypesTest, WithinATypeAGradeCountsByItsPoints) {
  Put(1, {{"Q", 50, "50"}, {"Q", 25, "10"}, {"T", 100, "60"}});
  // 60 of 75 are 0.8: 40 and 30.
  EXPECT_EQ(Average(), "70");
  EXPECT_EQ(Sum(kQuiz), "60");
  EXPECT_EQ(Max(kQuiz), "75");
  EXPECT_EQ(totals.counts[kQuiz], 2);
}

TEST_F(AverageByTypesTest, AZeroMarkCountsInItsType) {
  for (const char* mark : {"CUT", "NON"}) {
    Put(1, {{"Q", 10, "10"}, {"Q", 10, mark}, {"T", 100, "60"}});
    EXPECT_EQ(Average(), "55") << mark;
  }
}

TEST_F(AverageByTypesTest, LeftOutMarksAreNotCounted) {
  for (const char* mark : {"NEW", "ABS", "EXC"}) {
    Put(1, {{"Q", 10, "10"}, {"Q", 10, mark}, {"T", 100, "60"}});
    EXPECT_EQ(Average(), "80") << mark;
    EXPECT_EQ(totals.counts[kQuiz], 1);
  }
}

TEST_F(AverageByTypesTest, WithTheOnlyGradeOfATypeDroppedItsWeightLeaves) {
  DropLowestOf(kQuiz);
  Put(1, {{"Q", 10, "3", "0", "Y"}, {"T", 100, "60"}});
  EXPECT_EQ(Average(), "60");
  EXPECT_EQ(totals.counts[kQuiz], 0);
  EXPECT_EQ(Sum(kQuiz), "-1");
}

TEST_F(AverageByTypesTest, WithNoGradesAtAllTheAverageIsNothing) {
  Put(1, {{"Q", 10, "ABS"}, {"T", 100, "NEW"}});
  EXPECT_EQ(Average(), "0");
}

TEST_F(AverageByTypesTest, ExtraCreditSurvivesARegularAverageOfZero) {
  Weigh(kExtra, "10");
  Put(1, {{"Q", 10, "ABS"}, {"X", 10, "5"}});
  EXPECT_EQ(Average(), "5");
}

TEST_F(AverageByTypesTest, ExtraCreditIsAddedAfterTheDivision) {
  Weigh(kExtra, "10");
  Put(1, {{"Q", 10, "8"}, {"X", 20, "5"}, {"X", 20, "15"}});
  // 40 of 50 are 80; 20 of 40 at 10 are 5 on top.
  EXPECT_EQ(Average(), "85");
}

TEST_F(AverageByTypesTest, MissingExtraCreditTakesNothingFromTheDivisor) {
  Weigh(kExtra, "10");
  Put(1, {{"Q", 10, "8"}, {"T", 10, "8"}});
  EXPECT_EQ(Average(), "80");
}

TEST_F(AverageByTypesTest, ATypeOfWeightZeroAddsNothing) {
  Put(1, {{"Q", 10, "8"}, {"T", 10, "8"}, {"E", 10, "1"}});
  EXPECT_EQ(Average(), "80");
  EXPECT_EQ(totals.counts[kEssay], 1);
}

TEST_F(AverageByTypesTest, AFractionalWeightIsRoundedTypeByType) {
  Weigh(kQuiz, "66.5");
  Weigh(kTest, "16.5");
  Weigh(kEssay, "17");
  Put(1, {{"E", 10, "10"}, {"Q", 10, "ABS"}, {"T", 10, "ABS"}});
  // 100 - 66.5 = 33.5 is a tie: 34. 34 - 16.5 = 17.5 is a tie: 18. 17 of 18.
  EXPECT_EQ(Average(), "94.4444");
}

TEST_F(AverageByTypesTest, TheLowestOfAFlaggedTypeIsDropped) {
  DropLowestOf(kQuiz);
  Put(1, {{"Q", 10, "9", "0", "Y"}, {"Q", 20, "5", "0", "Y"}, {"T", 100, "60", "0", "Y"}});
  EXPECT_EQ(Average(), "75");
  EXPECT_EQ(Sum(kQuiz), "9");
  EXPECT_EQ(Max(kQuiz), "10");
}

TEST_F(AverageByTypesTest, OfTwoEqualPercentsTheEarlierGradeGoes) {
  DropLowestOf(kQuiz);
  Put(1, {{"Q", 10, "7", "0", "Y"}, {"Q", 20, "14", "0", "Y"}});
  EXPECT_EQ(Average(), "70");
  EXPECT_EQ(Max(kQuiz), "20");
}

TEST_F(AverageByTypesTest, AZeroMarkIsNeverDropped) {
  DropLowestOf(kQuiz);
  Put(1, {{"Q", 10, "CUT", "0", "Y"}, {"Q", 10, "9", "0", "Y"}, {"Q", 10, "10", "0", "Y"}});
  // The 9 goes: 10 of 20 at 50, of the 50 that are left.
  EXPECT_EQ(Average(), "50");
}

TEST_F(AverageByTypesTest, ALeftOutMarkStandsAsLowestOnlyWhenAskedTo) {
  DropLowestOf(kQuiz);
  Current().AverageFlag4 = kTrue;
  Current().AverageFlag1 = kTrue;
  const std::vector<SheetLine> lines = {
      {"Q", 10, "5", "0", "Y"}, {"Q", 10, "ABS", "0", "Y"}, {"Q", 10, "9", "0", "Y"}};
  Put(1, lines);
  EXPECT_EQ(Average(), "70");
  Current().AverageFlag1 = kFalse;
  Put(1, lines);
  EXPECT_EQ(Average(), "90");
}

TEST_F(AverageByTypesTest, ALeftOutMarkThatMayNotBeDroppedNeverStandsAsLowest) {
  DropLowestOf(kQuiz);
  Current().AverageFlag4 = kTrue;
  for (const i16 flag : {kTrue, kFalse}) {
    Current().AverageFlag1 = flag;
    Put(1, {{"Q", 10, "5", "0", "Y"}, {"Q", 10, "ABS", "0", "N"}, {"Q", 10, "9", "0", "Y"}});
    EXPECT_EQ(Average(), "90") << flag;
  }
}

TEST_F(AverageByTypesTest, ALeftOutMarkThatMayNotBeDroppedIsNoSingleLowest) {
  Current().AverageFlag2 = kTrue;
  for (const i16 flag : {kTrue, kFalse}) {
    Current().AverageFlag1 = flag;
    Put(1, {{"Q", 10, "5", "0", "Y"},
            {"Q", 10, "9", "0", "Y"},
            {"T", 100, "ABS", "0", "N"},
            {"T", 100, "90", "0", "Y"}});
    // The quiz of 50% goes: 9 of 10 and 90 of 100.
    EXPECT_EQ(Average(), "90") << flag;
  }
}

TEST_F(AverageByTypesTest, ALeftOutExtraCreditNeverStandsAsLowest) {
  DropLowestOf(kExtra);
  Weigh(kExtra, "10");
  Current().AverageFlag4 = Current().AverageFlag1 = kTrue;
  Put(1, {{"Q", 10, "8"}, {"X", 10, "ABS", "0", "Y"}, {"X", 10, "5", "0", "Y"}});
  // The 5 is the lowest extra credit and goes.
  EXPECT_EQ(Average(), "80");
  EXPECT_EQ(totals.counts[kExtra], 0);
}

TEST_F(AverageByTypesTest, ASingleLowestGradeIsDroppedInAll) {
  Current().AverageFlag2 = kTrue;
  Put(1, {{"Q", 10, "5", "0", "Y"},
          {"Q", 10, "9", "0", "Y"},
          {"T", 100, "40", "0", "Y"},
          {"T", 100, "90", "0", "Y"}});
  // The test of 40% goes: 14 of 20 at 50 are 35, 90 of 100 at 50 are 45.
  EXPECT_EQ(Average(), "80");
  EXPECT_EQ(totals.counts[kQuiz], 2);
  EXPECT_EQ(totals.counts[kTest], 1);
}

TEST_F(AverageByTypesTest, ATieOfSingleLowestGradesGoesToTheEarlierType) {
  Current().AverageFlag2 = kTrue;
  Put(1, {{"T", 100, "50", "0", "Y"},
          {"T", 100, "90", "0", "Y"},
          {"Q", 10, "5", "0", "Y"},
          {"Q", 10, "9", "0", "Y"}});
  EXPECT_EQ(Average(), "80");
  EXPECT_EQ(totals.counts[kQuiz], 1);
  EXPECT_EQ(totals.counts[kTest], 2);
}

TEST_F(AverageByTypesTest, ExtraCreditIsNeverTheSingleLowest) {
  Current().AverageFlag2 = kTrue;
  Weigh(kExtra, "10");
  DropLowestOf(kExtra);  // as a file may say
  Put(1, {{"Q", 10, "8", "0", "Y"}, {"Q", 10, "9", "0", "Y"}, {"X", 10, "1", "0", "Y"}});
  for (const char* again : {"first", "second"}) {
    // The 8 goes: 90, and a tenth of 10 on top.
    EXPECT_EQ(Average(), "91") << again;
    EXPECT_EQ(Current().TypeWeights[kExtra], Money("1"));
  }
}

TEST_F(AverageByTypesTest, ALeftOutMarkAsSingleLowestDropsNoGrade) {
  Current().AverageFlag1 = Current().AverageFlag2 = kTrue;
  Put(1, {{"Q", 10, "5", "0", "Y"}, {"T", 100, "EXC", "0", "Y"}, {"T", 100, "90", "0", "Y"}});
  EXPECT_EQ(Average(), "70");
}

TEST_F(AverageByTypesTest, AThousandPercentIsNeverDropped) {
  DropLowestOf(kQuiz);
  Put(1, {{"Q", 10, "100", "0", "Y"}});
  EXPECT_EQ(Average(), "1000");
}

TEST_F(AverageByTypesTest, ANegativeGradeIsDroppedDownToFifty) {
  DropLowestOf(kQuiz);
  Put(1, {{"Q", 10, "-49", "0", "Y"}, {"Q", 10, "9", "0", "Y"}});
  EXPECT_EQ(Average(), "90");
  Put(1, {{"Q", 100, "-50", "0", "Y"}, {"Q", 100, "90", "0", "Y"}});
  // A value of -50 is the sign of a left-out mark: nothing is dropped, 40 of 200.
  EXPECT_EQ(Average(), "20");
}

TEST_F(AverageByTypesTest, ASumOfExactlyMinusOneIsATypeWithoutAGrade) {
  Put(1, {{"Q", 10, "-1"}, {"T", 10, "8"}});
  EXPECT_EQ(Average(), "80");
}

TEST_F(AverageByTypesTest, ADivisorOfNothingLeavesTheAverageUndivided) {
  Weigh(kQuiz, "20");
  Weigh(kTest, "100");
  Put(1, {{"Q", 10, "5"}});
  // 100 - 100 = 0 to divide by: half of 20 stays as it is.
  EXPECT_EQ(Average(), "10");
}

TEST_F(AverageByTypesTest, AMaximumOfZeroIsAnErrorEvenForAZeroMark) {
  Put(1, {{"Q", 10, "8"}, {"Q", 10, "8"}, {"Q", 0, "CUT"}});
  const AverageError error = AverageByTypes(totals);
  EXPECT_EQ(error.number, kErrorDivisionByZero);
  EXPECT_EQ(error.grade, 3);
}

TEST_F(AverageByTypesTest, MaximumsThatSumToNothingAreAnErrorOfTheWhole) {
  Put(1, {{"Q", 10, "8"}, {"Q", -10, "8"}});
  const AverageError error = AverageByTypes(totals);
  EXPECT_EQ(error.number, kErrorDivisionByZero);
  EXPECT_EQ(error.grade, 0);
}

TEST_F(AverageByTypesTest, ADivisorBeyond16BitsIsAnError) {
  Weigh(kTest, "40000");
  Put(1, {{"Q", 10, "8"}});
  EXPECT_EQ(AverageByTypes(totals).number, kErrorOverflow);
}

TEST_F(AverageByTypesTest, WorkedExampleOfAPlainTerm) {
  Weigh(kHomework, "10");
  Weigh(kQuiz, "30");
  Weigh(kTest, "60");
  Put(1, {{"HW", 5, "5"},
          {"HW", 5, "4"},
          {"HW", 5, "3"},
          {"HW", 10, "10"},
          {"Q", 20, "15"},
          {"Q", 20, "18"},
          {"Q", 10, "9"},
          {"T", 100, "87"},
          {"T", 100, "91"},
          {"T", 50, "40"}});
  // Homework 22 of 25 = 0.88 at 10: 8.8. Quizzes 42 of 50 = 0.84 at 30: 25.2. Tests 218 of 250 =
  // 0.872 at 60: 52.32. Together 86.32 of 100.
  EXPECT_EQ(Average(), "86.32");
}

TEST_F(AverageByTypesTest, WorkedExampleWithLettersSpecialMarksAndExtraCredit) {
  Weigh(kHomework, "15");
  Weigh(kQuiz, "25");
  Weigh(kTest, "40");
  Weigh(kEssay, "20");
  Weigh(kExtra, "5");
  Put(1, {{"HW", 10, "CUT"},
          {"HW", 10, "8"},
          {"HW", 10, "NEW"},
          {"Q", 100, "B+"},
          {"Q", 100, "A-"},
          {"Q", 20, "ABS"},
          {"T", 100, "76"},
          {"T", 100, "NON"},
          {"T", 100, "95.5"},
          {"E", 50, "EXC"},
          {"X", 10, "7"}});
  // Homework 8 of 20 at 15: 6. Quizzes 178 of 200 at 25: 22.25. Tests 171.5 of 300 at 40:
  // 22.8667. No essay: divided by 80. 51.1167 of 80 = 63.8959 (63.895875). Extra 0.7 of 5 = 3.5.
  EXPECT_EQ(Average(), "67.3959");
}

TEST_F(AverageByTypesTest, WorkedExampleWithASingleLowestGradeDropped) {
  Weigh(kHomework, "20");
  Weigh(kQuiz, "30");
  Current().AverageFlag2 = kTrue;
  Put(1, {{"HW", 5, "5", "0", "Y"},
          {"HW", 5, "1", "0", "N"},
          {"HW", 5, "2", "0", "Y"},
          {"Q", 10, "4", "0", "Y"},
          {"Q", 20, "16", "0", "Y"},
          {"Q", 30, "24", "0", "Y"},
          {"T", 100, "39", "0", "N"},
          {"T", 100, "81", "0", "Y"},
          {"T", 50, "45", "0", "Y"},
          {"T", 50, "25", "0", "Y"}});
  // Lowest that may go: homework 40%, quiz 40%, test 50%. The tie goes to homework, type 6.
  // Homework 6 of 10 at 20: 12. Quizzes 44 of 60 at 30: 22. Tests 190 of 300 at 50: 31.6667.
  EXPECT_EQ(Average(), "65.6667");
  EXPECT_EQ(totals.counts[kHomework], 2);
}

}  // namespace
}  // namespace tallyroll
