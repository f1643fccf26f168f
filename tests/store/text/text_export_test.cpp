// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/text_export.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/number_text.h"
#include "base/text.h"
#include "store/student_names.h"
#include "store/text/roster_text.h"
#include "store/text_layout.h"
#include "tests/support/random_class.h"

namespace tallyroll {
namespace {

constexpr i16 kLayouts[] = {kColumnsText, kSinglesText, kDoublesText,
                            kTabsText,    kCommasText,  kCsvText};

Class Two() {
  Class c;
  c.NumStudents = 2;
  c.NumInstruments = 2;
  ReDim(c.Instruments, 2);
  c.Instruments[1].title = "Rivers, I";
  c.Instruments[1].code = "RIV";
  c.Instruments[2].title = "Lakes";
  c.Instruments[2].code = "LAK";
  ReDim(c.Students, 2);
  Student& ada = c.Students[1];
  ada.id = "1001";
  ada.lastname = "Ng";
  ada.firstname = "Ada";
  ada.address = "12 Main St";
  ada.state = "NY";
  ada.email = "ada@example.org";
  ReDim(ada.Marks, 2);
  ada.Marks[1] = "A-";
  ada.Marks[2] = "95.5";
  Student& bo = c.Students[2];
  bo.id = "2";
  bo.lastname = "Le";
  bo.firstname = "Bo";
  ReDim(bo.Marks, 2);
  bo.Marks[1] = "ABS  ";
  return c;
}

std::string Text(int what, i16 mode) {
  return ExportText(Two(), what, mode).bytes;
}

TEST(ExportText, NamesInEveryLayout) {
  EXPECT_EQ(Text(kExportNames, kColumnsText), "1001         Ng, Ada\r\n2            Le, Bo\r\n");
  EXPECT_EQ(Text(kExportNames, kSinglesText), "1001'Ng, Ada\r\n2'Le, Bo\r\n");
  EXPECT_EQ(Text(kExportNames, kDoublesText), "\"1001\",\"Ng, Ada\"\r\n\"2\",\"Le, Bo\"\r\n");
  EXPECT_EQ(Text(kExportNames, kTabsText), "1001\tNg, Ada\r\n2\tLe, Bo\r\n");
  EXPECT_EQ(Text(kExportNames, kCsvText),
            "\xEF\xBB\xBFID,Last name,First name\r\n1001,Ng,Ada\r\n2,Le,Bo\r\n");
}

TEST(ExportText, InCommaModeTheNameHasNoCommaInside) {
  EXPECT_EQ(Text(kExportNames, kCommasText), "1001,Ng Ada\r\n2,Le Bo\r\n");
}

TEST(ExportText, ColumnsStandAtTheirPlaces) {
  const std::string text = Text(kExportInfo, kColumnsText);
  const std::string line = text.substr(0, text.find("\r\n"));
  EXPECT_EQ(line.substr(0, 4), "1001");
  EXPECT_EQ(line.substr(14 - 1, 7), "Ng, Ada");
  EXPECT_EQ(line.substr(47 - 1, 10), "12 Main St");
  EXPECT_EQ(line.substr(114 - 1, 2), "NY");
  EXPECT_EQ(line.substr(204 - 1), "ada@example.org");
  EXPECT_EQ(line.substr(57 - 1, 114 - 57), std::string(114 - 57, ' '));
}

TEST(ExportText, WhatIsLongerThanItsColumnLeavesTheNextItsPlace) {
  Class c = Two();
  c.Students[1].id = "1234567890123";
  c.Students[1].lastname = std::string(40, 'n');
  const std::string text = ExportText(c, kExportGradesPlain, kColumnsText).bytes;
  EXPECT_EQ(text.substr(0, 57), "123456789012 " + std::string(32, 'n') + " A-    95.5\r");
}

TEST(ExportText, AStudentWhoseListEndsEarlyHasNoMark) {
  Class c = Two();
  c.Students[1].Marks = {"", "A-"};
  c.Students[2].Marks.clear();
  EXPECT_EQ(ExportText(c, kExportGradesPlain, kTabsText).bytes,
            "1001\tNg, Ada\tA-\t\r\n2\tLe, Bo\t\t\r\n");
}

TEST(ExportText, FormattedColumnsHaveNoMarkBetweenThem) {
  EXPECT_EQ(SeparatorOf(kColumnsText), '\0');
  EXPECT_EQ(SeparatorOf(kCsvText), ',');
}

TEST(ExportText, SupplementaryInformationFollowsTheName) {
  EXPECT_EQ(Text(kExportInfo, kCommasText),
            "1001,Ng Ada,12 Main St,,NY,,,,,,ada@example.org\r\n2,Le Bo,,,,,,,,,\r\n");
}

TEST(ExportText, MarksFollowInTheOrderOfTheGrades) {
  EXPECT_EQ(Text(kExportGradesPlain, kTabsText), "1001\tNg, Ada\tA-\t95.5\r\n2\tLe, Bo\tABS\t\r\n");
  EXPECT_EQ(Text(kExportGradesPlain, kDoublesText),
            "\"1001\",\"Ng, Ada\",\"A-\",\"95.5\"\r\n\"2\",\"Le, Bo\",\"ABS\",\"\"\r\n");
  EXPECT_EQ(Text(kExportGradesPlain, kColumnsText),
            "1001         Ng, Ada                          A-    95.5\r\n"
            "2            Le, Bo                           ABS\r\n");
}

TEST(ExportText, TitlesAndCodesStandAboveTheMarks) {
  EXPECT_EQ(Text(kExportGrades, kTabsText),
            "ID\tNAME\tRivers, I\tLakes\r\n\t\tRIV\tLAK\r\n"
            "1001\tNg, Ada\tA-\t95.5\r\n2\tLe, Bo\tABS\t\r\n");
  EXPECT_EQ(Text(kExportGrades, kColumnsText).substr(0, 57),
            "ID           NAME                             River Lakes");
  EXPECT_EQ(Text(kExportGrades, kCsvText),
            "\xEF\xBB\xBFID,Last name,First name,\"Rivers, I [RIV]\",Lakes [LAK]\r\n"
            "1001,Ng,Ada,A-,95.5\r\n2,Le,Bo,ABS,\r\n");
}

TEST(ExportText, SpreadsheetsGetUtf8) {
  Class c = Two();
  c.Students[1].lastname = "\x8Cuvre";
  EXPECT_NE(ExportText(c, kExportNames, kCsvText).bytes.find("\xC5\x92uvre"), std::string::npos);
  EXPECT_NE(ExportText(c, kExportNames, kTabsText).bytes.find("\x8Cuvre"), std::string::npos);
}

TEST(ExportText, NothingIsChangedWhereEveryValueFits) {
  for (const i16 mode : kLayouts) EXPECT_EQ(ExportText(Two(), kExportInfo, mode).changed, 0);
}

// ---- There and back ----

constexpr std::string Student::*kFields[] = {
    &Student::id,    &Student::lastname, &Student::firstname, &Student::address,
    &Student::city,  &Student::state,    &Student::zip,       &Student::parent,
    &Student::birth, &Student::phone,    &Student::work,      &Student::email};

// What `value` of `field` is after an export and an import of a student.
std::string BackFrom(i16 mode, std::string Student::*field, const std::string& value,
                     int* changed = nullptr) {
  Class c;
  c.NumStudents = 1;
  ReDim(c.Students, 1);
  Student& student = c.Students[1];
  student.id = "1";
  student.lastname = "Ng";
  student.firstname = "Ada";
  student.*field = value;
  const TextOfClass text = ExportText(c, kExportInfo, mode);
  if (changed) *changed = text.changed;
  const TextRoster roster = ReadRosterText(text.bytes, mode);
  EXPECT_EQ(roster.students.size(), 1u);
  return roster.students.empty() ? "" : roster.students[0].*field;
}

// Keeps to what the layout can carry, as the cases below list it.
std::string Tame(std::string text, i16 mode, std::size_t longest) {
  const char separator = SeparatorOf(mode);
  std::erase_if(text,
                [&](char c) { return static_cast<unsigned char>(c) < ' ' || c == separator; });
  return std::string(Trim(Left(text, longest)));
}

void TameStudent(Student& student, i16 mode, int number) {
  for (const TextField& field : kTextFields)
    if (field.field)
      student.*field.field =
          Tame(student.*field.field, mode, mode == kColumnsText ? field.length : 60000);
  student.id = PlainNumberText(number) + Tame(student.id, mode, 6);
  const auto name = [&](std::string text, std::size_t longest) {
    std::erase(text, ',');
    if (mode == kCommasText) std::erase(text, ' ');
    return Tame(text, mode, longest);
  };
  student.lastname = name("N" + student.lastname, 14);
  student.firstname = name("A" + student.firstname, 16);
}

TEST(TextRoundTrip, RandomClassesComeBackInEveryLayout) {
  std::mt19937 random(7);
  int compared = 0;
  for (int round = 0; round < 300; ++round) {
    for (const i16 mode : kLayouts) {
      Class c = RandomClass(random);
      // One byte that no UTF-8 has keeps a class from being taken for it.
      for (int i = 1; i <= c.NumStudents; ++i)
        TameStudent(c.Students[static_cast<std::size_t>(i)], mode, i);
      if (c.NumStudents == 0) continue;
      c.Students[1].lastname = "\xFFN";
      const TextOfClass text = ExportText(c, kExportInfo, mode);
      EXPECT_EQ(text.changed, 0);
      const TextRoster roster = ReadRosterText(text.bytes, mode);
      ASSERT_EQ(roster.refusal, "");
      ASSERT_EQ(roster.students.size(), static_cast<std::size_t>(c.NumStudents));
      for (std::size_t i = 0; i < roster.students.size(); ++i)
        for (const auto field : kFields) {
          ASSERT_EQ(roster.students[i].*field, c.Students[i + 1].*field) << mode;
          ++compared;
        }
    }
  }
  EXPECT_GT(compared, 10000);
}

TEST(TextRoundTripLoses, TheLineEndInsideAValueEverywhere) {
  for (const i16 mode : kLayouts) {
    EXPECT_EQ(BackFrom(mode, &Student::address, "12 Main\nApt 4"), "12 Main Apt 4");
  }
}

TEST(TextRoundTripLoses, ControlCharactersEverywhere) {
  for (const i16 mode : kLayouts) {
    int changed = 0;
    EXPECT_EQ(BackFrom(mode, &Student::city, std::string("Os\0lo\x01.\f!", 9), &changed),
              "Os lo . !")
        << mode;
    EXPECT_EQ(changed, 1) << mode;
  }
}

TEST(TextRoundTripLoses, OuterBlanksOfNamesEverywhere) {
  for (const i16 mode : kLayouts) EXPECT_EQ(BackFrom(mode, &Student::lastname, " Ng "), "Ng");
}

TEST(TextRoundTripLoses, AnEmptyFirstNameEverywhere) {
  for (const i16 mode : kLayouts) EXPECT_EQ(BackFrom(mode, &Student::firstname, ""), "-");
}

TEST(TextRoundTripLoses, AFirstNameBeyondThirtyLettersTogetherButInSpreadsheets) {
  const std::string name(29, 'a');
  for (const i16 mode : kLayouts)
    EXPECT_EQ(BackFrom(mode, &Student::firstname, name),
              mode == kCsvText ? name : std::string(28, 'a'));
}

TEST(TextRoundTripLoses, TheCommaInALastNameButInSpreadsheets) {
  for (const i16 mode : {kColumnsText, kSinglesText, kDoublesText, kTabsText})
    EXPECT_EQ(BackFrom(mode, &Student::lastname, "Ng, Jr."), "Ng");
  EXPECT_EQ(BackFrom(kCsvText, &Student::lastname, "Ng, Jr."), "Ng, Jr.");
}

TEST(TextRoundTripLoses, TheBlankInALastNameInCommaMode) {
  EXPECT_EQ(BackFrom(kCommasText, &Student::lastname, "De Wit"), "De");
  EXPECT_EQ(BackFrom(kTabsText, &Student::lastname, "De Wit"), "De Wit");
}

TEST(TextRoundTripLoses, AnEmptyLastNameInCommaMode) {
  EXPECT_EQ(BackFrom(kCommasText, &Student::lastname, ""), "Ada");
  EXPECT_EQ(BackFrom(kCommasText, &Student::firstname, ""), "-");
  for (const i16 mode : {kColumnsText, kSinglesText, kDoublesText, kTabsText, kCsvText})
    EXPECT_EQ(BackFrom(mode, &Student::lastname, ""), "") << mode;
}

TEST(TextRoundTripLoses, WhatIsLongerThanItsColumn) {
  int changed = 0;
  EXPECT_EQ(BackFrom(kColumnsText, &Student::state, "Ohio", &changed), "Oh");
  EXPECT_EQ(changed, 1);
  EXPECT_EQ(BackFrom(kColumnsText, &Student::id, "1234567890123"), "123456789012");
}

TEST(TextRoundTripLoses, BlanksBehindAValueInColumns) {
  EXPECT_EQ(BackFrom(kColumnsText, &Student::city, "Oslo "), "Oslo");
  EXPECT_EQ(BackFrom(kColumnsText, &Student::city, " Oslo"), " Oslo");
}

TEST(TextRoundTripLoses, OuterBlanksInDoubleQuotesAndSpreadsheets) {
  EXPECT_EQ(BackFrom(kDoublesText, &Student::city, " Oslo "), "Oslo");
  EXPECT_EQ(BackFrom(kCsvText, &Student::city, " Oslo "), "Oslo");
  for (const i16 mode : {kSinglesText, kTabsText, kCommasText})
    EXPECT_EQ(BackFrom(mode, &Student::city, " Oslo "), " Oslo ");
}

TEST(TextRoundTripLoses, TheMarkOfTheLayoutInsideAValue) {
  int changed = 0;
  EXPECT_EQ(BackFrom(kSinglesText, &Student::parent, "O'Hara", &changed), "O\x92Hara");
  EXPECT_EQ(changed, 1);
  EXPECT_EQ(BackFrom(kDoublesText, &Student::parent, "Al \"Big\" Ng"), "Al 'Big' Ng");
  EXPECT_EQ(BackFrom(kTabsText, &Student::address, "12\tMain"), "12 Main");
  EXPECT_EQ(BackFrom(kCommasText, &Student::address, "12 Main,Apt 4"), "12 Main Apt 4");
  EXPECT_EQ(BackFrom(kCsvText, &Student::address, "12 Main, \"Apt\" '4'"), "12 Main, \"Apt\" '4'");
}

// "Ã©" is the UTF-8 of "é" in code page 1252.
TEST(TextRoundTripLoses, LettersThatReadAsUtf8) {
  EXPECT_EQ(BackFrom(kTabsText, &Student::city, "\xC3\xA9"), "\xE9");
  EXPECT_EQ(BackFrom(kCsvText, &Student::city, "\xC3\xA9"), "\xC3\xA9");
}

}  // namespace
}  // namespace tallyroll
