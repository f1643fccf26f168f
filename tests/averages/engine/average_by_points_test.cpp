// SPDX-License-Identifier: GPL-3.0-or-later
// Methods 2, "Use Points", and 3, "Use Points and Weights by Type".
#include <gtest/gtest.h>

#include <algorithm>

#include "base/run_time_error.h"
#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

class AverageByPointsTest : public AverageTest {
 protected:
  // The average with the points behind it: "45/60 = 75".
  std::string PointsAverage() {
    Points points;
    const AverageError error = Current().Method == 2 ? AverageByPoints(points, totals)
                                                     : AverageByPointsAndTypes(points, totals);
    EXPECT_EQ(error.number, 0);
    return PlainNumberText(points.earned) + "/" + PlainNumberText(points.possible) + " = " +
           PlainNumberText(ExactAverage);
  }
};

TEST_F(AverageByPointsTest, PointsEarnedOfPointsPossible) {
  Put(2, {{"Q", 20, "15"}, {"T", 40, "30"}});
  EXPECT_EQ(PointsAverage(), "45/60 = 75");
  EXPECT_EQ(Average(), "75");
}

TEST_F(AverageByPointsTest, ALeftOutMarkTakesItsPointsFromThePossible) {
  for (const char* mark : {"NEW", "ABS", "EXC"}) {
    Put(2, {{"Q", 20, mark}, {"T", 40, "30"}});
    EXPECT_EQ(PointsAverage(), "30/40 = 75") << mark;
    EXPECT_EQ(totals.counts[kQuiz], 0);
  }
}

TEST_F(AverageByPointsTest, AZeroMarkKeepsItsPointsPossible) {
  Put(2, {{"Q", 20, "CUT"}, {"T", 40, "30"}});
  EXPECT_EQ(PointsAverage(), "30/60 = 50");
  EXPECT_EQ(totals.counts[kQuiz], 1);
}

TEST_F(AverageByPointsTest, OnlyBlanksBehindAMarkAreLookedAway) {
  Put(2, {{"Q", 20, "ABS "}, {"T", 40, "30"}});
  EXPECT_EQ(PointsAverage(), "30/40 = 75");
  // With a blank ahead it is no special mark, and has no number: a 0 of 20.
  Put(2, {{"Q", 20, " ABS"}, {"T", 40, "30"}});
  EXPECT_EQ(PointsAverage(), "30/60 = 50");
}

TEST_F(AverageByPointsTest, ExtraCreditIsEarnedButNotPossible) {
  Put(2, {{"Q", 50, "40"}, {"X", 10, "5"}});
  EXPECT_EQ(PointsAverage(), "45/50 = 90");
  Put(2, {{"Q", 50, "40"}, {"X", 10, "ABS"}});
  EXPECT_EQ(PointsAverage(), "40/50 = 80");
}

TEST_F(AverageByPointsTest, WithEveryGradeExcusedTheAverageIsNothing) {
  Put(2, {{"Q", 50, "EXC"}, {"X", 10, "5"}});
  EXPECT_EQ(PointsAverage(), "5/0 = 0");
}

TEST_F(AverageByPointsTest, AGradeThatDoesNotCountIsLeftOutOfTheTotalToo) {
  Put(2, {{"Q", 50, "10", "0", "N", " N "}, {"T", 40, "30"}});
  EXPECT_EQ(PointsAverage(), "30/40 = 75");
  EXPECT_EQ(totals.counts[kQuiz], 0);
}

TEST_F(AverageByPointsTest, AnIgnoredGradeIsNoPartOfTheTotal) {
  Put(2, {{"Q", 50, "10"}, {"T", 40, "30"}});
  Current().InstrumentUse[1] = Money("2");
  EXPECT_EQ(PointsAverage(), "30/40 = 75");
}

TEST_F(AverageByPointsTest, DropFlagsAreIgnored) {
  Current().AverageFlag1 = Current().AverageFlag2 = Current().AverageFlag4 = kTrue;
  DropLowestOf(kQuiz);
  Put(2, {{"Q", 10, "0", "0", "Y"}, {"Q", 10, "10", "0", "Y"}});
  EXPECT_EQ(PointsAverage(), "10/20 = 50");
  EXPECT_EQ(Current().TypeWeights[kTest], Currency());
}

