// SPDX-License-Identifier: GPL-3.0-or-later
// Method 0, "Assign Weights to Individual Items".
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

class AverageByItemsTest : public AverageTest {};

TEST_F(AverageByItemsTest, ALeftOutMarkLeavesItsWeightToTheOthers) {
  for (const char* mark : {"ABS", "EXC", "NEW", " ABS ", "NEW  "}) {
    Put(0, {{"Q", 100, "80", "50"}, {"T", 100, mark, "50"}});
    // 80% of 50 are 40 points of the 50 that are left.
    EXPECT_EQ(Average(), "80") << mark;
    EXPECT_EQ(totals.counts[kTest], 0);
    EXPECT_EQ(totals.counts[kQuiz], 1);
  }
}

TEST_F(AverageByItemsTest, AZeroMarkCountsWithItsWholeWeight) {
  for (const char* mark : {"CUT", "NON"}) {
    Put(0, {{"Q", 100, "80", "50"}, {"T", 100, mark, "50"}});
    EXPECT_EQ(Average(), "40") << mark;
    EXPECT_EQ(totals.counts[kTest], 1);
    EXPECT_EQ(Sum(kTest), "0");
    EXPECT_EQ(Max(kTest), "100");
  }
}

TEST_F(AverageByItemsTest, WithAllMarksLeftOutExtraCreditIsLostToo) {
  Put(0, {{"Q", 10, "ABS", "60"}, {"T", 100, "NEW", "40"}, {"X", 10, "10", "5"}});
  EXPECT_EQ(Average(), "0");
}

TEST_F(AverageByItemsTest, LessThanOneOfTheWeightLeftIsNoAverage) {
  Put(0, {{"Q", 10, "ABS", "99.5"}, {"T", 100, "90", "0.5"}});
  EXPECT_EQ(Average(), "0");
  Put(0, {{"Q", 10, "ABS", "99"}, {"T", 100, "90", "1"}});
  // A total of exactly 1 is enough: 0.9 of 1.
  EXPECT_EQ(Average(), "90");
}

TEST_F(AverageByItemsTest, ExtraCreditIsAddedAfterTheDivision) {
  Put(0, {{"Q", 10, "8", "50"}, {"T", 100, "EXC", "50"}, {"X ", 10, "5", "4"}});
  // 40 of 50 are 80; half of 4 comes on top and is not divided by 50.
  EXPECT_EQ(Average(), "82");
  EXPECT_EQ(totals.counts[kExtra], 1);
  EXPECT_EQ(Sum(kExtra), "5");
}

TEST_F(AverageByItemsTest, LeftOutExtraCreditAddsNothingAndKeepsTheTotal) {
  Put(0, {{"Q", 10, "8", "100"}, {"X", 10, "ABS", "4"}});
  EXPECT_EQ(Average(), "80");
  EXPECT_EQ(totals.counts[kExtra], 0);
}

TEST_F(AverageByItemsTest, AnUnknownTypeCountsWithItsWeightButInNoType) {
  Put(0, {{"Q", 10, "8", "50"}, {"ZZ", 10, "6", "50"}});
  EXPECT_EQ(Average(), "70");
  int counted = 0;
  for (const i16 count : totals.counts) counted += count;
  EXPECT_EQ(counted, 1);
}

TEST_F(AverageByItemsTest, AnUnknownTypeIsComputedAsAnyOther) {
  Put(0, {{"Q", 10, "8", "50"}, {"ZZ", 0, "6", "50"}});
  const AverageError error = AverageByItems(totals);
  EXPECT_EQ(error.number, kErrorDivisionByZero);
  EXPECT_EQ(error.grade, 2);
}

TEST_F(AverageByItemsTest, EachPercentAndEachProductIsRoundedToFourDecimals) {
  Put(0, {{"Q", 3, "1", "33.3333"}, {"Q", 7, "5", "66.6667"}});
  // 1/3 is 33.3333%; 33.3333 x 33.3333 = 1111.10888..., kept as 1111.1089, a hundredth 11.1111.
  // 5/7 is 71.4286%; 66.6667 x 71.4286 = 4761.90904..., kept as 4761.9090, a hundredth 47.6191.
  EXPECT_EQ(Average(), "58.7302");
}

