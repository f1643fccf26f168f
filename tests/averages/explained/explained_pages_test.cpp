// SPDX-License-Identifier: GPL-3.0-or-later
// Pages for students who between them meet every rule of an average, each worked out by hand.
#include "averages/explained/explained_page.h"
#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

using Texts = std::vector<std::string>;

class ExplainedPagesTest : public AverageTest {
 protected:
  static ExplainedPage Page() {
    Current().Students[1].lastname = "Ng";
    Current().Students[1].firstname = "Ada";
    return PageOf(ExplainAverage(1));
  }
  static std::string NoteOf(const ExplainedPage& page, int grade) {
    for (const ExplainedRow& row : page.grades)
      if (row.grade == grade) return row.note;
    return "no such row";
  }
  static std::string CountsOf(const ExplainedPage& page, int grade) {
    for (const ExplainedRow& row : page.grades)
      if (row.grade == grade) return row.counts;
    return "no such row";
  }
};

// 50 x 80 / 100 = 40 of the 50 that are left.
TEST_F(ExplainedPagesTest, ItemsWithAnAbsence) {
  Put(0, {{"Q", 100, "80", "50"}, {"T", 100, "ABS", "50"}});
  const ExplainedPage page = Page();
  EXPECT_EQ(page.student, "Ng, Ada");
  EXPECT_EQ(CountsOf(page, 1), "40");
  EXPECT_EQ(NoteOf(page, 2), "left out; its weight goes to the others");
  EXPECT_EQ(page.sum, (Texts{"What the grades count adds up to 40, of a weight of 50. Of 100 that "
                             "is 80.",
                             "The average is 80."}));
  EXPECT_EQ(page.rounding,
            (Texts{"Rounded to two decimals, a half up: 80 becomes 80.",
                   "80 reaches the minimum of 78.5 for 80 (B-/SAT/3.0), but not that of 82.5 for "
                   "85 (B/SAT/3.0)."}));
  EXPECT_EQ(page.final_grade, "80 (B-/SAT/3.0)");
}

TEST_F(ExplainedPagesTest, GradesStandByTheirTypes) {
  Put(0, {{"T", 100, "80", "50"}, {"Q", 100, "70", "25"}, {"T", 100, "60", "25"}});
  Texts titles;
  for (const ExplainedRow& row : Page().grades) titles.push_back(row.title);
  EXPECT_EQ(titles, (Texts{"Quiz", "Grade 2", "Test", "Grade 1", "Grade 3"}));
}

// 14 + 18, of which the lowest, 14, goes: 18 of 80 is 22.5; extra credit 4 x 50 / 100 on top.
TEST_F(ExplainedPagesTest, ItemsWithASingleDropAZeroAndExtraCredit) {
  Current().AverageFlag2 = kTrue;
  Put(0, {{"Q", 10, "7", "20", "Y"},
          {"Q", 10, "9", "20", "Y"},
          {"T", 100, "CUT", "60", "Y"},
          {"X", 10, "5", "4"}});
  const ExplainedPage page = Page();
  EXPECT_EQ(NoteOf(page, 1), "dropped, the lowest of all");
  EXPECT_EQ(NoteOf(page, 2), "");
  EXPECT_EQ(NoteOf(page, 3), "counts as 0 and is never dropped");
  EXPECT_EQ(NoteOf(page, 4), "extra credit");
  EXPECT_EQ(page.sum,
            (Texts{"\"Grade 1\" is dropped: at 70 percent it is the lowest of all. The sum goes "
                   "from 32 to 18.",
                   "What the grades count adds up to 18, of a weight of 80. Of 100 that is 22.5.",
                   "Extra credit adds 2: 24.5.", "The average is 24.5."}));
  EXPECT_EQ(page.rounding, (Texts{"Rounded to two decimals, a half up: 24.5 becomes 24.5.",
                                  "Rounded to the whole number, a half up: 24.5 becomes 25.",
                                  "An average of 40 or less has no letter."}));
  EXPECT_EQ(page.final_grade, "25 (F/UNSAT/ABS)");
}

TEST_F(ExplainedPagesTest, ItemsWithNothingLeftLoseTheExtraCredit) {
  Put(0, {{"Q", 10, "EXC", "100"}, {"X", 10, "10", "5"}});
  const ExplainedPage page = Page();
  EXPECT_EQ(page.sum, (Texts{"Less than 1 of the weight of 100 is left, so the average is 0. Extra "
                             "credit alone earns nothing.",
                             "The average is 0."}));
  EXPECT_EQ(page.final_grade, "0 (F/UNSAT/ABS)");
}