TEST_F(AverageByPointsTest, TheTotalIsKeptForEachClass) {
  Put(2, {{"Q", 50, "40"}});
  CurrentClass = 2;
  Put(2, {{"Q", 10, "9"}});
  CurrentClass = 1;
  EXPECT_EQ(PointsAverage(), "40/50 = 80");
}

TEST_F(AverageByPointsTest, AClassMayHave32767PointsAndNoMore) {
  Put(2, {{"Q", 32767, "32767"}, {"X", 100, "0"}});
  EXPECT_EQ(PointsAverage(), "32767/32767 = 100");
  Current().Instruments[2].typecode = "T";
  Points points;
  const AverageError error = AverageByPoints(points, totals);
  EXPECT_EQ(error.number, kErrorOverflow);
  EXPECT_EQ(error.student, 1);
  EXPECT_EQ(error.grade, 0);
  Current().Instruments[2].typecode = "X";
  EXPECT_EQ(TotalPossible(), 32767);
}

TEST_F(AverageByPointsTest, TheTotalNeedsNoUseList) {
  Put(2, {{"Q", 50, "40"}});
  Current().InstrumentUse.clear();
  EXPECT_EQ(TotalPossible(), 50);
}

TEST_F(AverageByPointsTest, AGradeBehindTheEndOfTheUseListCountsInTheTotal) {
  Put(2, {{"Q", 50, "40"}, {"T", 40, "30"}});
  Current().InstrumentUse[2] = Money("2");
  Current().InstrumentUse.pop_back();
  EXPECT_EQ(PointsAverage(), "40/90 = 44.4444");
}

TEST_F(AverageByPointsTest, ASumBeyondCurrencyIsAnErrorAtItsGrade) {
  Put(2, {{"Q", 50, "9e14"}, {"T", 50, "9e14"}});
  Points points;
  const AverageError error = AverageByPoints(points, totals);
  EXPECT_EQ(error.number, kErrorOverflow);
  EXPECT_EQ(error.grade, 2);
  EXPECT_EQ(points, Points());
}

TEST_F(AverageByPointsTest, AnUnknownTypeCountsInThePointsButInNoType) {
  Put(2, {{"Q", 20, "15"}, {"ZZ", 20, "9"}});
  EXPECT_EQ(PointsAverage(), "24/40 = 60");
  EXPECT_EQ(std::count(totals.counts.begin(), totals.counts.end(), 1), 1);
}

TEST_F(AverageByPointsTest, WorkedExampleOfAPlainTerm) {
  Put(2, {{"Q", 10, "8"},
          {"Q", 10, "9"},
          {"Q", 20, "15"},
          {"HW", 5, "5"},
          {"HW", 5, "4"},
          {"HW", 5, "3"},
          {"T", 100, "87"},
          {"T", 100, "91.5"},
          {"E", 40, "36"},
          {"P", 50, "42"}});
  // 8+9+15+5+4+3+87+91.5+36+42 = 300.5 of 10+10+20+5+5+5+100+100+40+50 = 345: 87.10144...
  EXPECT_EQ(PointsAverage(), "300.5/345 = 87.1014");
}

TEST_F(AverageByPointsTest, WorkedExampleWithLettersSpecialMarksAndExtraCredit) {
  Put(2, {{"Q", 10, "ABS"},
          {"Q", 10, "7"},
          {"Q", 100, "B+"},
          {"HW", 10, "CUT"},
          {"HW", 10, "10"},
          {"T", 100, "NEW"},
          {"T", 100, "77"},
          {"T", 80, "60"},
          {"E", 100, "C-"},
          {"X", 10, "6"},
          {"X", 10, "EXC"}});
  // Possible are 520 without the extra credit; left out are 10 and 100: 410.
  // 7 + 88 + 0 + 10 + 77 + 60 + 70 + 6 = 318. 31800 / 410 = 77.56097...
  EXPECT_EQ(PointsAverage(), "318/410 = 77.561");
}

