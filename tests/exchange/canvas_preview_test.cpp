// SPDX-License-Identifier: GPL-3.0-or-later
// Canvas's grade book as its exporter writes it, and what it would do to a class.
#include <gmock/gmock.h>

#include "tests/exchange/exchange_test.h"

namespace tallyroll {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class CanvasPreviewTest : public ExchangeTest {
 protected:
  static ExchangePreview Preview(const std::string& file, const StudentsByRow& chosen = {}) {
    EXPECT_EQ(RecognisedFormat(file), ExchangeFormat::kCanvas);
    return PreviewOfFile(ExchangeFormat::kCanvas, file, chosen);
  }
};

constexpr const char* kHead =
    "Student,ID,SIS User ID,SIS Login ID,Section,Notes,Essay (4711),Quiz (12),Assignments Current "
    "Score,Final Score,Final Grade\r\n"
    ",,,,,,Manual Posting,,,,\r\n"
    "    Points Possible,,,,,,20.00,10.0,(read only),(read only),(read only)\r\n";

TEST_F(CanvasPreviewTest, EachMarkStandsBesideTheOneThatIsHere) {
  const ExchangePreview preview =
      Preview(std::string("\xEF\xBB\xBF") + kHead +
              "\"Abel, Bo\",901,7,abel,Algebra,nice,17.50,8.00,87.5,80,B\r\n"
              "\"Mu\xC3\xB1oz, Zo\xC3\xA9\",902,8,zoe,Algebra,,EX,N/A,,,\r\n");
  EXPECT_EQ(preview.refusal, "");
  EXPECT_THAT(Lines(preview), ElementsAre("+H1 new grade | Quiz | >10",
                                          "+G4 changed mark | Abel, Bo | Essay | 18>17.5",
                                          "+H4 new mark | Abel, Bo | Quiz | NEW>8",
                                          "+G5 changed mark | Mu\xF1oz, Zo\xE9 | Essay | ABS>EXC"));
  EXPECT_THAT(preview.table.notes, ElementsAre(HasSubstr("Notes")));
  EXPECT_FALSE(preview.Blocked());
}

TEST_F(CanvasPreviewTest, WhatCannotBeUsedIsToldWithLineAndCellAndBlocks) {
  const ExchangePreview preview = Preview(std::string(kHead) +
                                          "\"Abel, Bo\",901,7,,A,,17?,8,,,\r\n"
                                          "\"Stranger, New\",903,99,,A,,5,5,,,\r\n");
  EXPECT_THAT(Lines(preview),
              ElementsAre("+H1 new grade | Quiz | >10", "G4 cannot be used [\"17?\" is no mark]",
                          "+H4 new mark | Abel, Bo | Quiz | NEW>8",
                          "line 5 unknown student | Stranger, New"));
  EXPECT_TRUE(preview.Blocked());
}

TEST_F(CanvasPreviewTest, ABlankCellIsNoMarkAndChangesNothing) {
  const ExchangePreview preview = Preview(std::string(kHead) + "\"Abel, Bo\",1,7,,A,,,-,,,\r\n");
  EXPECT_THAT(Lines(preview), ElementsAre("+H1 new grade | Quiz | >10"));
}

TEST_F(CanvasPreviewTest, SemicolonsAndDecimalCommasAreNumbers) {
  const ExchangePreview preview = Preview(
      "Student;ID;Section;Essay (4711)\n    Points Possible;;;20,0\n\"Abel, Bo\";1;A;17,5\n");
  EXPECT_THAT(Lines(preview), ElementsAre("+D3 changed mark | Abel, Bo | Essay | 18>17.5"));
}

TEST_F(CanvasPreviewTest, AStudentOnTwoLinesIsTakenFromNeither) {
  const ExchangePreview preview = Preview(std::string(kHead) +
                                          "\"Abel, Bo\",1,7,,A,,17,,,,\r\n"
                                          "\"Abel, Bo\",1,7,,A,,16,,,,\r\n");
  EXPECT_THAT(Lines(preview),
              ElementsAre("+H1 new grade | Quiz | >10",
                          "line 4 duplicate | Abel, Bo [stands on the lines 4, 5]",
                          "line 5 duplicate | Abel, Bo [stands on the lines 4, 5]"));
}

TEST_F(CanvasPreviewTest, TwoStudentsOfOneNameAreToldApartByIdAlone) {
  Enrol("Abel", "Bo", "9", {"1", "2"});
  const ExchangePreview preview = Preview(
      "Student,ID,SIS User ID,Section,Essay\n    Points Possible,,,,20\n"
      "\"Abel, Bo\",1,9,A,3\n\"Abel, Bo\",2,,A,4\n");
  EXPECT_THAT(Lines(preview), ElementsAre("+E3 changed mark | Abel, Bo | Essay | 1>3",
                                          "line 4 unknown student | Abel, Bo"));
  EXPECT_EQ(preview.changes[0].student, 3);
}

TEST_F(CanvasPreviewTest, AnUnknownLineIsAboutWhomTheTeacherChooses) {
  const std::string file =
      "Student,ID,SIS User ID,Section,Essay\n    Points Possible,,,,20\n\"Abel, "
      "Robert\",1,0007x,A,3\n";
  const ExchangePreview unknown = Preview(file);
  ASSERT_EQ(unknown.changes.size(), 1u);
  ASSERT_EQ(unknown.changes[0].guesses.size(), 1u);
  EXPECT_EQ(unknown.changes[0].guesses[0].student, 1);
  EXPECT_EQ(unknown.changes[0].guesses[0].by, "last name");
  EXPECT_THAT(Lines(Preview(file, {{0, 1}})),
              ElementsAre("+E3 changed mark | Abel, Bo | Essay | 18>3"));
}

TEST_F(CanvasPreviewTest, LeadingZerosLostByASpreadsheetAreAGuessAndNoMatch) {
  const ExchangePreview preview = Preview(
      "Student,ID,SIS User ID,Section,Essay\n    Points Possible,,,,20\n\"Bell, Bob\",1,007,A,3\n");
  ASSERT_EQ(preview.changes.size(), 1u);
  ASSERT_EQ(preview.changes[0].guesses.size(), 1u);
  EXPECT_EQ(preview.changes[0].guesses[0].by, "ID");
}

TEST_F(CanvasPreviewTest, AnotherMaximumIsShownAndNotTicked) {
  const ExchangePreview preview = Preview(
      "Student,ID,Section,Essay,Test\n    Points Possible,,,25,99.5\n\"Abel, Bo\",1,A,18,\n");
  EXPECT_THAT(Lines(preview),
              ElementsAre("D1 maximum differs | Essay | 20>25",
                          "E1 maximum differs | Test | 100>99.5 [a maximum score is a whole number "
                          "above 0 here]",
                          "D3 nothing to do | Abel, Bo | Essay | 18>18"));
  EXPECT_TRUE(CanTick(preview.changes[0]));
  EXPECT_FALSE(CanTick(preview.changes[1]));
}

TEST_F(CanvasPreviewTest, QuotedLineEndsCountForTheLinesBelow) {
  const ExchangePreview preview =
      Preview("Student,ID,Section,\"Es\nsay\"\n    Points Possible,,,20\n\"Abel, Bo\",1,A,x1\n");
  EXPECT_EQ(Lines(preview).back(), "D4 cannot be used [\"x1\" is no mark]");
}

TEST_F(CanvasPreviewTest, AFileWithoutItsColumnsIsRefusedWithTheirNames) {
  EXPECT_EQ(PreviewOfFile(ExchangeFormat::kCanvas, "Student,Essay\nA,1\n").refusal,
            "has no column \"ID\", \"Section\"");
  EXPECT_EQ(PreviewOfFile(ExchangeFormat::kCanvas, "Student,ID,Section,Essay\n").refusal,
            "holds no students");
  EXPECT_EQ(PreviewOfFile(ExchangeFormat::kCanvas, std::string("a\0b", 3)).refusal,
            "is not a text file");
}

TEST_F(CanvasPreviewTest, AMarkOfMoreThanFiveCharactersIsRoundedAndSaysSo) {
  const ExchangePreview preview = Preview(
      "Student,ID,Section,Test\n    Points Possible,,,100\n\"Abel, Bo\",1,A,100.25\n"
      "\"Mu\xC3\xB1oz, Zo\xC3\xA9\",2,A,123456\n");
  EXPECT_THAT(
      Lines(preview),
      ElementsAre("+D3 new mark | Abel, Bo | Test | NEW>100.3 [rounded from 100.25]",
                  "D4 cannot be used | Mu\xF1oz, Zo\xE9 | Test [\"123456\" has more than five "
                  "characters]"));
}

TEST_F(CanvasPreviewTest, ExactlyTheTickedLinesAreCarriedOut) {
  ExchangePreview preview = Preview(std::string(kHead) +
                                    "\"Abel, Bo\",901,7,abel,A,,17.50,8.00,,,\r\n"
                                    "\"Mu\xC3\xB1oz, Zo\xC3\xA9\",902,8,zoe,A,,19,3,,,\r\n");
  preview.changes[1].ticked = false;  // Abel's essay
  const TakenChanges taken = TakeTicked(preview);
  EXPECT_EQ(taken.grades, 1);
  EXPECT_EQ(taken.marks, 3);
  EXPECT_EQ(MarkAt(1, 1), "18");
  EXPECT_EQ(MarkAt(1, 3), "8");
  EXPECT_EQ(MarkAt(2, 1), "19");
  EXPECT_EQ(MarkAt(2, 3), "3");
  EXPECT_EQ(Current().Instruments[3].title, "Quiz");
  EXPECT_EQ(Current().Instruments[3].mvalue, 10);
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(CanvasPreviewTest, MarksOfAGradeThatIsNotTickedAreNotTaken) {
  ExchangePreview preview = Preview(std::string(kHead) + "\"Abel, Bo\",901,7,abel,A,,,8.00,,,\r\n");
  preview.changes[0].ticked = false;
  EXPECT_EQ(TakeTicked(preview).marks, 0);
  EXPECT_EQ(Current().NumInstruments, 2);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(CanvasPreviewTest, ANewGradeIsNewForWhomTheFileLacks) {
  ExchangePreview preview = Preview(std::string(kHead) + "\"Abel, Bo\",901,7,abel,A,,,8.00,,,\r\n");
  TakeTicked(preview);
  EXPECT_EQ(MarkAt(2, 3), "NEW");
}

TEST_F(CanvasPreviewTest, FiveThousandStudentsKeepTheirPlaces) {
  std::string file = "Student,ID,SIS User ID,Section,Essay\n    Points Possible,,,,20\n";
  for (int i = 0; i < 5000; ++i) {
    const std::string id = std::to_string(10'000 + i);
    Enrol("Last" + id, "First", id, {"NEW", "NEW"});
    file += "\"Last" + id + ", First\"," + std::to_string(i) + "," + id + ",A," +
            std::to_string(i % 21) + "\n";
  }
  ExchangePreview preview = Preview(file);
  EXPECT_EQ(TakeTicked(preview).marks, 5000);
  EXPECT_EQ(MarkAt(3, 1), "0");
  EXPECT_EQ(MarkAt(5002, 1), std::to_string(4999 % 21));
}

}  // namespace
}  // namespace tallyroll