// 50 x 14 / 20 = 35, of the 50 that the test's weight leaves.
TEST_F(ExplainedPagesTest, TypesWithoutAGradeLeaveTheirWeight) {
  Weigh(kQuiz, "50");
  Weigh(kTest, "50");
  Put(1, {{"Q", 10, "9"}, {"Q", 10, "5"}});
  const ExplainedPage page = Page();
  ASSERT_EQ(page.types.size(), 2U);
  EXPECT_EQ(page.types[0].name, "Quiz");
  EXPECT_EQ(page.types[0].earned, "14");
  EXPECT_EQ(page.types[0].most, "20");
  EXPECT_EQ(page.types[0].counts, "35");
  EXPECT_EQ(page.types[1].name, "Test");
  EXPECT_EQ(page.types[1].counts, "");
  EXPECT_EQ(page.sum,
            (Texts{"Test has no grade that counts: its weight of 50 leaves the 100, 50 remain for "
                   "the others.",
                   "What the types count adds up to 35, of a weight of 50. Of 100 that is 70.",
                   "The average is 70."}));
  EXPECT_EQ(page.rounding[1],
            "70 reaches the minimum of 68.5 for 70 (C-/SAT/2.0), but not that of 72.5 for 75 "
            "(C/SAT/2.0).");
}

TEST_F(ExplainedPagesTest, OrKeepItWhereWeightsAreNotRedistributed) {
  Current().AverageFlag3 = kTrue;
  Weigh(kQuiz, "50");
  Weigh(kTest, "50");
  Put(1, {{"Q", 10, "9"}, {"Q", 10, "5"}});
  const ExplainedPage page = Page();
  ASSERT_EQ(page.sum.size(), 4U);
  EXPECT_EQ(page.sum[1], "Weights are not redistributed: 100 divides, not 50.");
  EXPECT_EQ(page.sum[2],
            "What the types count adds up to 35, of a weight of 100. Of 100 that is 35.");
  EXPECT_EQ(page.final_grade, "35 (F/UNSAT/ABS)");
}

// 40 x 14 / 20 + 60 x 45 / 50 + 5 x 4 / 5 = 28 + 54 + 4.
TEST_F(ExplainedPagesTest, TypesWithAnAbsenceAsTheLowest) {
  Current().AverageFlag1 = Current().AverageFlag4 = kTrue;
  DropLowestOf(kQuiz);
  Weigh(kQuiz, "40");
  Weigh(kTest, "60");
  Weigh(kExtra, "5");
  Put(1, {{"Q", 10, "ABS", "0", "Y"},
          {"Q", 10, "5", "0", "Y"},
          {"Q", 10, "9", "0", "Y"},
          {"T", 50, "45"},
          {"X", 5, "4"},
          {"zz", 5, "4"}});
  const ExplainedPage page = Page();
  EXPECT_EQ(NoteOf(page, 1), "left out; stands as the lowest of its type");
  EXPECT_EQ(NoteOf(page, 2), "");
  EXPECT_EQ(NoteOf(page, 6), "its type has no weight");
  EXPECT_EQ(page.sum,
            (Texts{"What the types count adds up to 82, of a weight of 100. Of 100 that is 82.",
                   "Extra credit adds 4: 86.", "The average is 86."}));
}

// Without the choice "as lowest" the lowest real quiz goes: 40 x 9 / 10 = 36, 36 + 54 = 90.
TEST_F(ExplainedPagesTest, TypesWithADropEach) {
  Current().AverageFlag4 = kTrue;
  DropLowestOf(kQuiz);
  Weigh(kQuiz, "40");
  Weigh(kTest, "60");
  Put(1, {{"Q", 10, "5", "0", "Y"}, {"Q", 10, "9", "0", "Y"}, {"T", 50, "45"}});
  const ExplainedPage page = Page();
  EXPECT_EQ(NoteOf(page, 1), "dropped, the lowest of its type");
  EXPECT_EQ(page.sum.front(),
            "\"Grade 1\" is dropped: at 50 percent it is the lowest of its type. The sum goes from "
            "14 to 9.");
  EXPECT_EQ(page.sum.back(), "The average is 90.");
}

TEST_F(ExplainedPagesTest, AnAbsenceStandsAsTheSingleLowest) {
  Current().AverageFlag1 = Current().AverageFlag2 = kTrue;
  Weigh(kQuiz, "100");
  Put(1, {{"Q", 10, "NEW", "0", "Y"}, {"Q", 10, "5", "0", "Y"}});
  EXPECT_EQ(Page().sum.front(),
            "\"Grade 1\" stands as the lowest grade, since it was left out: no other grade is "
            "dropped.");
}