TEST_F(AverageByPointsTest, WorkedExampleWithGradesThatDoNotCount) {
  Put(2, {{"Q", 20, "20"},
          {"Q", 20, "10", "0", "N", "N"},
          {"Q", 20, "13"},
          {"HW", 10, "9"},
          {"HW", 10, "ABS", "0", "N", "N"},
          {"HW", 10, "NON"},
          {"T", 50, "41"},
          {"T", 50, "38.5"},
          {"T", 50, "0", "0", "N", "N"},
          {"X", 5, "5", "0", "N", "N"},
          {"A", 100, "85", "0", "N", "N"}});
  // Counting: 20 + 13 + 9 + 0 + 41 + 38.5 = 121.5 of 20 + 20 + 10 + 10 + 50 + 50 = 160.
  EXPECT_EQ(PointsAverage(), "121.5/160 = 75.9375");
}

class AverageByPointsAndTypesTest : public AverageByPointsTest {
 protected:
  void SetUp() override {
    AverageByPointsTest::SetUp();
    Weigh(kQuiz, "25");
    Weigh(kTest, "75");
  }
};

TEST_F(AverageByPointsAndTypesTest, TheWeightsRuleThePoints) {
  Put(3, {{"Q", 20, "10"}, {"T", 40, "40"}});
  // Weighted 10 x 25 + 40 x 75 = 3250 of 20 x 25 + 40 x 75 = 3500, of 60 points: 55.7143.
  EXPECT_EQ(PointsAverage(), "55.7143/60 = 92.8572");
}

TEST_F(AverageByPointsAndTypesTest, ALeftOutMarkIsOutOfEverything) {
  Put(3, {{"Q", 20, "10"}, {"Q", 20, "EXC"}, {"T", 40, "40"}});
  EXPECT_EQ(PointsAverage(), "55.7143/60 = 92.8572");
  EXPECT_EQ(Max(kQuiz), "20");
}

TEST_F(AverageByPointsAndTypesTest, AZeroMarkIsPossible) {
  Put(3, {{"Q", 20, "NON"}, {"T", 40, "40"}});
  // 3000 of 3500, of 60: 51.4286.
  EXPECT_EQ(PointsAverage(), "51.4286/60 = 85.7143");
}

TEST_F(AverageByPointsAndTypesTest, ATypeWithoutAWeightIsInNothing) {
  Put(3, {{"Q", 20, "20"}, {"T", 40, "40"}, {"E", 100, "10"}});
  EXPECT_EQ(PointsAverage(), "60/60 = 100");
  EXPECT_EQ(Max(kEssay), "0");
  EXPECT_EQ(totals.counts[kEssay], 0);
}

TEST_F(AverageByPointsAndTypesTest, AWeightOfExactlyZeroIsNone) {
  Weigh(kQuiz, "0");
  Weigh(kTest, "100");
  Put(3, {{"Q", 20, "5"}, {"T", 40, "30"}});
  // 3000 of 4000, of 40.
  EXPECT_EQ(PointsAverage(), "30/40 = 75");
  EXPECT_EQ(totals.counts[kQuiz], 0);
  EXPECT_EQ(Sum(kQuiz), "0");
  EXPECT_EQ(Max(kQuiz), "0");
  Weigh(kTest, "0.0001");
  // The least weight is one: 30 x 0.0001 = 0.003 of 0.004, of 40.
  EXPECT_EQ(PointsAverage(), "30/40 = 75");
  Weigh(kTest, "0");
  EXPECT_EQ(PointsAverage(), "0/0 = 0");
  Weigh(kTest, "-1");
  EXPECT_EQ(PointsAverage(), "0/0 = 0");
}

TEST_F(AverageByPointsAndTypesTest, WhatIsInNothingIsNeverComputed) {
  Put(3, {{"Q", 20, "20"}, {"T", 40, "40"}, {"ZZ", 0, "1e30"}, {"E", 10, "1e30"}});
  EXPECT_EQ(PointsAverage(), "60/60 = 100");
}

TEST_F(AverageByPointsAndTypesTest, ExtraCreditNeedsNoWeightAndIsAddedAtTheEnd) {
  Put(3, {{"Q", 20, "20"}, {"T", 40, "40"}, {"X", 10, "6"}});
  EXPECT_EQ(PointsAverage(), "66/60 = 110");
  EXPECT_EQ(Max(kExtra), "10");
}

