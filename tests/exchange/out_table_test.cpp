// SPDX-License-Identifier: GPL-3.0-or-later
// What goes out to other systems, and what they would misread.
#include <gmock/gmock.h>

#include "companion/foreign_ids.h"
#include "exchange/formats/zip_file.h"
#include "exchange/kept_ids.h"
#include "exchange/out_table.h"
#include "tests/exchange/exchange_test.h"

namespace tallyroll {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class OutTableTest : public ExchangeTest {
 protected:
  static std::string Written(ExchangeFormat format, const OutSigns& signs = {}) {
    const ForeignFile file = OutFile(format, MakeOutTable(format, signs));
    EXPECT_EQ(file.refusal, "");
    return file.bytes;
  }
  static std::vector<std::string> Warnings(ExchangeFormat format) {
    std::vector<std::string> texts;
    for (const OutWarning& warning : MakeOutTable(format, {}).warnings)
      texts.push_back(warning.text + " " + warning.remedy);
    return texts;
  }
  static void SetMark(int student, int grade, const std::string& mark) {
    Current().Students[static_cast<std::size_t>(student)].Marks[static_cast<std::size_t>(grade)] =
        mark;
  }
};

TEST_F(OutTableTest, CanvasGetsItsColumnsAndItsLineOfPoints) {
  SetMark(2, 1, "EXC");
  EXPECT_EQ(Written(ExchangeFormat::kCanvas),
            "Student,ID,SIS User ID,SIS Login ID,Section,Essay,Test\r\n"
            "    Points Possible,,,,,20,100\r\n"
            "\"Abel, Bo\",,7,,Algebra,18,\r\n"
            "\"Mu\xC3\xB1oz, Zo\xC3\xA9\",,8,,Algebra,EX,B+\r\n");
}

TEST_F(OutTableTest, MoodleGetsSmallAddressesAndNoLetters) {
  Current().Students[1].email = "Abel@X.org";
  EXPECT_EQ(Written(ExchangeFormat::kMoodle),
            "First name,Last name,ID number,Email address,Essay (Real),Test (Real)\r\n"
            "Bo,Abel,7,abel@x.org,18,-\r\n"
            "Zo\xC3\xA9,Mu\xC3\xB1oz,8,,-,-\r\n");
  EXPECT_THAT(Warnings(ExchangeFormat::kMoodle),
              ElementsAre("\"Test\" has 1 marks that are no numbers there. Leave them out."));
}

TEST_F(OutTableTest, SakaiGetsIdAndNameFirstAndPointsInBrackets) {
  EXPECT_EQ(Written(ExchangeFormat::kSakai),
            "\xEF\xBB\xBFStudent ID,Name,Essay [20],Test [100]\r\n"
            "7,\"Abel, Bo\",18,\r\n8,\"Mu\xC3\xB1oz, Zo\xC3\xA9\",,B+\r\n");
}

// A class has no place for a comment; it is kept beside it, and said of its own mark alone.
TEST_F(OutTableTest, ACommentGoesOutAgainWhileItsMarkStands) {
  Current().FileName = Path("class.TYR");
  ExchangePreview preview = PreviewOfFile(
      ExchangeFormat::kSakai,
      "ID,Name,Essay [20],* Essay,Test [100],* Test\n"
      "7,\"Abel, Bo\",18,=well done,70,Late\n8,\"Mu\xC3\xB1oz, Zo\xC3\xA9\",,,B+,Na\xC3\xAFve\n");
  for (Change& change : preview.changes)
    if (change.kind == ChangeKind::kNewMark) change.ticked = false;  // Abel's 70
  TakeTicked(preview);
  ASSERT_EQ(KeepIdsOf(ExchangeFormat::kSakai, preview), "");
  EXPECT_EQ(Written(ExchangeFormat::kSakai),
            "\xEF\xBB\xBFStudent ID,Name,Essay [20],* Essay,Test [100],* Test\r\n"
            "7,\"Abel, Bo\",18,'=well done,,\r\n"
            "8,\"Mu\xC3\xB1oz, Zo\xC3\xA9\",,,B+,Na\xC3\xAFve\r\n");
  EXPECT_THAT(Written(ExchangeFormat::kMoodle), Not(HasSubstr("Feedback")));
  SetMark(1, 1, "19");
  EXPECT_THAT(Written(ExchangeFormat::kSakai), Not(HasSubstr("well done")));
}

TEST_F(OutTableTest, SpecialMarksGoOutAsTheTeacherChooses) {
  OutSigns signs;
  EXPECT_EQ(TakeSigns("ABS=zero,cut=nothing", signs), "");
  EXPECT_EQ(SignsText(signs), "ABS=zero,EXC=own,CUT=nothing,NON=zero,NEW=nothing");
  EXPECT_THAT(Written(ExchangeFormat::kCanvas, signs), HasSubstr("Algebra,0,B+\r\n"));
  EXPECT_THAT(TakeSigns("ABS=two", signs), HasSubstr("\"ABS=two\" is none of"));
  EXPECT_NE(TakeSigns("XYZ=zero", signs), "");
  EXPECT_NE(TakeSigns("ABS", signs), "");
}

TEST_F(OutTableTest, TheChoiceIsRememberedForEachFormat) {
  OutSigns signs;
  TakeSigns("ABS=zero", signs);
  RememberSigns(ExchangeFormat::kSakai, signs);
  EXPECT_EQ(RememberedSigns(ExchangeFormat::kSakai), signs);
  EXPECT_EQ(RememberedSigns(ExchangeFormat::kMoodle), OutSigns());
}

TEST_F(OutTableTest, CanvasIsWarnedOfTitlesThatItDropsOrTakesForAnIdentifier) {
  Current().Instruments[1].title = "My Final Score";
  Current().Instruments[2].title = "Test (2)";
  EXPECT_THAT(Warnings(ExchangeFormat::kCanvas),
              ElementsAre("\"My Final Score\" is taken for one of its totals and dropped. Write "
                          "\"My Final-Score\".",
                          "\"Test (2)\" is taken for the assignment with that number. Write \"Test "
                          "- 2\"."));
  EXPECT_THAT(Written(ExchangeFormat::kCanvas), HasSubstr("Section,My Final-Score,Test - 2\r\n"));
  OutTable out = MakeOutTable(ExchangeFormat::kCanvas, {});
  for (OutWarning& warning : out.warnings) warning.mended = false;
  EXPECT_THAT(OutFile(ExchangeFormat::kCanvas, out).bytes,
              HasSubstr("Section,My Final Score,Test (2)\r\n"));
}

TEST_F(OutTableTest, SakaiIsWarnedOfBracketsHashesAndTitlesTwice) {
  Current().Instruments[1].title = "Essay [draft]";
  Current().Instruments[2].title = "#2";
  AddGrade("Oral", 5);
  AddGrade("Oral", 5);
  EXPECT_THAT(Warnings(ExchangeFormat::kSakai),
              ElementsAre(HasSubstr("ends there at its bracket. Write \"Essay (draft)\"."),
                          HasSubstr("passed over because of its first sign. Write \"2\"."),
                          HasSubstr("stands twice among the titles. Write \"Oral - 2\".")));
  EXPECT_THAT(Written(ExchangeFormat::kSakai),
              HasSubstr("Name,Essay (draft) [20],2 [100],Oral [5],Oral - 2 [5]\r\n"));
}

TEST_F(OutTableTest, MoreThanTwoDecimalsAreRoundedWhereTheyWouldBeLost) {
  SetMark(1, 1, "1.125");
  EXPECT_THAT(Warnings(ExchangeFormat::kCanvas),
              ElementsAre("\"Essay\" has 1 marks with more than two decimals. Round them to two."));
  EXPECT_THAT(Written(ExchangeFormat::kCanvas), HasSubstr("Algebra,1.13,\r\n"));
}

TEST_F(OutTableTest, NoFieldIsAFormula) {
  Current().Students[1].lastname = "=1+1";
  Current().Instruments[1].title = "@SUM(A1)";
  for (const ExchangeFormat format :
       {ExchangeFormat::kCanvas, ExchangeFormat::kMoodle, ExchangeFormat::kSakai}) {
    const std::string file = Written(format);
    for (const char* formula : {",=", "\n=", ",@", "\n@", ",\"=", "\n\"=", ",\"@"})
      EXPECT_EQ(file.find(formula), std::string::npos) << file;
  }
}

TEST_F(OutTableTest, EdxWantsItsOwnIdentifiers) {
  EXPECT_THAT(OutFile(ExchangeFormat::kEdx, MakeOutTable(ExchangeFormat::kEdx, {})).refusal,
              HasSubstr("has no course to go to"));
}

TEST_F(OutTableTest, IdentifiersOfAFileThatWasTakenGoOutAgain) {
  Current().FileName = Path("class.TYR");
  ExchangePreview preview =
      PreviewOfFile(ExchangeFormat::kEdx,
                    "user_id,username,student_key,course_id,track,cohort,name-ab,grade-ab\n"
                    "31,bo,7,course-v1:X,,,Essay,17\n");
  TakeTicked(preview);
  ASSERT_EQ(KeepIdsOf(ExchangeFormat::kEdx, preview), "");
  EXPECT_EQ(
      Written(ExchangeFormat::kEdx),
      "user_id,username,student_key,course_id,track,cohort,name-ab,grade-ab,original_grade-ab,"
      "previous_override-ab,new_override-ab\r\n31,,7,course-v1:X,,,Essay,,,,17\r\n");
  EXPECT_EQ(ForeignIds(Path("class.TYR"), "canvas").ids.size(), 0u);
}

TEST_F(OutTableTest, AKeptIdentifierFindsTheGradeThatIsCalledOtherwiseThere) {
  Current().FileName = Path("class.TYR");
  const std::string file =
      "Student,ID,SIS User ID,Section,Essay (4711)\n    Points Possible,,,,20\n";
  ExchangePreview first = PreviewOfFile(ExchangeFormat::kCanvas, file + "\"Abel, Bo\",901,7,A,1\n");
  ASSERT_EQ(KeepIdsOf(ExchangeFormat::kCanvas, first), "");
  std::string renamed = file + "\"Miller, Bo\",901,,A,2\n";
  renamed.replace(renamed.find("Essay"), 5, "Paper");
  EXPECT_THAT(Lines(PreviewOfFile(ExchangeFormat::kCanvas, renamed)),
              ElementsAre("+E3 changed mark | Abel, Bo | Essay | 18>2"));
  EXPECT_THAT(Written(ExchangeFormat::kCanvas), HasSubstr("Essay (4711),Test\r\n"));
  EXPECT_THAT(Written(ExchangeFormat::kCanvas), HasSubstr("\"Abel, Bo\",901,7,,Algebra,18"));
}

TEST_F(OutTableTest, AOneRosterArchiveSaysOfEachFileWhetherItIsThere) {
  const ZipFiles files = Unzip(Written(ExchangeFormat::kOneRoster));
  ASSERT_EQ(files.refusal, "");
  const std::string& manifest = files.files.at("manifest.csv");
  EXPECT_EQ(std::ranges::count(manifest, '\n'), 1 + 2 + 21 + 1);
  EXPECT_THAT(manifest, HasSubstr("file.results,bulk\r\n"));
  EXPECT_THAT(manifest, HasSubstr("file.demographics,absent\r\n"));
  EXPECT_FALSE(files.files.contains("demographics.csv"));
  for (const auto& [name, text] : files.files) {
    const auto commas = [](std::string_view line) { return std::ranges::count(line, ','); };
    const std::size_t end = text.find('\n');
    const std::size_t next = text.find('\n', end + 1);
    EXPECT_EQ(commas(text.substr(0, end)), commas(text.substr(end, next - end))) << name;
  }
  EXPECT_EQ(Written(ExchangeFormat::kOneRoster), Written(ExchangeFormat::kOneRoster));
}

TEST_F(OutTableTest, AClassWithoutStudentsOrGradesHasNothingToGive) {
  Current().NumInstruments = 0;
  EXPECT_EQ(MakeOutTable(ExchangeFormat::kCanvas, {}).refusal, "has no grades");
  Current().NumStudents = 0;
  EXPECT_EQ(MakeOutTable(ExchangeFormat::kCanvas, {}).refusal, "has no students");
}

}  // namespace
}  // namespace tallyroll