TEST_F(AverageByItemsTest, ATieInTheFourthDecimalGoesToTheEvenDigit) {
  Put(0, {{"Q", 100, "50", "0.0005"}, {"T", 100, "100", "99.9995"}});
  // Half of 0.0005 is a tie at 0.00025: it becomes 0.0002.
  EXPECT_EQ(Average(), "99.9997");
  Put(0, {{"Q", 100, "50", "0.0007"}, {"T", 100, "100", "99.9993"}});
  // Half of 0.0007 is a tie at 0.00035: it becomes 0.0004.
  EXPECT_EQ(Average(), "99.9997");
}

TEST_F(AverageByItemsTest, LettersCountByTheirValues) {
  Put(0, {{"Q", 100, "A+", "50"}, {"T", 100, "b+", "25"}, {"T", 100, "B+", "25"}});
  // 99 for half, a small letter is 0, 88 for a quarter: 49.5 + 0 + 22.
  EXPECT_EQ(Average(), "71.5");
}

TEST_F(AverageByItemsTest, AMarkBeyondTheMaximumIsTakenAsItStands) {
  Put(0, {{"Q", 50, "90", "100"}});
  EXPECT_EQ(Average(), "180");
}

TEST_F(AverageByItemsTest, AMethodNotYetChosenIsAveragedByItems) {
  Put(5, {{"Q", 10, "8"}});
  // No weights stand: nothing earned of 100.
  EXPECT_EQ(Average(), "0");
  EXPECT_EQ(totals.counts[kQuiz], 1);
}

TEST_F(AverageByItemsTest, TheLowestOfAFlaggedTypeIsDroppedWithItsWeight) {
  DropLowestOf(kQuiz);
  Put(0, {{"Q", 10, "5", "20", "Y"}, {"Q", 10, "9", "20", "Y"}, {"T", 100, "70", "60", "Y"}});
  // Without the 5: 18 + 42 = 60 points of 80.
  EXPECT_EQ(Average(), "75");
  EXPECT_EQ(totals.counts[kQuiz], 1);
  EXPECT_EQ(Sum(kQuiz), "9");
  EXPECT_EQ(Max(kQuiz), "10");
  EXPECT_EQ(totals.counts[kTest], 1);
}

TEST_F(AverageByItemsTest, OnlyAGradeThatMayBeDroppedIsDropped) {
  DropLowestOf(kQuiz);
  Put(0, {{"Q", 10, "5", "50", "N"}, {"Q", 10, "9", "50", "Y"}});
  EXPECT_EQ(Average(), "50");
}

TEST_F(AverageByItemsTest, AFlagOfOneDropsNothing) {
  Current().TypeWeights[kQuiz] = Money("1");
  Put(0, {{"Q", 10, "5", "50", "Y"}, {"Q", 10, "9", "50", "Y"}});
  EXPECT_EQ(Average(), "70");
}

TEST_F(AverageByItemsTest, AZeroMarkIsNeverDropped) {
  DropLowestOf(kQuiz);
  Put(0, {{"Q", 10, "CUT", "50", "Y"}, {"Q", 10, "9", "50", "Y"}});
  // The 9 is the lowest that may go; what stays is the 0.
  EXPECT_EQ(Average(), "0");
  EXPECT_EQ(totals.counts[kQuiz], 1);
}

TEST_F(AverageByItemsTest, ALeftOutMarkStandsAsLowestOnlyWhenAskedTo) {
  const std::vector<SheetLine> lines = {
      {"Q", 10, "5", "40", "Y"}, {"Q", 10, "ABS", "20", "Y"}, {"Q", 10, "9", "40", "Y"}};
  DropLowestOf(kQuiz);
  Current().AverageFlag1 = kTrue;
  Put(0, lines);
  // The absence is what was dropped: (20 + 36) of 80.
  EXPECT_EQ(Average(), "70");
  Current().AverageFlag1 = kFalse;
  Put(0, lines);
  // The 5 goes too: 36 of 40.
  EXPECT_EQ(Average(), "90");
}

