// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/grades/frmMarks_test.h"

namespace tallyroll {
namespace {

TEST_F(FrmMarksTest, AQuizUnderMethod1InAClassWithoutOneForgetsTheMethod) {
  Give("Essay", "E", "E", {"1", "2", "3"});
  UseMethod(1);
  AddQuiz();
  ExpectMethodForgotten();
}

TEST_F(FrmMarksTest, AQuizUnderMethod1InAClassWithOneKeepsTheMethod) {
  Give("Quiz", "Q", "Q", {"1", "2", "3"});
  UseMethod(1);
  AddQuiz();
  ExpectMethodKept(1);
}

TEST_F(FrmMarksTest, Method3IsAsMethod1) {
  Give("Quiz", "Q", "Q ", {"1", "2", "3"});
  UseMethod(3);
  AddQuiz();
  ExpectMethodKept(3);
}

TEST_F(FrmMarksTest, UnderMethod0AGradeAlwaysForgetsTheMethod) {
  Give("Quiz", "Q", "Q", {"1", "2", "3"});
  UseMethod(0);
  AddQuiz();
  ExpectMethodForgotten();
}

TEST_F(FrmMarksTest, UnderMethod2AGradeNeverDoes) {
  UseMethod(2);
  AddQuiz();
  ExpectMethodKept(2);
}

TEST_F(FrmMarksTest, WithoutAMethodTheSettingsAreEmptied) {
  UseMethod(5);
  AddQuiz();
  ExpectMethodForgotten();
}

TEST_F(FrmMarksTest, ATypeNewToTheClassForgetsMethod3Too) {
  Give("Essay", "E", "E", {"1", "2", "3"});
  UseMethod(3);
  AddQuiz();
  ExpectMethodForgotten();
}

}  // namespace
}  // namespace tallyroll
