// SPDX-License-Identifier: GPL-3.0-or-later
// Files as Moodle, Sakai and Open edX write them, and what they would do to a class.
#include <gmock/gmock.h>

#include "tests/exchange/exchange_test.h"

namespace tallyroll {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class OtherPreviewsTest : public ExchangeTest {
 protected:
  static ExchangePreview Preview(const std::string& file) {
    const auto format = RecognisedFormat(file);
    EXPECT_TRUE(format) << file;
    return PreviewOfFile(format.value_or(ExchangeFormat::kCanvas), file);
  }
};

TEST_F(OtherPreviewsTest, MoodleNamesItsItemsWithModuleAndKind) {
  const ExchangePreview preview = Preview(
      "First name,Surname,ID number,Institution,Department,Email address,\"Assignment: Essay "
      "(Real)\","
      "\"Assignment: Essay (Percentage)\",\"Assignment: Essay (Feedback)\",\"Unit 1: Oral (Real)\","
      "Course total (Real),Last downloaded from this course\n"
      "Bo,Abel,,,,ABEL@x.org,17.00,85.00 %,\"Well, done\",-,17,1700000000\n"
      "Zo\xC3\xA9,Mu\xC3\xB1oz,8,,,z@x.org,-,-,,9.5,,1700000000\n");
  EXPECT_THAT(
      Lines(preview),
      ElementsAre("+J1 new grade | Unit 1: Oral", "+G2 changed mark | Abel, Bo | Essay | 18>17",
                  "+J3 new mark | Mu\xF1oz, Zo\xE9 | Unit 1: Oral | NEW>9.5"));
  EXPECT_EQ(preview.table.marks[0].comment, "Well, done");
}

TEST_F(OtherPreviewsTest, MoodleSpeaksOtherLanguages) {
  const ExchangePreview preview = Preview(
      "Vorname;Nachname;ID-Nummer;E-Mail-Adresse;Aufgabe: Essay (Punkte)\nBo;Abel;7;;17,5\n");
  EXPECT_THAT(Lines(preview), ElementsAre("+E2 changed mark | Abel, Bo | Essay | 18>17.5"));
}

TEST_F(OtherPreviewsTest, FeedbackWithoutItsMarksIsNoGrade) {
  const ExchangePreview preview =
      Preview("First name,Last name,ID number,Essay (Feedback)\nBo,Abel,7,Good\n");
  EXPECT_THAT(Lines(preview),
              Contains(HasSubstr("D1 cannot be used [\"Essay (Feedback)\" is a comment without")));
}

TEST_F(OtherPreviewsTest, SakaiHasIdAndNameByTheirPlaces) {
  const ExchangePreview preview = Preview(
      "\xEF\xBB\xBFUser,Who,# Section,Essay [20],* Essay,Test #2 [50.5],# Course Grade\r\n"
      "7,\"Abel, Bo\",1,17,Fine,,B\r\n8,\"Mu\xC3\xB1oz, Zo\xC3\xA9\",1,,,,A\r\n");
  EXPECT_THAT(
      Lines(preview),
      ElementsAre("F1 cannot be used | Test #2 [\"50.5\" is no maximum score: it is a whole number "
                  "above 0 here]",
                  "+D2 changed mark | Abel, Bo | Essay | 18>17"));
  EXPECT_EQ(preview.table.marks[0].comment, "Fine");
}

TEST_F(OtherPreviewsTest, SakaiRefusesTitlesTwiceAndOrphanedComments) {
  const ExchangePreview preview =
      Preview("ID,Name,Essay [20],Essay [20],* Oral,[5]\n7,\"Abel, Bo\",17,16,x,\n");
  EXPECT_THAT(Lines(preview),
              Contains(HasSubstr("D1 cannot be used [\"Essay [20]\" stands twice")));
  EXPECT_THAT(Lines(preview), Contains(HasSubstr("E1 cannot be used [\"* Oral\" is a comment")));
  EXPECT_THAT(Lines(preview), Contains(HasSubstr("F1 cannot be used")));
}

TEST_F(OtherPreviewsTest, AGradeReportOfEdxHasPartsOfOne) {
  AddGrade("Homework 1: Sets", 50);
  for (int i = 1; i <= 2; ++i)
    ReDimPreserve(Current().Students[static_cast<std::size_t>(i)].Marks, 3, ShortText("NEW"));
  const ExchangePreview preview = Preview(
      "Student ID,Email,Username,Grade,Homework 1: Sets,Homework 2: Maps,Homework (Avg),Enrollment "
      "Track,Verification Status,Certificate Eligible,Certificate Delivered,Certificate "
      "Type,Enrollment Status\n"
      "31,abel@x.org,bo,0.8,0.75,Not Attempted,0.4,audit,,N,N,,enrolled\n"
      "32,z@x.org,8,0.8,1.0,0.335,0.4,audit,,N,N,,enrolled\n");
  // 0.75 of 50, and 0.335 of the 100 that a new grade has.
  EXPECT_THAT(Lines(preview),
              ElementsAre("+F1 new grade | Homework 2: Maps",
                          "+E2 new mark | Abel, Bo | Homework 1: Sets | NEW>37.5",
                          "+E3 new mark | Mu\xF1oz, Zo\xE9 | Homework 1: Sets | NEW>50",
                          "+F3 new mark | Mu\xF1oz, Zo\xE9 | Homework 2: Maps | NEW>33.5"));
}

TEST_F(OtherPreviewsTest, BulkGradesOfEdxTakeTheNewMarkBeforeTheOld) {
  const ExchangePreview preview = Preview(
      "user_id,username,student_key,course_id,track,cohort,name-ab,grade-ab,original_grade-ab,"
      "previous_override-ab,new_override-ab\n"
      "1,abel@x.org,,course-v1:X,,,Essay,15,15,,17\n"
      "2,zoe,8,course-v1:X,,,Essay,12,12,,\n"
      "3,who,7,course-v1:Y,,,Essay,1,1,,\n");
  EXPECT_THAT(Lines(preview),
              ElementsAre("+K2 changed mark | Abel, Bo | Essay | 18>17",
                          "+H3 changed mark | Mu\xF1oz, Zo\xE9 | Essay | ABS>12",
                          "D4 cannot be used [\"course-v1:Y\" is another course than on the lines "
                          "above]"));
  EXPECT_EQ(preview.table.course, "course-v1:X");
  EXPECT_EQ(preview.table.grades[0].key, "ab");
}

TEST_F(OtherPreviewsTest, PointsOfProblemsHaveALineForEachStudentAndProblem) {
  const ExchangePreview preview = Preview(
      "user_id,username,full_name,student_uid,enrolled,track,cohort,block_id,title,"
      "date_last_graded,who_last_graded,Previous Points,New Points\n"
      "1,abel@x.org,Bo Abel,7,True,,,b1,Essay,,,15,17\n"
      "2,zoe,Zo\xC3\xA9 Mu\xC3\xB1oz,8,True,,,b1,Essay,,,12,\n"
      "1,abel@x.org,Bo Abel,7,True,,,b2,Maps,,,,4\n"
      "1,abel@x.org,Bo Abel,7,True,,,b2,Maps,,,,5\n");
  EXPECT_THAT(
      Lines(preview),
      ElementsAre(
          "+H4 new grade | Maps", "+M2 changed mark | Abel, Bo | Essay | 18>17",
          "+L3 changed mark | Mu\xF1oz, Zo\xE9 | Essay | ABS>12",
          "+M4 new mark | Abel, Bo | Maps | NEW>4",
          "A5 cannot be used [\"1\" has points for this problem on an earlier line already]"));
}

TEST_F(OtherPreviewsTest, ATitleThatAClassCannotHoldTakesItsMarksAlong) {
  const ExchangePreview preview = Preview(
      "user_id,username,student_key,course_id,track,cohort,name-ab,grade-ab,name-cd,grade-cd\n"
      "1,,7,course-v1:X,,,\xCE\xA9 test,15,Oral,3\n");
  EXPECT_THAT(Lines(preview),
              ElementsAre("G1 cannot be used | ? test [\"<U+03A9> test\" is a title "
                          "that a class file cannot hold]",
                          "+I1 new grade | Oral", "+J2 new mark | Abel, Bo | Oral | NEW>3"));
  const ExchangePreview too_long = Preview(
      "user_id,student_key,course_id,name-ab,grade-ab\n1,7,c," + std::string(65536, 'x') + ",15\n");
  EXPECT_THAT(Lines(too_long),
              Contains(HasSubstr("xxx...\" is a title that a class file cannot hold]")));
}

TEST_F(OtherPreviewsTest, WhatIsNoneOfThemIsNotGuessed) {
  EXPECT_FALSE(RecognisedFormat("id,name,essay\n1,Abel,5\n"));
  EXPECT_FALSE(RecognisedFormat(""));
  EXPECT_FALSE(RecognisedFormat(std::string("\0\1\2", 3)));
}

}  // namespace
}  // namespace tallyroll
