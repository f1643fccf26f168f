// SPDX-License-Identifier: GPL-3.0-or-later
// Figures beside a class that a teacher can check on a sheet of paper.
#include <gtest/gtest.h>

#include "insight/class_glance.h"
#include "insight/grade_glance.h"
#include "insight/student_glance.h"
#include "tests/analysis/analysis_test.h"

namespace tallyroll {
namespace {

// Three students, two grades of 100 and one of 20, by points.
class GlanceTest : public AnalysisTest {
 protected:
  GlanceTest() {
    AddGrade("Quiz 1", "Q ");
    AddGrade("Test 1", "T ").lowpass = "70";
    AddGrade("Bonus", "X ").mvalue = 20;
    Enrol("Ng", {"90", "70", "NEW"});
    Enrol("Orr", {"60", "ABS", "5"});
    Enrol("Poe", {"NEW", "NEW", "NEW"});
    Current().Method = 2;
    PrepareWeights();
  }
};

// 90 + 70 of 200 is 80, which is a B-. The quiz needs 65 of 100, the test 70.
TEST_F(GlanceTest, OfAStudent) {
  const StudentGlance ng = LookAtStudent(1);
  EXPECT_EQ(ng.name, "Ada Ng");
  EXPECT_EQ(ng.initials, "AN");
  EXPECT_EQ(ng.id, "101");
  EXPECT_TRUE(ng.has_method);
  EXPECT_EQ(ng.average, "80");
  EXPECT_EQ(ng.final_grade, "80 B-");
  EXPECT_EQ(ng.final_words, "80 (B-/SAT/3.0)");
  EXPECT_FALSE(ng.failing);
  const std::vector<GlancePoint> line = {{1, 90, 65, false, false}, {2, 70, 70, false, false}};
  EXPECT_EQ(ng.line, line);
  EXPECT_EQ(ng.missing, (std::vector<MissingMark>{{3, "NEW", "Bonus"}}));
  EXPECT_FALSE(ng.has_attendance);
}

// 60 of the 100 that he could get, and 5 of extra credit: 65, below 66.5 a D.
TEST_F(GlanceTest, OfAStudentWhoMissesATest) {
  const StudentGlance orr = LookAtStudent(2);
  EXPECT_EQ(orr.average, "65");
  EXPECT_EQ(orr.final_grade, "65 D");
  const std::vector<GlancePoint> line = {{1, 60, 65, false, true}, {2, 0, 70, true, false}};
  EXPECT_EQ(orr.line, line);
  EXPECT_EQ(orr.missing, (std::vector<MissingMark>{{2, "ABS", "Test 1"}}));
}

TEST_F(GlanceTest, OfNobody) {
  EXPECT_EQ(LookAtStudent(0).student, 0);
  EXPECT_EQ(LookAtStudent(4).student, 0);
}

TEST_F(GlanceTest, AClassWithoutAMethodHasNoAverages) {
  Current().Method = 5;
  EXPECT_FALSE(LookAtStudent(1).has_method);
  EXPECT_EQ(LookAtStudent(1).average, "");
  EXPECT_FALSE(LookAtClass().average);
  EXPECT_EQ(RankOf(LookAtClass(), 1).place, 0);
}

TEST_F(GlanceTest, AnAverageThatCannotBeMadeTellsWhy) {
  Current().Method = 0;
  Current().Instruments[1].mvalue = 0;
  PrepareWeights();
  EXPECT_NE(LookAtStudent(1).error, "");
  EXPECT_EQ(LookAtStudent(1).average, "");
}

// 80 and 65 are 72.5 in the mean; who has no mark that counts has no part in it.
TEST_F(GlanceTest, OfTheClass) {
  Current().description = "Mathematics 8  ";
  const ClassGlance glance = LookAtClass();
  EXPECT_EQ(glance.description, "Mathematics 8");
  EXPECT_EQ(glance.students, 3);
  EXPECT_EQ(glance.grades, 3);
  EXPECT_EQ(WordsOfMethod(glance.method), "Points");
  EXPECT_EQ(glance.average, Money("72.5"));
  EXPECT_EQ(RankOf(glance, 1).place, 1);
  EXPECT_EQ(RankOf(glance, 2).place, 2);
  EXPECT_EQ(RankOf(glance, 2).of, 2);
  EXPECT_EQ(RankOf(glance, 3).place, 0);
}

TEST_F(GlanceTest, EqualAveragesShareThePlace) {
  Enrol("Quin", {"100", "60", "NEW"});
  Enrol("Roe", {"10", "10", "NEW"});
  const ClassGlance glance = LookAtClass();
  EXPECT_EQ(RankOf(glance, 1).place, 1);
  EXPECT_EQ(RankOf(glance, 4).place, 1);
  EXPECT_EQ(RankOf(glance, 2).place, 3);
  EXPECT_EQ(RankOf(glance, 5).place, 4);
}

// 65.01, 65 and 65 are 195.01, a third of it 65.0033 or 65; 65.01 and 65 are 65.005 in the mean,
// which is raised to 65.01.
TEST_F(GlanceTest, TheClassAverageHasTwoDecimals) {
  Current().Students[1].Marks[1] = "65.01";
  Current().Students[1].Marks[2] = "ABS";
  Enrol("Quin", {"65", "ABS", "NEW"});
  EXPECT_EQ(LookAtClass().average, Money("65"));
  Current().Students[4].Marks[1] = "ABS";
  EXPECT_EQ(LookAtClass().average, Money("65.01"));
}

// 90 and 60 are 75 in the mean and in the middle; 60 is below the 65 that pass.
TEST_F(GlanceTest, OfAGrade) {
  const GradeGlance quiz = LookAtGrade(1, 2);
  EXPECT_EQ(quiz.title, "Quiz 1");
  EXPECT_EQ(quiz.code, "Qui");
  EXPECT_EQ(quiz.maximum, 100);
  EXPECT_EQ(quiz.mark, "60");
  EXPECT_TRUE(quiz.failing);
  EXPECT_EQ(quiz.to_pass, "65");
  EXPECT_EQ(quiz.average, "75");
  EXPECT_EQ(quiz.median, "75");
  EXPECT_EQ(quiz.counted, 2);
  EXPECT_EQ(quiz.missing, 1);
  EXPECT_EQ(quiz.failed, 1);
  EXPECT_EQ(quiz.own, 6);
  EXPECT_EQ(quiz.tens[6], (MarksInTen{1, 1}));
  EXPECT_EQ(quiz.tens[9], (MarksInTen{1, 0}));
}

TEST_F(GlanceTest, AMarkAboveTheMaximumStandsInTheLastTen) {
  Current().Students[1].Marks[1] = "110";
  EXPECT_EQ(LookAtGrade(1, 1).tens[9].count, 1);
  EXPECT_EQ(LookAtGrade(1, 1).own, 9);
}

TEST_F(GlanceTest, AGradeThatNobodyHasYet) {
  for (std::size_t s = 1; s <= 3; ++s) Current().Students[s].Marks[1] = "NEW";
  const GradeGlance glance = LookAtGrade(1, 1);
  EXPECT_EQ(glance.average, "");
  EXPECT_EQ(glance.median, "");
  EXPECT_EQ(glance.mark, "NEW");
  EXPECT_EQ(glance.own, -1);
  EXPECT_EQ(glance.missing, 3);
}

TEST_F(GlanceTest, OfNoGrade) {
  EXPECT_EQ(LookAtGrade(0, 1).grade, 0);
  EXPECT_EQ(LookAtGrade(4, 1).grade, 0);
}

}  // namespace
}  // namespace tallyroll
