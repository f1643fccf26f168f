// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/text_import.h"

#include <set>

#include "base/number_text.h"
#include "base/text.h"
#include "store/class_defaults.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/text/taken_ids.h"
#include "store/text_layout.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

class TextImportTest : public PortalTest {
 protected:
  int Add(std::string_view text, i16 mode = kCommasText) {
    TextRoster roster = ReadRosterText(text, mode);
    EXPECT_EQ(roster.refusal, "");
    outcome = AddStudents(roster);
    return outcome.error;
  }
  static std::vector<std::string> Ids() {
    std::vector<std::string> ids;
    for (int i = 1; i <= Current().NumStudents; ++i) ids.push_back(Of(i).id);
    return ids;
  }
  static const Student& Of(int i) { return Current().Students.at(static_cast<std::size_t>(i)); }
  ImportOutcome outcome;  // of the last Add

  void Put(std::string_view bytes) {
    ImportFile = Path("names.txt");
    ASSERT_EQ(ReplaceFile(ImportFile, bytes, OldTail::kDrop), 0);
  }
};

TEST_F(TextImportTest, StudentsAreAddedBehindTheOthersAndSorted) {
  EXPECT_EQ(Add("3,Orr Cy\n1,Ng Ada"), 0);
  EXPECT_EQ(Add("2,Le Bo"), 0);
  EXPECT_EQ(Ids(), (std::vector<std::string>{"2", "1", "3"}));
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(TextImportTest, TheOrderFollowsTheDisplay) {
  NameMode = 73;
  Add("3,Abel Cy\n1,Ng Ada");
  EXPECT_EQ(Ids(), (std::vector<std::string>{"1", "3"}));
}

TEST_F(TextImportTest, AnImportedStudentHasTheListsOfANewOneButNoDays) {
  Class& c = Current();
  c.NumInstruments = 2;
  c.NumSummaries = 1;
  c.NumCharts = 1;
  c.NumDays = 3;
  Add("1,Ng Ada");
  EXPECT_EQ(Of(1).Marks.at(2), "NEW");
  EXPECT_EQ(Of(1).SummaryAbsent.at(1), "0    ");
  EXPECT_EQ(Of(1).SummaryLate.at(1), "0");
  EXPECT_EQ(Of(1).SummaryDetail.at(1), " 0/ 0/ 0/ 0/");
  EXPECT_EQ(Of(1).SeatRow.at(1), -1);
  EXPECT_TRUE(Of(1).DailyMarks.empty());
}

TEST_F(TextImportTest, WidthsRiseWithLongerNamesOnly) {
  Current().LastNameWidth = 5;
  Current().FirstNameWidth = 2;
  Add("1,Ng Ada\n2,Lee Bo");
  EXPECT_EQ(Current().LastNameWidth, 5);
  EXPECT_EQ(Current().FirstNameWidth, 3);
}

// 32 * 0.5 = 16, 100 * 0.25 = 25, 500 * 0.1 = 50, 900 * 0.01 = 9, the second number in the first
// place: 16 + 25 + 50 + 9 = 100.
TEST_F(TextImportTest, ANewIdComesFromFourRandomNumbers) {
  screen.random_numbers = {0.25, 0.5, 0.1, 0.01};
  EXPECT_EQ(TakenIds(Current()).MakeUniqueId(), "100");
}

// Each product loses what stands behind its point: 31 + 99 + 499 + 899 = 1528.
TEST_F(TextImportTest, TheLargestNumberIsThatOfTheLargestDraws) {
  screen.random_numbers = {0.9999, 0.9999, 0.9999, 0.9999};
  EXPECT_EQ(TakenIds(Current()).MakeUniqueId(), "1528");
}

TEST_F(TextImportTest, AnIdThatAnEarlierStudentHasIsReplaced) {
  screen.random_numbers = {0.25, 0.5, 0.1, 0.01};
  Add("7,Ng Ada\n 7 ,Orr Bo");
  EXPECT_EQ(Ids(), (std::vector<std::string>{"7", "100"}));
}

TEST_F(TextImportTest, AnIdThatAnyStudentOfTheClassHasIsReplaced) {
  Add("1,Abel Al\n2,Bach Bo\n3,Cole Cy");
  screen.random_numbers = {0.25, 0.5, 0.1, 0.01, 0.26, 0.5, 0.1, 0.01, 0.27, 0.5, 0.1, 0.01};
  Add("3,Ng Ada\n1,Orr Bo\n2,Poe Di");
  EXPECT_EQ(Ids(), (std::vector<std::string>{"1", "2", "3", "100", "101", "102"}));
}

TEST_F(TextImportTest, ADrawnIdThatIsTakenIsDrawnAgain) {
  screen.random_numbers = {0.25, 0.5, 0.1, 0.01, 0.26, 0.5, 0.1, 0.01};
  Add("100,Ng Ada\n100,Orr Bo");
  EXPECT_EQ(Ids(), (std::vector<std::string>{"100", "101"}));
}

TEST_F(TextImportTest, FiveThousandStudentsWithOneIdAllGetTheirOwn) {
  std::string text;
  for (int i = 0; i < 5000; ++i) text += "7,Ng" + PlainNumberText(i) + " Ada\n";
  Add(text);
  const std::vector<std::string> ids = Ids();
  EXPECT_EQ(ids.size(), 5000u);
  EXPECT_EQ(std::set<std::string>(ids.begin(), ids.end()).size(), 5000u);
}

TEST_F(TextImportTest, ASpreadsheetWithoutIdsGivesEachStudentOne) {
  screen.random_numbers = {0.25, 0.5, 0.1, 0.01, 0.26, 0.5, 0.1, 0.01};
  Add("Last name,First name\nNg,Ada\nOrr,Bo\n", kCsvText);
  EXPECT_EQ(Ids(), (std::vector<std::string>{"100", "101"}));
}

// 100 stands later in the file and 101 in the class, so the third draw serves: 16 + 27 + 50 + 9.
TEST_F(TextImportTest, ADrawnIdNeverTakesOneThatStandsLaterInTheFileOrInTheClass) {
  Add("101,Abel Cy\n");
  screen.random_numbers = {0.25, 0.5, 0.1, 0.01, 0.26, 0.5, 0.1, 0.01, 0.27, 0.5, 0.1, 0.01};
  Add(",Ng Ada\n100,Orr Bo\n");
  EXPECT_EQ(Ids(), (std::vector<std::string>{"101", "102", "100"}));
}

TEST_F(TextImportTest, EveryBlankIdGetsOneInEveryLayout) {
  const std::pair<i16, const char*> files[] = {
      {kColumnsText, "             Ng, Ada\n7            Orr, Bo\n"},
      {kSinglesText, "'Ng, Ada'\n7'Orr, Bo'\n"},
      {kDoublesText, "\"\",\"Ng, Ada\"\n\"7\",\"Orr, Bo\"\n"},
      {kTabsText, " \tNg, Ada\n7\tOrr, Bo\n"},
      {kCommasText, ",Ng Ada\n7,Orr Bo\n"},
      {kCsvText, "ID,Name\n,Ng Ada\n7,Orr Bo\n"}};
  for (const auto& [mode, text] : files) {
    ResetClassSlot();
    screen.random_numbers = {0.25, 0.5, 0.1, 0.01};
    Add(text, mode);
    EXPECT_EQ(Ids(), (std::vector<std::string>{"100", "7"})) << mode;
    ASSERT_EQ(outcome.given.size(), 1u) << mode;
    EXPECT_EQ(GivenIdLines(outcome), (std::vector<std::string>{"Ng, Ada: 100"})) << mode;
  }
}

TEST_F(TextImportTest, TheResultSaysHowManyIdsWereGivenAndToWhom) {
  screen.random_numbers = {0.25, 0.5, 0.1, 0.01, 0.26, 0.5, 0.1, 0.01, 0.27, 0.5, 0.1, 0.01};
  Add("7,Ng Ada\n 7 ,Orr Bo\n,Poe Di\n7,Ray Ed\n");
  EXPECT_EQ(GivenIdsSentence(outcome),
            "New IDs were given to 3 students: 2 whose ID was taken already, 1 without an ID.");
  screen.ExpectBox(GivenIdsSentence(outcome) +
                   "\n\nOrr, Bo: 100 instead of 7\nPoe, Di: 101\nRay, Ed: 102 instead of 7");
  TellGivenIds(outcome);
  Add("8,Sun Fay\n");
  TellGivenIds(outcome);
}

// The same file again: each of its students is there a second time, and is told.
TEST_F(TextImportTest, AFileThatIsImportedTwiceGivesEachStudentASecondId) {
  Add("7,Ng Ada\n8,Orr Bo\n");
  Add("7,Ng Ada\n8,Orr Bo\n");
  EXPECT_EQ(outcome.given.size(), 2u);
  const std::vector<std::string> ids = Ids();
  EXPECT_EQ(std::set<std::string>(ids.begin(), ids.end()).size(), 4u);
}

TEST_F(TextImportTest, AClassThatIsFullKeepsWhatItTook) {
  std::string text;
  for (int i = 1; i <= 32768; ++i) text += PlainNumberText(i) + ",N A\n";
  EXPECT_EQ(Add(text), 6);
  EXPECT_EQ(Current().NumStudents, 32767);
  EXPECT_EQ(UpperBound(Current().Students), 32767);
}

TEST_F(TextImportTest, AFileThatIsNotThereIsAFileError) {
  ImportFile = Path("none.txt");
  screen.ExpectBox("File Error 53");
  TextRoster roster;
  EXPECT_FALSE(ReadImportFile(roster));
}

TEST_F(TextImportTest, AFileThatCannotBeReadAsTextIsNamed) {
  Put(std::string("PK\0\0", 4));
  screen.ExpectBox(ImportFile + " is not a text file.");
  TextRoster roster;
  EXPECT_FALSE(ReadImportFile(roster));
}

TEST_F(TextImportTest, ValuesThatAClassFileCannotHoldAreListedBefore) {
  TextMode = kCommasText;
  Put("1,Ng Ada,\xC5\x81\n");
  const std::string box =
      "A class file cannot hold these values. They will be left empty, and you can enter them in "
      "another spelling afterwards.\n\nLine 1, address: <U+0141>\n\nContinue?";
  TextRoster roster;
  screen.ExpectBox(box, BoxAnswer::kNo);
  EXPECT_FALSE(ReadImportFile(roster));
  screen.ExpectBox(box, BoxAnswer::kYes);
  EXPECT_TRUE(ReadImportFile(roster));
  EXPECT_EQ(roster.students.size(), 1u);
}

TEST_F(TextImportTest, OfManySuchValuesTenStandInTheBox) {
  TextMode = kCommasText;
  std::string text;
  std::string box =
      "A class file cannot hold these values. They will be left empty, and you can enter them in "
      "another spelling afterwards.\n";
  for (int i = 1; i <= 12; ++i) {
    text += "1,Ng Ada,\xC5\x81\n";
    if (i <= 10) box += "\nLine " + PlainNumberText(i) + ", address: <U+0141>";
  }
  Put(text);
  screen.ExpectBox(box + "\n... and 2 more\n\nContinue?", BoxAnswer::kNo);
  TextRoster roster;
  EXPECT_FALSE(ReadImportFile(roster));
}

}  // namespace
}  // namespace tallyroll