TEST_F(AverageByItemsTest, ALeftOutMarkThatMayNotBeDroppedNeverStandsAsLowest) {
  DropLowestOf(kQuiz);
  for (const i16 flag : {kTrue, kFalse}) {
    Current().AverageFlag1 = flag;
    Put(0, {{"Q", 10, "5", "40", "Y"}, {"Q", 10, "ABS", "20", "N"}, {"Q", 10, "9", "40", "Y"}});
    EXPECT_EQ(Average(), "90") << flag;
  }
}

TEST_F(AverageByItemsTest, ALeftOutMarkThatMayNotBeDroppedIsNoSingleLowest) {
  Current().AverageFlag2 = kTrue;
  for (const i16 flag : {kTrue, kFalse}) {
    Current().AverageFlag1 = flag;
    Put(0, {{"Q", 10, "5", "25", "Y"}, {"T", 100, "ABS", "25", "N"}, {"T", 100, "90", "50", "Y"}});
    // The quiz goes: 45 of 50.
    EXPECT_EQ(Average(), "90") << flag;
  }
}

TEST_F(AverageByItemsTest, OfTwoEqualPercentsTheEarlierGradeGoes) {
  DropLowestOf(kQuiz);
  Put(0, {{"Q", 10, "7", "30", "Y"}, {"Q", 20, "14", "50", "Y"}, {"Q", 10, "9", "20", "Y"}});
  // The quiz of 10 points goes: (35 + 18) of 70.
  EXPECT_EQ(Average(), "75.7143");
  EXPECT_EQ(Max(kQuiz), "30");
}

TEST_F(AverageByItemsTest, TheLowestIsThatOfThePercentNotOfThePoints) {
  DropLowestOf(kQuiz);
  Put(0, {{"Q", 10, "9", "50", "Y"}, {"Q", 100, "60", "50", "Y"}});
  EXPECT_EQ(Average(), "90");
}

TEST_F(AverageByItemsTest, AThousandPercentIsNeverDropped) {
  DropLowestOf(kQuiz);
  Put(0, {{"Q", 10, "100", "100", "Y"}});
  EXPECT_EQ(Average(), "1000");
  Put(0, {{"Q", 1000, "9999", "100", "Y"}});
  // 999.9% is below the mark and goes; nothing is left.
  EXPECT_EQ(Average(), "0");
}

TEST_F(AverageByItemsTest, ANegativeGradeIsNeverDropped) {
  DropLowestOf(kQuiz);
  Put(0, {{"Q", 10, "-2", "50", "Y"}, {"Q", 10, "9", "50", "Y"}});
  EXPECT_EQ(Average(), "35");
}

TEST_F(AverageByItemsTest, ASumOfExactlyMinusOneStopsTheDropOfItsType) {
  DropLowestOf(kQuiz);
  Put(0, {{"Q", 10, "-3", "50", "N"}, {"Q", 10, "2", "50", "Y"}});
  // -15 + 10 points of 100: the 2 stays.
  EXPECT_EQ(Average(), "-5");
  EXPECT_EQ(Sum(kQuiz), "-1");
  EXPECT_EQ(totals.counts[kQuiz], 2);
}

TEST_F(AverageByItemsTest, ASingleLowestGradeIsDroppedInAll) {
  Current().AverageFlag2 = kTrue;
  Put(0, {{"Q", 10, "5", "25", "Y"}, {"T", 100, "40", "25", "Y"}, {"T", 100, "90", "50", "Y"}});
  // The test of 40% goes: (12.5 + 45) of 75.
  EXPECT_EQ(Average(), "76.6667");
  EXPECT_EQ(Current().TypeWeights[kTest], Money("2"));
  EXPECT_EQ(Current().TypeWeights[kQuiz], Money("1"));
  EXPECT_EQ(Current().TypeWeights[kExtra], Money("1"));
}