TEST_F(AverageByPointsAndTypesTest, ExtraCreditAloneEarnsNothing) {
  Put(3, {{"Q", 20, "0"}, {"T", 40, "ABS"}, {"X", 10, "6"}});
  EXPECT_EQ(PointsAverage(), "0/20 = 0");
}

TEST_F(AverageByPointsAndTypesTest, AGradeNotInUseIsOut) {
  Put(3, {{"Q", 20, "20"}, {"Q", 20, "1", "0", "N", "N"}, {"T", 40, "40"}});
  EXPECT_EQ(PointsAverage(), "60/60 = 100");
}

TEST_F(AverageByPointsAndTypesTest, WithEqualWeightsThePointsAreThePlainSum) {
  Weigh(kTest, "25");
  Put(3, {{"Q", 20, "13"}, {"T", 40, "29"}});
  EXPECT_EQ(PointsAverage(), "42/60 = 70");
}

TEST_F(AverageByPointsAndTypesTest, NothingPossibleWithPointsEarnedIsAnError) {
  Put(3, {{"Q", 0, "5"}});
  Points points;
  EXPECT_EQ(AverageByPointsAndTypes(points, totals).number, kErrorDivisionByZero);
}

TEST_F(AverageByPointsAndTypesTest, WorkedExampleOfAPlainTerm) {
  Weigh(kHomework, "20");
  Weigh(kTest, "55");
  Put(3, {{"HW", 5, "5"},
          {"HW", 5, "4"},
          {"HW", 5, "3"},
          {"HW", 5, "4"},
          {"Q", 20, "15"},
          {"Q", 20, "18"},
          {"Q", 10, "9"},
          {"T", 100, "87"},
          {"T", 100, "91"},
          {"T", 50, "41"}});
  // Homework 16 of 20, quizzes 42 of 50, tests 219 of 250: 320 possible.
  // Weighted 16x20 + 42x25 + 219x55 = 320 + 1050 + 12045 = 13415; base 400 + 1250 + 13750 = 15400.
  // 13415 x 320 / 15400 = 278.753246..., kept as 278.7532; of 320 that is 87.110375.
  EXPECT_EQ(PointsAverage(), "278.7532/320 = 87.1104");
}

TEST_F(AverageByPointsAndTypesTest, WorkedExampleWithLettersSpecialMarksAndExtraCredit) {
  Put(3, {{"Q", 100, "B+"},
          {"Q", 100, "A-"},
          {"Q", 20, "ABS"},
          {"Q", 50, "CUT"},
          {"T", 100, "76"},
          {"T", 100, "NON"},
          {"T", 100, "95.5"},
          {"T", 60, "NEW"},
          {"E", 50, "45"},
          {"X", 10, "7"}});
  // Quizzes 178 of 250, tests 171.5 of 300: 550 possible; the essay has no weight.
  // Weighted 178x25 + 171.5x75 = 4450 + 12862.5 = 17312.5; base 6250 + 22500 = 28750.
  // 17312.5 x 550 / 28750 = 331.195652..., and 7: 338.1957. Of 550: 61.49012727...
  EXPECT_EQ(PointsAverage(), "338.1957/550 = 61.4901");
}

TEST_F(AverageByPointsAndTypesTest, WorkedExampleWithWeightsOfFourDecimals) {
  Weigh(kHomework, "33.3333");
  Weigh(kQuiz, "33.3333");
  Weigh(kTest, "33.3334");
  Put(3, {{"HW", 10, "10"},
          {"HW", 10, "9"},
          {"HW", 10, "8"},
          {"Q", 10, "7"},
          {"Q", 10, "6"},
          {"Q", 10, "5"},
          {"T", 10, "4"},
          {"T", 10, "3"},
          {"T", 10, "2"},
          {"T", 10, "1"}});
  // Homework 27 of 30, quizzes 18 of 30, tests 10 of 40: 100 possible.
  // Weighted 27x33.3333 + 18x33.3333 + 10x33.3334 = 899.9991 + 599.9994 + 333.334 = 1833.3325;
  // base 999.999 + 999.999 + 1333.336 = 3333.334. 1833.3325 x 100 / 3333.334 = 54.999964..., in
  // four decimals 55; of 100 that is 55.
  EXPECT_EQ(PointsAverage(), "55/100 = 55");
}

}  // namespace
}  // namespace tallyroll