// 8 + 45 + 3 of 70 - 10.
TEST_F(ExplainedPagesTest, Points) {
  Put(2, {{"HW", 10, "8"},
          {"T", 50, "45"},
          {"HW", 10, "EXC"},
          {"X", 5, "3"},
          {"T", 50, "40", "0", "N", "N"}});
  const ExplainedPage page = Page();
  EXPECT_EQ(NoteOf(page, 3), "left out; its points are not asked for");
  EXPECT_EQ(NoteOf(page, 5), "does not count");
  EXPECT_EQ(page.sum, (Texts{"The grades that count add up to 70 points.",
                             "Points earned: 56 of 60 possible. In percent: 93.3333.",
                             "The average is 93.3333."}));
  EXPECT_EQ(page.rounding[0], "Rounded to two decimals, a half up: 93.3333 becomes 93.33.");
  EXPECT_EQ(page.final_grade, "95 (A/EX/4.0)");
}

TEST_F(ExplainedPagesTest, PointsOfWhichNoneWerePossible) {
  Put(2, {{"HW", 10, "EXC"}});
  EXPECT_EQ(Page().sum,
            (Texts{"The grades that count add up to 10 points.",
                   "No points were possible, so the average is 0.", "The average is 0."}));
}

// 8 x 40 + 45 x 60 = 3020 of 10 x 40 + 50 x 60 = 3400; of 60 points 53.2941, and 2 of extra
// credit; 55.2941 of 60 is 92.1568. Whole numbers: 92, below the 95 of an A.
TEST_F(ExplainedPagesTest, PointsByTypesInWholeNumbers) {
  Current().RoundMode = 1;
  Weigh(kHomework, "40");
  Weigh(kTest, "60");
  Put(3, {{"HW", 10, "8"}, {"T", 50, "45"}, {"X", 5, "2"}, {"P", 10, "5"}});
  const ExplainedPage page = Page();
  EXPECT_EQ(NoteOf(page, 4), "its type has no weight");
  EXPECT_EQ(page.sum,
            (Texts{"The weighted points are 3020 of 3400. Of the 60 points that were possible that "
                   "is 53.2941.",
                   "Extra credit adds 2: 55.2941.",
                   "Points earned: 55.2941 of 60 possible. In percent: 92.1568.",
                   "The average is 92.1568."}));
  EXPECT_EQ(page.rounding,
            (Texts{"Rounded to two decimals, a half up: 92.1568 becomes 92.16.",
                   "Rounded to the whole number, a half up: 92.16 becomes 92.",
                   "92 reaches the minimum of 90 for (A-/EX/4.0), but not that of 95 for "
                   "(A/EX/4.0)."}));
  EXPECT_EQ(page.final_grade, "92 (A-/EX/4.0)");
}

TEST_F(ExplainedPagesTest, PointsByTypesWithNothingEarned) {
  Weigh(kTest, "100");
  Put(3, {{"T", 50, "CUT"}, {"X", 5, "2"}});
  EXPECT_EQ(Page().sum,
            (Texts{"Nothing was earned in a type with a weight, so the average is 0. Extra credit "
                   "alone earns nothing.",
                   "The average is 0."}));
}

TEST_F(ExplainedPagesTest, AnAverageThatReachesNoMinimum) {
  Put(0, {{"Q", 100, "45", "100"}});
  const ExplainedPage page = Page();
  EXPECT_EQ(page.rounding[1], "45 reaches no minimum.");
  EXPECT_EQ(page.final_grade, "55 (F/UNSAT/0.0)");
}

TEST_F(ExplainedPagesTest, AMarkThatIsNoGradeSaysHowItWasRead) {
  Put(0, {{"Q", 100, "85*", "100"}});
  EXPECT_EQ(NoteOf(Page(), 1), "read as 85");
}

TEST_F(ExplainedPagesTest, WhatCannotBeComputedIsSaid) {
  Put(0, {{"Q", 0, "45", "100"}});
  const ExplainedPage page = Page();
  ASSERT_EQ(page.sum.size(), 1U);
  EXPECT_EQ(page.sum[0],
            "The average of Ng, Ada can't be computed: the maximum score is 0 in the grade \"Grade "
            "1\".");
  EXPECT_TRUE(page.final_grade.empty());
}

}  // namespace
}  // namespace tallyroll
