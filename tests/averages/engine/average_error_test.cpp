// SPDX-License-Identifier: GPL-3.0-or-later
// Why there is no average: what the error holds, and its words.
#include "base/run_time_error.h"
#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

class AverageErrorTest : public AverageTest {
 protected:
  void SetUp() override {
    AverageTest::SetUp();
    Put(0, {{"Q", 10, "8", "50"}, {"Q", 10, "9", "50"}});
    Current().Students[1].lastname = " Doe ";
    Current().Students[1].firstname = "Ann ";
    Current().Instruments[2].title = " Rivers ";
  }
};

TEST_F(AverageErrorTest, EachNumberHasItsReason) {
  EXPECT_EQ(AverageErrorText({kErrorOverflow, 1, 0}),
            "The average of Doe, Ann can't be computed: a number is too large.");
  EXPECT_EQ(AverageErrorText({kErrorDivisionByZero, 1, 0}),
            "The average of Doe, Ann can't be computed: the maximum score is 0.");
  EXPECT_EQ(AverageErrorText({kErrorSubscript, 0, 0}),
            "The average can't be computed: there is no such student.");
  EXPECT_EQ(AverageErrorText({13, 1, 0}), "The average of Doe, Ann can't be computed: error 13.");
}

TEST_F(AverageErrorTest, OnlyAStudentOfTheClassIsNamed) {
  ReDimPreserve(Current().Students, 2);
  Current().Students[2].lastname = "Roe";
  Current().Students[2].firstname = "Jo";
  EXPECT_EQ(AverageErrorText({kErrorOverflow, 2, 0}),
            "The average of Roe, Jo can't be computed: a number is too large.");
  for (const i16 student : {i16{0}, i16{-1}, i16{3}}) {
    EXPECT_EQ(AverageErrorText({kErrorOverflow, student, 0}),
              "The average can't be computed: a number is too large.")
        << student;
  }
}

TEST_F(AverageErrorTest, OnlyAGradeOfTheClassIsNamed) {
  EXPECT_EQ(AverageErrorText({kErrorOverflow, 0, 1}),
            "The average can't be computed: a number is too large in the grade \"Grade 1\".");
  EXPECT_EQ(AverageErrorText({kErrorOverflow, 0, 2}),
            "The average can't be computed: a number is too large in the grade \"Rivers\".");
  for (const i16 grade : {i16{0}, i16{-1}, i16{3}}) {
    EXPECT_EQ(AverageErrorText({kErrorOverflow, 0, grade}),
              "The average can't be computed: a number is too large.")
        << grade;
  }
}

TEST_F(AverageErrorTest, ASumThatIsTooLargeIsNoFaultOfOneGrade) {
  // By items 9e12 each: the sum fits, a hundred times of it does not.
  Put(0, {{"Q", 100, "9e12", "100"}, {"Q", 100, "9e12", "100"}});
  AverageError error = AverageByItems(totals);
  EXPECT_EQ(error.number, kErrorOverflow);
  EXPECT_EQ(error.student, 1);
  EXPECT_EQ(error.grade, 0);

  Put(2, {{"Q", 100, "9e13"}, {"Q", 100, "9e13"}});
  Points points;
  error = AverageByPoints(points, totals);
  EXPECT_EQ(error.number, kErrorOverflow);
  EXPECT_EQ(error.grade, 0);
}

TEST_F(AverageErrorTest, NothingPossibleByPointsAndTypesIsNoFaultOfOneGrade) {
  Weigh(kQuiz, "25");
  Put(3, {{"Q", 0, "5"}});
  Points points;
  const AverageError error = AverageByPointsAndTypes(points, totals);
  EXPECT_EQ(error.number, kErrorDivisionByZero);
  EXPECT_EQ(error.grade, 0);
  EXPECT_EQ(points, Points());
}

}  // namespace
}  // namespace tallyroll