TEST_F(AverageByItemsTest, ATieOfSingleLowestGradesGoesToTheEarlierType) {
  Current().AverageFlag2 = kTrue;
  Put(0, {{"T", 100, "50", "40", "Y"}, {"Q", 10, "5", "40", "Y"}, {"T", 100, "90", "20", "Y"}});
  // Quiz is type 10, Test 12: the quiz goes, (20 + 18) of 60.
  EXPECT_EQ(Average(), "63.3333");
}

TEST_F(AverageByItemsTest, ALeftOutMarkAsSingleLowestDropsNoGrade) {
  Current().AverageFlag1 = Current().AverageFlag2 = kTrue;
  Put(0, {{"Q", 10, "5", "25", "Y"}, {"T", 100, "ABS", "25", "Y"}, {"T", 100, "90", "50", "Y"}});
  // (12.5 + 45) of 75.
  EXPECT_EQ(Average(), "76.6667");
  for (std::size_t t = 1; t <= 26; ++t) EXPECT_EQ(Current().TypeWeights[t], Money("1"));
}

TEST_F(AverageByItemsTest, ExtraCreditIsNeverTheSingleLowest) {
  Current().AverageFlag2 = kTrue;
  DropLowestOf(kExtra);  // as a file may say
  Put(0, {{"Q", 10, "8", "50", "Y"}, {"Q", 10, "9", "50", "Y"}, {"X", 10, "1", "10", "Y"}});
  for (const char* again : {"first", "second"}) {
    // The 8 goes: 90, and a tenth of 10 on top.
    EXPECT_EQ(Average(), "91") << again;
    EXPECT_EQ(Current().TypeWeights[kExtra], Money("1"));
  }
}

TEST_F(AverageByItemsTest, AFlaggedExtraCreditIsTakenOffThePointsAndTheTotal) {
  DropLowestOf(kExtra);
  Put(0, {{"Q", 10, "8", "100"}, {"X", 10, "5", "20", "Y"}});
  // 80 - 10 of 100 - 20, and the 10 of extra credit stay on top: 87.5 + 10.
  EXPECT_EQ(Average(), "97.5");
  EXPECT_EQ(totals.counts[kExtra], 0);
}

TEST_F(AverageByItemsTest, AMaximumOfZeroIsAnErrorThatNamesTheGradeAndChangesNothing) {
  Current().AverageFlag2 = kTrue;
  Put(0, {{"Q", 10, "8", "50", "Y"}, {"Q", 0, "9", "50", "Y"}});
  ExactAverage = Money("12");
  Current().Students[1].lastname = "Doe ";
  Current().Students[1].firstname = "Ann";
  const auto flags = Current().TypeWeights;
  const AverageError error = AverageByItems(totals);
  EXPECT_EQ(error.number, kErrorDivisionByZero);
  EXPECT_EQ(error.student, 1);
  EXPECT_EQ(error.grade, 2);
  EXPECT_EQ(AverageErrorText(error),
            "The average of Doe, Ann can't be computed: the maximum score is 0 in the grade "
            "\"Grade 2\".");
  EXPECT_EQ(ExactAverage, Money("12"));
  EXPECT_EQ(Current().TypeWeights, flags);
  EXPECT_EQ(totals, TypeTotals());
}

TEST_F(AverageByItemsTest, AMaximumOfZeroDoesNoHarmToALeftOutOrZeroMark) {
  Put(0, {{"Q", 10, "8", "50"}, {"Q", 0, "ABS", "25"}, {"Q", 0, "CUT", "25"}});
  // 40 of 75.
  EXPECT_EQ(Average(), "53.3333");
}

TEST_F(AverageByItemsTest, ANumberBeyondCurrencyIsAnError) {
  Put(0, {{"Q", 10, "8", "50"}, {"Q", 10, "9e99", "50"}});
  EXPECT_EQ(AverageByItems(totals).number, kErrorOverflow);
  Put(0, {{"Q", 10, "9e13", "50"}});
  // The mark fits, but not a hundred times of it.
  const AverageError error = AverageByItems(totals);
  EXPECT_EQ(error.number, kErrorOverflow);
  EXPECT_EQ(error.grade, 1);
}

