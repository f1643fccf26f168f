// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/roster_text.h"

#include <gtest/gtest.h>

#include "store/safe_file.h"
#include "store/text_layout.h"
#include "tests/support/source_dir.h"

namespace tallyroll {
namespace {

Student Split(std::string_view name) {
  Student student;
  SplitStudentName(name, student);
  return student;
}

void ExpectNames(std::string_view name, std::string_view lastname, std::string_view firstname) {
  const Student student = Split(name);
  EXPECT_EQ(student.lastname, lastname) << name;
  EXPECT_EQ(student.firstname, firstname) << name;
}

TEST(SplitStudentName, ACommaPartsTheNames) {
  ExpectNames("Ng, Ada", "Ng", "Ada");
  ExpectNames("  De La Cruz ,  Ana Maria ", "De La Cruz", "Ana Maria");
}

TEST(SplitStudentName, WithoutACommaTheFirstBlankPartsThem) {
  ExpectNames("Ng Ada", "Ng", "Ada");
  ExpectNames("De La Cruz Ana", "De", "La Cruz Ana");
}

TEST(SplitStudentName, WithNeitherAllOfItIsTheLastName) {
  ExpectNames("Ng", "Ng", "-");
}

TEST(SplitStudentName, AnEmptyFirstNameBecomesAHyphen) {
  ExpectNames("Ng, ", "Ng", "-");
  ExpectNames("Ng,", "Ng", "-");
  ExpectNames("", "", "-");
}

// The mark stands at place 3, so 31 - 3 = 28 characters are left.
TEST(SplitStudentName, TheFirstNameTakesWhatTheLastNameLeaves) {
  const std::string longest(28, 'a');
  ExpectNames("Ng, " + longest, "Ng", longest);
  ExpectNames("Ng, " + longest + "b", "Ng", longest);
  ExpectNames("Ng " + longest + "b", "Ng", longest);
}

// The mark stands at place 31.
TEST(SplitStudentName, BehindALastNameOfThirtyNothingIsLeft) {
  const std::string longest(30, 'n');
  ExpectNames(longest + ", Ada", longest, "-");
  ExpectNames(longest + "n, Ada", longest + "n", "-");
}

Student Only(std::string_view text, i16 mode) {
  const TextRoster roster = ReadRosterText(text, mode);
  EXPECT_EQ(roster.refusal, "");
  EXPECT_EQ(roster.students.size(), 1u);
  return roster.students.empty() ? Student() : roster.students.front();
}

std::string Refusal(std::string_view text, i16 mode) {
  const TextRoster roster = ReadRosterText(text, mode);
  EXPECT_TRUE(roster.students.empty());
  return roster.refusal;
}

// A line with each field at its place, counted from 1.
std::string ColumnsLine() {
  std::string line(203, ' ');
  const std::pair<std::size_t, std::string_view> places[] = {
      {1, "1001"},    {14, "Ng, Ada"}, {47, "12 Main St"}, {98, "Oslo"},      {114, "NY"},
      {117, "10001"}, {128, "Eve Ng"}, {159, "1/2/2013"},  {174, "555-0100"}, {189, "555-0150"}};
  for (const auto& [place, text] : places) line.replace(place - 1, text.size(), text);
  return line + "ada@example.org";
}

void ExpectAda(const Student& ada) {
  EXPECT_EQ(ada.id, "1001");
  EXPECT_EQ(ada.lastname, "Ng");
  EXPECT_EQ(ada.firstname, "Ada");
  EXPECT_EQ(ada.address, "12 Main St");
  EXPECT_EQ(ada.city, "Oslo");
  EXPECT_EQ(ada.state, "NY");
  EXPECT_EQ(ada.zip, "10001");
  EXPECT_EQ(ada.parent, "Eve Ng");
  EXPECT_EQ(ada.birth, "1/2/2013");
  EXPECT_EQ(ada.phone, "555-0100");
  EXPECT_EQ(ada.work, "555-0150");
  EXPECT_EQ(ada.email, "ada@example.org");
}

TEST(ReadRosterText, ColumnsTakeEachFieldAtItsPlace) {
  ExpectAda(Only(ColumnsLine(), kColumnsText));
}

TEST(ReadRosterText, ALineThatEndsEarlyGivesEmptyFieldsBehindIt) {
  const Student ada = Only(ColumnsLine().substr(0, 203), kColumnsText);
  EXPECT_EQ(ada.work, "555-0150");
  EXPECT_EQ(ada.email, "");
  const Student bo = Only("1002         Le, Bo", kColumnsText);
  EXPECT_EQ(bo.firstname, "Bo");
  EXPECT_EQ(bo.address, "");
  EXPECT_EQ(bo.city, "");
}

TEST(ReadRosterText, AColumnHoldsNoMoreThanItsLength) {
  const std::string line = "123456789012X" + std::string(32, 'n') + "Yaddress";
  const Student student = Only(line, kColumnsText);
  EXPECT_EQ(student.id, "123456789012");
  EXPECT_EQ(student.lastname, std::string(32, 'n'));
  EXPECT_EQ(student.address, "address");
}

TEST(ReadRosterText, EachDelimitedLayoutTakesElevenFields) {
  ExpectAda(
      Only("1001'Ng, Ada'12 Main St'Oslo'NY'10001'Eve Ng'1/2/2013'555-0100'555-0150'"
           "ada@example.org",
           kSinglesText));
  ExpectAda(
      Only("1001\tNg, Ada\t12 Main St\tOslo\tNY\t10001\tEve Ng\t1/2/2013\t555-0100\t555-0150"
           "\tada@example.org",
           kTabsText));
  ExpectAda(
      Only("1001,Ng Ada,12 Main St,Oslo,NY,10001,Eve Ng,1/2/2013,555-0100,555-0150,"
           "ada@example.org",
           kCommasText));
  ExpectAda(Only(R"("1001","Ng, Ada","12 Main St","Oslo","NY","10001","Eve Ng","1/2/2013",)"
                 R"("555-0100","555-0150","ada@example.org")",
                 kDoublesText));
}

TEST(ReadRosterText, AFieldBehindTheEleventhIsLeft) {
  const Student student = Only("1\tNg\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12", kTabsText);
  EXPECT_EQ(student.email, "11");
}

TEST(ReadRosterText, AMissingTailGivesEmptyFields) {
  const Student student = Only("1001,Ng Ada,12 Main St", kCommasText);
  EXPECT_EQ(student.address, "12 Main St");
  EXPECT_EQ(student.city, "");
  EXPECT_EQ(student.email, "");
}

TEST(ReadRosterText, AFieldThatNothingClosesRunsToTheEndOfTheLine) {
  EXPECT_EQ(Only("1001'Ng, Ada'12 Main St", kSinglesText).address, "12 Main St");
  EXPECT_EQ(Only(R"("1001","Ng, Ada","12 Main)", kDoublesText).address, "12 Main");
}

TEST(ReadRosterText, WhatStandsBetweenQuotedFieldsIsPassedOver) {
  const Student student = Only(R"(x "1001" ; "  Ng, Ada "  "12 Main St")", kDoublesText);
  EXPECT_EQ(student.id, "1001");
  EXPECT_EQ(student.lastname, "Ng");
  EXPECT_EQ(student.address, "12 Main St");
}

TEST(ReadRosterText, ANameWithoutCommaOrBlankGivesAHyphen) {
  EXPECT_EQ(Only("1001,Ng", kCommasText).firstname, "-");
}

TEST(ReadRosterText, AnyLineEndClosesALineAndTheLastNeedsNone) {
  for (const char* text : {"1,Ng Ada\r\n2,Le Bo\r\n", "1,Ng Ada\n2,Le Bo\n", "1,Ng Ada\r2,Le Bo",
                           "1,Ng Ada\n2,Le Bo"}) {
    const TextRoster roster = ReadRosterText(text, kCommasText);
    ASSERT_EQ(roster.students.size(), 2u);
    EXPECT_EQ(roster.students[1].firstname, "Bo");
  }
}

TEST(ReadRosterText, ALineInWhichNothingStandsIsNoStudent) {
  EXPECT_EQ(ReadRosterText("1,Ng Ada\n\n   \n,,,,\n2,Le Bo\n\n", kCommasText).students.size(), 2u);
  EXPECT_EQ(ReadRosterText("1\tNg Ada\n\t\t\t\n", kTabsText).students.size(), 1u);
}

TEST(ReadRosterText, AnOldMarkOfTheEndIsNoStudent) {
  EXPECT_EQ(ReadRosterText("1,Ng Ada\r\n\x1A", kCommasText).students.size(), 1u);
}

TEST(ReadRosterText, AFileWithoutStudentsIsRefused) {
  for (const i16 mode : {kColumnsText, kSinglesText, kDoublesText, kTabsText, kCommasText}) {
    EXPECT_EQ(Refusal("", mode), "holds no students");
    EXPECT_EQ(Refusal("\r\n  \r\n", mode), "holds no students");
  }
  EXPECT_EQ(Refusal("ID,Name\n", kCsvText), "holds no students");
}

TEST(ReadRosterText, AByteOfZeroIsRefusedInEveryLayout) {
  const std::string text("1,Ng Ada\n2,Le\0 Bo\n", 18);
  for (const i16 mode :
       {kColumnsText, kSinglesText, kDoublesText, kTabsText, kCommasText, kCsvText})
    EXPECT_EQ(Refusal(text, mode), "is not a text file");
}

TEST(ReadRosterText, DataFullOfControlCharactersIsNoText) {
  std::string data;
  for (int i = 0; i < 1000; ++i) data += static_cast<char>(1 + i * 37 % 255);
  EXPECT_EQ(Refusal(data, kCommasText), "is not a text file");
}

TEST(ReadRosterText, AStrayControlCharacterIsNoFault) {
  EXPECT_EQ(Only("1,Ng Ada,12\x01 Main\x0B St", kCommasText).address, "12\x01 Main\x0B St");
}

TEST(ReadRosterText, ATextThatNoClassFileCanHoldIsRefusedWithItsLine) {
  const std::string longest(65535, 'x');
  EXPECT_EQ(Only("1,Ng Ada," + longest, kCommasText).address, longest);
  EXPECT_EQ(Refusal("1,Ng Ada\n2,Le Bo," + longest + "x", kCommasText),
            "has too long a text in line 2");
  EXPECT_EQ(Refusal("ID,Name,Street\n2,Le Bo," + longest + "x", kCsvText),
            "has too long a text in line 2");
}

TEST(ReadRosterText, ALineOfAMegabyteIsNoTroubleWhereItsFieldsAreShort) {
  const std::string filler(1'000'000, 'x');
  EXPECT_EQ(Only("1\tNg\t3\t4\t5\t6\t7\t8\t9\t10\t11\t" + filler, kTabsText).email, "11");
  EXPECT_EQ(Only(ColumnsLine() + std::string(40, ' ') + filler, kColumnsText).id, "1001");
}

TEST(ReadRosterText, CodePage1252IsTakenAsItIs) {
  EXPECT_EQ(Only("1,Bj\xF6rk \x8Cuvre", kCommasText).lastname, "Bj\xF6rk");
}

TEST(ReadRosterText, Utf8IsTakenInEveryLayout) {
  EXPECT_EQ(Only("1,Bj\xC3\xB6rk A", kCommasText).lastname, "Bj\xF6rk");
  EXPECT_EQ(Only("1            Bj\xC3\xB6rk, A", kColumnsText).firstname, "A");
}

TEST(ReadRosterText, TheMarkOfUtf8IsNoPartOfAnId) {
  EXPECT_EQ(Only("\xEF\xBB\xBF"
                 "1001,Ng Ada",
                 kCommasText)
                .id,
            "1001");
  EXPECT_EQ(Only("\xEF\xBB\xBF"
                 "1001,Ng Ada",
                 kCsvText)
                .id,
            "1001");
}

// U+0141 is a letter that code page 1252 lacks.
TEST(ReadRosterText, AValueThatAClassFileCannotHoldIsListedAndLeftEmpty) {
  const TextRoster roster = ReadRosterText(
      "1,Ng Ada,Oslo\n2,Le Bo,\xC5\x81\xC3\xB3"
      "dz,Town",
      kCommasText);
  EXPECT_EQ(roster.lacking, (std::vector<std::string>{"Line 2, address: <U+0141>\xF3"
                                                      "dz"}));
  ASSERT_EQ(roster.students.size(), 2u);
  EXPECT_EQ(roster.students[1].address, "");
  EXPECT_EQ(roster.students[1].city, "Town");
  EXPECT_EQ(roster.students[0].address, "Oslo");
}

TEST(ReadRosterText, ACharacterBeyondSixteenBitsIsShownByItsNumber) {
  const TextRoster roster = ReadRosterText("ID,Name\n1,Ng \xF0\x9F\x98\x80", kCsvText);
  EXPECT_EQ(roster.lacking, (std::vector<std::string>{"Line 2, Full name: Ng <U+1F600>"}));
}

TEST(ReadRosterText, ASpreadsheetsTitlesTellItsColumns) {
  const TextRoster roster = ReadRosterText(
      "First Name;LAST NAME;Student ID;Town;Shoe size\nAda;Ng;1001;Oslo;38\n", kCsvText);
  ASSERT_EQ(roster.students.size(), 1u);
  EXPECT_EQ(roster.students[0].id, "1001");
  EXPECT_EQ(roster.students[0].lastname, "Ng");
  EXPECT_EQ(roster.students[0].firstname, "Ada");
  EXPECT_EQ(roster.students[0].city, "Oslo");
}

TEST(ReadRosterText, ASpreadsheetWithoutTitlesHasTheUsualOrder) {
  const TextRoster roster =
      ReadRosterText("1001,\"Ng, Ada\",\"12 Main St, Apt 4\"\r\n1002,\"Le, \"\"Bo\"\"\"", kCsvText);
  ASSERT_EQ(roster.students.size(), 2u);
  EXPECT_EQ(roster.students[0].lastname, "Ng");
  EXPECT_EQ(roster.students[0].address, "12 Main St, Apt 4");
  EXPECT_EQ(roster.students[1].firstname, "\"Bo\"");
}

TEST(ReadRosterText, ChosenColumnsOverruleTheTitles) {
  CsvColumns columns;
  columns.uses = {CsvUse::kLastName, CsvUse::kNotUsed, CsvUse::kId};
  columns.heading = true;
  const TextRoster roster = ReadRosterText("ID,Name,City\nNg,Ada,7\n", kCsvText, columns);
  ASSERT_EQ(roster.students.size(), 1u);
  EXPECT_EQ(roster.students[0].lastname, "Ng");
  EXPECT_EQ(roster.students[0].firstname, "-");
  EXPECT_EQ(roster.students[0].id, "7");
  EXPECT_EQ(roster.students[0].city, "");
}

TEST(ReadRosterText, ALineEndInsideASpreadsheetsCellBecomesABlank) {
  const TextRoster roster =
      ReadRosterText("ID,Name,Address\n1,Ng Ada,\"12 Main St\nApt 4\"\n2,Le Bo,\n", kCsvText);
  ASSERT_EQ(roster.students.size(), 2u);
  EXPECT_EQ(roster.students[0].address, "12 Main St Apt 4");
}

TEST(ReadRosterText, ALineEndInsideACellLeavesSemicolonsKnown) {
  const TextRoster roster =
      ReadRosterText("ID;Name;Address\n1;\"Ng, Ada\";\"12 Main St\nApt 4\"\n", kCsvText);
  ASSERT_EQ(roster.students.size(), 1u);
  EXPECT_EQ(roster.students[0].lastname, "Ng");
  EXPECT_EQ(roster.students[0].address, "12 Main St Apt 4");
}

// One student beyond those that fit is read, so that the class can tell that it is full.
TEST(ReadRosterText, NoMoreStudentsAreReadThanAClassCanTell) {
  std::string text;
  for (int i = 0; i < 40'000; ++i) text += "1,N A\n";
  for (const i16 mode : {kCommasText, kCsvText}) {
    const TextRoster roster = ReadRosterText(text, mode);
    EXPECT_EQ(roster.refusal, "");
    EXPECT_EQ(roster.students.size(), 32768u);
  }
}

TEST(ReadRosterText, AQuoteThatIsNeverClosedIsRefused) {
  EXPECT_EQ(Refusal("ID,Name\n1,Ng Ada\n2,\"Le Bo\n3,Orr Cy\n", kCsvText),
            "has a quotation mark in line 3 that is never closed");
}

TEST(ReadRosterText, ASpreadsheetWithoutALineHoldsNoStudents) {
  for (const char* text : {"", "\r\n \r\n", "\xEF\xBB\xBF"})
    EXPECT_EQ(Refusal(text, kCsvText), "holds no students");
}

TEST(ReadRosterText, ASpreadsheetWithoutNamesIsRefused) {
  EXPECT_EQ(Refusal("ID,City\n1,Oslo\n", kCsvText), "has no column with the names of students");
}

// Saved by LibreOffice Calc 7.4 from a sheet of text cells, with semicolons and UTF-8.
TEST(ReadRosterText, AFileThatASpreadsheetProgramSavedIsReadWhole) {
  const FileContents file = ReadWholeFile(SourceDir() + "/tests/store/data/spreadsheet.csv");
  ASSERT_EQ(file.error, 0);
  const TextRoster roster = ReadRosterText(file.bytes, kCsvText);
  ASSERT_EQ(roster.students.size(), 4u);
  EXPECT_TRUE(roster.lacking.empty());
  EXPECT_EQ(roster.students[0].id, "0012");
  EXPECT_EQ(roster.students[0].lastname, "Ng, Jr.");
  EXPECT_EQ(roster.students[0].firstname, "Zo\xEB");
  EXPECT_EQ(roster.students[0].address, "12 Main St, Apt 4");
  EXPECT_EQ(roster.students[0].city, "K\xF6ln");
  EXPECT_EQ(roster.students[0].parent, "Eve \"Evi\" Ng");
  EXPECT_EQ(roster.students[1].lastname, "De La Cruz");
  EXPECT_EQ(roster.students[1].parent, "");
  EXPECT_EQ(roster.students[2].address, "1 Quay; rear");
  EXPECT_EQ(roster.students[3].lastname, "\x8Cuvre");
  EXPECT_EQ(roster.students[3].firstname, "\x9Fvonne \x96 \x93Y\x94");
}

}  // namespace
}  // namespace tallyroll
