// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/grade_figures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "tests/analysis/analysis_test.h"

namespace tallyroll {
namespace {

using GradeFiguresTest = AnalysisTest;

// 80 + 90 = 170, 170 / 2 = 85. The squares: 6400 + 8100 = 14500; 170 * 170 / 2 = 14450;
// (14500 - 14450) / 2 = 25, whose root is 5. 65 percent of 100 is 65: both pass.
TEST_F(GradeFiguresTest, TwoGrades) {
  GradeWith({"80", "90"});
  const auto figures = FiguresOfGrade(1);
  ASSERT_TRUE(figures);
  EXPECT_EQ(figures->present, 2);
  EXPECT_EQ(figures->absent, 0);
  EXPECT_EQ(figures->passed, 2);
  EXPECT_EQ(figures->failed, 0);
  EXPECT_EQ(figures->perpassed, 100);
  EXPECT_EQ(figures->perfailed, 0);
  EXPECT_EQ(figures->lowest, Money("80"));
  EXPECT_EQ(figures->highest, Money("90"));
  EXPECT_EQ(figures->average, Money("85"));
  EXPECT_EQ(figures->deviation, 5);
  EXPECT_EQ(PassingGrade(Current().Instruments[1]), "65");
}

// 10 + 20 + 25 = 55; 55 / 3 = 18.3333..., times 100 is 1833.33: 18.33. The squares: 100 + 400 + 625
// = 1125; 55 * 55 / 3 = 1008.3333; (1125 - 1008.3333) / 3 = 38.8889, whose root is 6.2361: 6.24.
// 65 percent of 30 is 19.5: 20 and 25 pass, and 2 * 100 / 3 = 66.67 is 67.
TEST_F(GradeFiguresTest, ThreeGradesOfThirtyPoints) {
  GradeWith({"10", "20", "25", "ABS"}, 30);
  const auto figures = FiguresOfGrade(1);
  ASSERT_TRUE(figures);
  EXPECT_EQ(PassingGrade(Current().Instruments[1]), "19.5");
  EXPECT_EQ(Current().Instruments[1].lowpass, "");
  EXPECT_EQ(figures->present, 3);
  EXPECT_EQ(figures->absent, 1);
  EXPECT_EQ(figures->passed, 2);
  EXPECT_EQ(figures->failed, 1);
  EXPECT_EQ(figures->perpassed, 67);
  EXPECT_EQ(figures->perfailed, 33);
  EXPECT_EQ(figures->average, Money("18.33"));
  EXPECT_EQ(figures->deviation, 6.24);
}

// "B+" is 88, "A" is 95, "85*" is 85, "B*" and the empty mark are 0: the sum is 268, 268 / 5
// = 53.6. The squares: 7744 + 9025 + 7225 = 23994; 268 * 268 / 5 = 14364.8; 9629.2 / 5 = 1925.84,
// whose root is 43.8844: 43.88. 88 passes a lowpass of 88.
TEST_F(GradeFiguresTest, LettersUnknownTextsAndEmptyMarks) {
  GradeWith({"B+", "A", "85*", "B*", ""}, 100, "88");
  const auto figures = FiguresOfGrade(1);
  ASSERT_TRUE(figures);
  EXPECT_EQ(figures->present, 5);
  EXPECT_EQ(figures->passed, 2);
  EXPECT_EQ(figures->perpassed, 40);
  EXPECT_EQ(figures->average, Money("53.6"));
  EXPECT_EQ(figures->deviation, 43.88);
  EXPECT_EQ(figures->lowest, Money("0"));
}

TEST_F(GradeFiguresTest, EachOfTheFiveWordsIsAnAbsence) {
  GradeWith({"NON", "CUT", "EXC", "NEW", "ABS", "80", "NEW  ", "new"});
  const auto figures = FiguresOfGrade(1);
  ASSERT_TRUE(figures);
  EXPECT_EQ(figures->absent, 6);
  EXPECT_EQ(figures->present, 2);  // "new" is a grade of 0
}

TEST_F(GradeFiguresTest, OnePresentStudentHasNoDeviation) {
  GradeWith({"71.5", "ABS"});
  const auto figures = FiguresOfGrade(1);
  ASSERT_TRUE(figures);
  EXPECT_EQ(figures->deviation, 0);
  EXPECT_EQ(figures->average, Money("71.5"));
}

TEST_F(GradeFiguresTest, ThereAreNoneWhereNobodyWasPresent) {
  GradeWith({"NEW", "ABS"});
  EXPECT_FALSE(FiguresOfGrade(1));
}

TEST_F(GradeFiguresTest, ThereAreNoneOfAClassWithoutStudents) {
  GradeWith({});
  EXPECT_FALSE(FiguresOfGrade(1));
}

// 32767 hundredths are the most that 16 bits hold; the half above goes to the even number beyond.
TEST_F(GradeFiguresTest, AnAverageOf327And68HundredthsIsTooLarge) {
  GradeWith({"327.6"});
  EXPECT_EQ(FiguresOfGrade(1)->average, Money("327.6"));
  Current().Students[1].Marks[1] = "328";
  EXPECT_FALSE(FiguresOfGrade(1));
  Current().Students[1].Marks[1] = "-328";
  EXPECT_FALSE(FiguresOfGrade(1).has_value());
}

// 983 / 3 = 327.667 is 327.67 and the last that fits; 1638.4 / 5 = 327.68 is the first that does
// not.
TEST_F(GradeFiguresTest, TheLastAverageThatFitsIs327And67Hundredths) {
  GradeWith({"327.6", "327.6", "327.8"});
  ASSERT_TRUE(FiguresOfGrade(1));
  EXPECT_EQ(FiguresOfGrade(1)->average, Money("327.67"));
}

TEST_F(GradeFiguresTest, TheFirstAverageThatDoesNotIs327And68Hundredths) {
  GradeWith({"327.6", "327.7", "327.7", "327.7", "327.7"});
  EXPECT_FALSE(FiguresOfGrade(1));
}

// The mean of -3 and 80 is 38.5, from which both lie 41.5.
TEST_F(GradeFiguresTest, ANegativeGradeCountsAsPresentAndFailed) {
  GradeWith({"-3", "80"});
  const auto figures = FiguresOfGrade(1);
  ASSERT_TRUE(figures);
  EXPECT_EQ(figures->present, 2);
  EXPECT_EQ(figures->passed, 1);
  EXPECT_EQ(figures->failed, 1);
  EXPECT_EQ(figures->average, Money("38.5"));
  EXPECT_EQ(figures->lowest, Money("-3"));
  EXPECT_EQ(figures->highest, Money("80"));
  EXPECT_EQ(figures->deviation, 41.5);
}

// Three times 33.333: the squares are 3 * 1111.0889 (1111.088889 rounded) = 3333.2667; the sum
// 99.999 squared is 9999.80000 rounded to 9999.8, a third of which is 3333.2667. With 77.777 the
// square is 6049.261729, rounded 6049.2617, thrice 18147.7851; 233.331 squared is 54443.355561,
// rounded 54443.3556, a third 18147.7852: V is below zero.
TEST_F(GradeFiguresTest, AVarianceBelowZeroHasNoRoot) {
  GradeWith({"33.333", "33.333", "33.333"});
  EXPECT_EQ(FiguresOfGrade(1)->deviation, 0);
  for (std::size_t i = 1; i <= 3; ++i) Current().Students[i].Marks[1] = "77.777";
  EXPECT_FALSE(FiguresOfGrade(1));
}

TEST_F(GradeFiguresTest, ANumberBeyondCurrencyMakesNone) {
  GradeWith({"9e99", "80"});
  EXPECT_FALSE(FiguresOfGrade(1));
}

TEST_F(GradeFiguresTest, ALowpassMayBeDecimalAndALetterReadsAsZero) {
  GradeWith({"70", "69.9", "-3"}, 100, " 69.95 ");
  EXPECT_EQ(FiguresOfGrade(1)->passed, 1);
  Current().Instruments[1].lowpass = "70";
  EXPECT_EQ(FiguresOfGrade(1)->passed, 1);  // equal passes
  Current().Instruments[1].lowpass = "C";
  EXPECT_EQ(FiguresOfGrade(1)->passed, 2);
  EXPECT_EQ(PassingGrade(Current().Instruments[1]), "C");
}

// 1 of 8 is 12.5 percent, 3 of 8 are 37.5.
TEST_F(GradeFiguresTest, AHalfPercentGoesToTheEvenNumberAndTheTwoAddUp) {
  GradeWith({"90", "1", "1", "1", "1", "1", "1", "1"});
  EXPECT_EQ(FiguresOfGrade(1)->perpassed, 12);
  EXPECT_EQ(FiguresOfGrade(1)->perfailed, 88);
  for (const std::size_t i : {2U, 3U}) Current().Students[i].Marks[1] = "90";
  EXPECT_EQ(FiguresOfGrade(1)->perpassed, 38);
  EXPECT_EQ(FiguresOfGrade(1)->perfailed, 62);
}

TEST_F(GradeFiguresTest, AThousandStudentsAreCounted) {
  const std::vector<const char*> marks(1000, "90");
  GradeWith(marks);
  const auto figures = FiguresOfGrade(1);
  ASSERT_TRUE(figures);
  EXPECT_EQ(figures->present, 1000);
  EXPECT_EQ(figures->perpassed, 100);
}

// Against doubles: the average is rounded to hundredths, the deviation too, and the roundings of
// the sums move a variance by less than a ten-thousandth.
TEST_F(GradeFiguresTest, AreThoseOfPlainDoubles) {
  std::mt19937 random(2026);
  GradeWith(std::vector<const char*>(30, ""));
  for (int round = 0; round < 300; ++round) {
    double sum = 0, squares = 0;
    for (int i = 1; i <= 30; ++i) {
      const double value = static_cast<double>(random() % 10001) / 100;
      Current().Students[static_cast<std::size_t>(i)].Marks[1] = PlainNumberText(value);
      sum += value;
      squares += value * value;
    }
    const auto figures = FiguresOfGrade(1);
    ASSERT_TRUE(figures);
    const double mean = sum / 30;
    EXPECT_NEAR(figures->average.ToDouble(), mean, 0.00501);
    EXPECT_NEAR(figures->deviation, std::sqrt(squares / 30 - mean * mean), 0.0052);
  }
}

struct PercentInRange {
  const char* mark;
  int range;
};

TEST_F(GradeFiguresTest, AMarkIsInTheRangeOfItsRoundedPercent) {
  GradeWith({});
  const PercentInRange cases[] = {{"250", 1},  {"100", 1},  {"95", 1},   {"94.6", 1}, {"94.5", 2},
                                  {"95.5", 1}, {"90", 2},   {"89.4", 3}, {"85", 3},   {"84.5", 4},
                                  {"80", 4},   {"75", 5},   {"70", 6},   {"65", 7},   {"64.5", 8},
                                  {"55", 8},   {"54.5", 9}, {"54", 9},   {"0", 9},    {"", 9},
                                  {"-0.5", 9}, {"-1", 0},   {"A+", 1},   {"9e99", 1}, {"-9e99", 0}};
  for (const auto& [mark, range] : cases)
    EXPECT_EQ(RangeOfPercent(PercentOfMark(mark, 100)), range) << mark;
}

TEST_F(GradeFiguresTest, RangesGoByThePercentOfTheMaximum) {
  GradeWith({"47", "48", "27.5", "CUT"}, 50);  // 94, 96 and 55 percent
  const RangeCounts counts = CountRanges(1);
  EXPECT_EQ(counts, (RangeCounts{0, 1, 1, 0, 0, 0, 0, 0, 1, 0}));
}

TEST_F(GradeFiguresTest, RangesAndNegativeGradesTogetherAreThePresent) {
  std::mt19937 random(7);
  GradeWith(std::vector<const char*>(40, ""));
  const char* words[] = {"NON", "CUT", "EXC", "NEW", "ABS"};
  for (int round = 0; round < 100; ++round) {
    int negative = 0, present = 0;
    for (int i = 1; i <= 40; ++i) {
      const auto value = static_cast<int>(random() % 160) - 30;
      const bool word = random() % 5 == 0;
      Current().Students[static_cast<std::size_t>(i)].Marks[1] =
          word ? std::string(words[random() % 5]) : PlainNumberText(value);
      if (word) continue;
      ++present;
      if (value < 0) ++negative;
    }
    int sum = negative;
    for (const int count : CountRanges(1)) sum += count;
    EXPECT_EQ(sum, present);
  }
}

// Of four values the places are 0.75, 1.5 and 2.25: 10 + 0.75 * 10, 20 + 0.5 * 10, 30 + 0.25 * 60.
TEST_F(GradeFiguresTest, QuartilesLieBetweenTheMarksAroundThem) {
  const GradeQuartiles quartiles =
      QuartilesOf({Money("30"), Money("10"), Money("90"), Money("20")});
  EXPECT_EQ(quartiles.n, 4u);
  EXPECT_EQ(quartiles.lower, 17.5);
  EXPECT_EQ(quartiles.median, 25);
  EXPECT_EQ(quartiles.upper, 45);
}

TEST_F(GradeFiguresTest, QuartilesOfOneAndOfNone) {
  const GradeQuartiles one = QuartilesOf({Money("72.5")});
  EXPECT_EQ(one.lower, 72.5);
  EXPECT_EQ(one.upper, 72.5);
  EXPECT_EQ(QuartilesOf({}).n, 0u);
}

// A maximum of 50 puts the marks into ranges twice as narrow.
TEST_F(GradeFiguresTest, QuartilesAreTheSameAtEveryWidthOfTheRanges) {
  GradeWith({"41", "44", "45", "49", "ABS"});
  const GradeQuartiles wide = QuartilesOfGrade(1);
  const RangeCounts of_hundred = CountRanges(1);
  Current().Instruments[1].mvalue = 50;
  const GradeQuartiles narrow = QuartilesOfGrade(1);
  EXPECT_NE(CountRanges(1), of_hundred);
  EXPECT_EQ(wide.median, 44.5);
  EXPECT_EQ(narrow.median, wide.median);
  EXPECT_EQ(narrow.lower, wide.lower);
  EXPECT_EQ(narrow.upper, wide.upper);
}

}  // namespace
}  // namespace tallyroll