TEST_F(AverageByItemsTest, ListsNeverDimensionedAreTakenAsNothing) {
  Class& c = Current();
  c.Method = 0;
  c.NumStudents = 1;
  ReDim(c.Students, 1);
  EXPECT_EQ(Average(), "0");
  Put(0, {{"Q", 10, "8", "50"}});
  c.Weights.clear();
  c.Students[1].Marks.clear();
  EXPECT_EQ(Average(), "0");
}

TEST_F(AverageByItemsTest, WithoutAStudentThereIsNoAverage) {
  Put(0, {{"Q", 10, "8", "50"}});
  for (const i16 student : {i16{0}, i16{2}, i16{-1}}) {
    CurrentStudent = student;
    EXPECT_EQ(AverageByItems(totals).number, kErrorSubscript);
  }
}

// Ten or more grades, step by step.

TEST_F(AverageByItemsTest, WorkedExampleOfAPlainTerm) {
  Put(0, {{"Q", 10, "8", "5"},
          {"Q", 10, "9", "5"},
          {"Q", 20, "15", "10"},
          {"HW", 5, "5", "5"},
          {"HW", 5, "4", "5"},
          {"HW", 5, "3", "5"},
          {"T", 100, "87", "20"},
          {"T", 100, "91.5", "20"},
          {"E", 40, "36", "15"},
          {"P", 50, "42", "10"}});
  // 80% of 5 = 4, 90% of 5 = 4.5, 75% of 10 = 7.5, 100% of 5 = 5, 80% of 5 = 4, 60% of 5 = 3,
  // 87% of 20 = 17.4, 91.5% of 20 = 18.3, 90% of 15 = 13.5, 84% of 10 = 8.4: together 85.6.
  EXPECT_EQ(Average(), "85.6");
  EXPECT_EQ(Sum(kQuiz), "32");
  EXPECT_EQ(Max(kQuiz), "40");
}

TEST_F(AverageByItemsTest, WorkedExampleWithLettersSpecialMarksAndExtraCredit) {
  Put(0, {{"Q", 10, "ABS", "10"},
          {"Q", 10, "7", "10"},
          {"Q", 100, "B+", "10"},
          {"HW", 10, "CUT", "5"},
          {"HW", 10, "10", "5"},
          {"T", 100, "NEW", "15"},
          {"T", 100, "77", "15"},
          {"T", 80, "60", "20"},
          {"E", 100, "C-", "10"},
          {"X", 10, "6", "5"},
          {"X", 10, "EXC", "5"}});
  // Left out are 10 and 15 of the weight: 75 stay. Points: 7 + 8.8 + 0 + 5 + 11.55 + 15 + 7 =
  // 54.35. 5435 / 75 = 72.4667 to four decimals, and 60% of 5 = 3 on top.
  EXPECT_EQ(Average(), "75.4667");
  EXPECT_EQ(totals.counts[kHomework], 2);
  EXPECT_EQ(totals.counts[kExtra], 1);
}

TEST_F(AverageByItemsTest, WorkedExampleWithTheLowestOfTwoTypesDropped) {
  DropLowestOf(kQuiz);
  DropLowestOf(kHomework);
  Put(0, {{"Q", 10, "4", "8", "Y"},
          {"Q", 10, "8", "8", "Y"},
          {"Q", 20, "10", "8", "Y"},
          {"HW", 5, "2", "4", "N"},
          {"HW", 5, "3", "4", "Y"},
          {"HW", 5, "5", "4", "Y"},
          {"T", 50, "40", "16", "Y"},
          {"T", 50, "25", "16", "Y"},
          {"E", 30, "27", "16"},
          {"P", 20, "19", "16"}});
  // Points: 3.2 + 6.4 + 4 + 1.6 + 2.4 + 4 + 12.8 + 8 + 14.4 + 15.2 = 72. Dropped are the quiz at
  // 40% with 3.2 of 8, and the homework at 60% with 2.4 of 4, since the one at 40% must stay.
  // 66.4 of 88 are 75.4545.
  EXPECT_EQ(Average(), "75.4545");
  EXPECT_EQ(totals.counts[kHomework], 2);
  EXPECT_EQ(Sum(kHomework), "7");
}

}  // namespace
}  // namespace tallyroll
