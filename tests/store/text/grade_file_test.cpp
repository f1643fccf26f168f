// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/grade_file.h"

#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/text/text_export.h"
#include "store/text_layout.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

class GradeFileTest : public PortalTest {
 protected:
  GradeFileTest() {
    Enrol("2", "Le", "Bo");
    Enrol("1", "Ng", "Ada");
    Enrol("3", "Orr", "Cy");
  }
  static Student& Enrol(const std::string& id, const std::string& last, const std::string& first) {
    Class& c = Current();
    ReDimPreserve(c.Students, ++c.NumStudents);
    c.Students.back().id = id;
    c.Students.back().lastname = last;
    c.Students.back().firstname = first;
    return c.Students.back();
  }
  using Marks = std::vector<std::string>;
  // The marks of the first grade for the students in their order.
  static Marks Read(std::string_view text, i16 mode, int by) {
    const GradeFile file = ReadGradeText(text, mode, {}, by);
    EXPECT_EQ(file.refusal, "");
    if (file.columns.empty()) return {};
    return {file.columns[0].marks.begin() + 1, file.columns[0].marks.end()};
  }
};

TEST_F(GradeFileTest, MarksGoToTheStudentsById) {
  EXPECT_EQ(Read("1,91\n2, A- \n3,ABS\n", kCommasText, kGradesById), (Marks{"A-", "91", "ABS"}));
  EXPECT_EQ(Read("1'91\n2'82", kSinglesText, kGradesById), (Marks{"82", "91", ""}));
  EXPECT_EQ(Read("\"1\",\"91\"\n", kDoublesText, kGradesById), (Marks{"", "91", ""}));
  EXPECT_EQ(Read("1\t91\n", kTabsText, kGradesById), (Marks{"", "91", ""}));
  EXPECT_EQ(Read("1            91\n", kColumnsText, kGradesById), (Marks{"", "91", ""}));
  EXPECT_EQ(Read("ID;Score\n1;91\n", kCsvText, kGradesById), (Marks{"", "91", ""}));
}

TEST_F(GradeFileTest, MarksGoToTheStudentsByName) {
  EXPECT_EQ(Read("Ng, Ada\t91\nLe Bo\t82\n", kTabsText, kGradesByName), (Marks{"82", "91", ""}));
  EXPECT_EQ(Read("\"Ng, Ada\",\"91\"\n", kDoublesText, kGradesByName), (Marks{"", "91", ""}));
  EXPECT_EQ(Read("Ng Ada,91\n", kCommasText, kGradesByName), (Marks{"", "91", ""}));
  EXPECT_EQ(Read("Ng, Ada                          91\n", kColumnsText, kGradesByName),
            (Marks{"", "91", ""}));
  EXPECT_EQ(Read("Last name,First name,Score\nNg,Ada,91\n", kCsvText, kGradesByName),
            (Marks{"", "91", ""}));
  EXPECT_EQ(Read("Name,Score\n\"Ng, Ada\",91\n", kCsvText, kGradesByName), (Marks{"", "91", ""}));
}

TEST_F(GradeFileTest, ACommaBetweenTheNamesMayPartThem) {
  EXPECT_EQ(Read("Ng, Ada,91\n", kCommasText, kGradesByName), (Marks{"", "91", ""}));
}

TEST_F(GradeFileTest, ALineWhoseKeyMatchesNobodyIsSkipped) {
  const GradeFile file = ReadGradeText("1,91\n9,55\n3,70\n", kCommasText, {}, kGradesById);
  EXPECT_EQ(file.matched, 2);
  EXPECT_EQ(file.skipped, 1);
  EXPECT_EQ(file.columns.at(0).marks, (Marks{"", "", "91", "70"}));
}

TEST_F(GradeFileTest, KeysAreComparedTrimmedAndByCase) {
  EXPECT_EQ(Read(" 1 ,91\n", kCommasText, kGradesById), (Marks{"", "91", ""}));
  EXPECT_EQ(ReadGradeText("ng ada,91\n", kCommasText, {}, kGradesByName).refusal,
            "holds no student of this class");
}

TEST_F(GradeFileTest, TwoStudentsOfOneNameEachGetALine) {
  Enrol("4", "Ng", "Ada");
  EXPECT_EQ(Read("Ng Ada,91\nNg Ada,82\nNg Ada,73\n", kCommasText, kGradesByName),
            (Marks{"", "91", "", "82"}));
}

TEST_F(GradeFileTest, ANameMatchesWithEitherApostrophe) {
  Enrol("5", "O'Hara", "Di");
  EXPECT_EQ(Read("O\x92Hara, Di'91\n", kSinglesText, kGradesByName), (Marks{"", "", "", "91"}));
}

TEST_F(GradeFileTest, SeveralMarksOfALineAreSeveralGrades) {
  const GradeFile file = ReadGradeText("1,91,B\n3,70\n", kCommasText, {}, kGradesById);
  ASSERT_EQ(file.columns.size(), 2u);
  EXPECT_EQ(file.columns[1].marks, (Marks{"", "", "B", ""}));
}

TEST_F(GradeFileTest, WhatThisProgramExportsComesBackByEitherKey) {
  Class& c = Current();
  c.NumInstruments = 2;
  ReDim(c.Instruments, 2);
  c.Instruments[1].title = "Lakes";
  c.Instruments[1].code = "LAK";
  c.Instruments[2].title = "Dams";
  c.Instruments[2].code = "DAM";
  for (std::size_t i = 1; i <= 3; ++i) {
    ReDim(c.Students[i].Marks, 2);
    c.Students[i].Marks[1] = std::string(i, 'A');
    c.Students[i].Marks[2] = std::string(i, 'B');
  }
  for (const i16 mode :
       {kColumnsText, kSinglesText, kDoublesText, kTabsText, kCommasText, kCsvText}) {
    for (const int by : {kGradesById, kGradesByName}) {
      const GradeFile file = ReadGradeText(ExportText(c, kExportGrades, mode).bytes, mode, {}, by);
      ASSERT_EQ(file.columns.size(), 2u) << mode << " " << by;
      EXPECT_EQ(file.columns[0].title, "Lakes");
      EXPECT_EQ(file.columns[1].code, "DAM");
      EXPECT_EQ(file.columns[0].marks, (Marks{"", "A", "AA", "AAA"})) << mode << " " << by;
      EXPECT_EQ(file.columns[1].marks, (Marks{"", "B", "BB", "BBB"})) << mode << " " << by;
      EXPECT_EQ(file.skipped, 0);
    }
  }
}

TEST_F(GradeFileTest, ExportsWithoutTitlesComeBackInTheToldLayouts) {
  Class& c = Current();
  c.NumInstruments = 1;
  ReDim(c.Instruments, 1);
  for (std::size_t i = 1; i <= 3; ++i) ReDim(c.Students[i].Marks, 1, ShortText("85"));
  for (const i16 mode : {kColumnsText, kSinglesText, kDoublesText, kTabsText, kCommasText})
    for (const int by : {kGradesById, kGradesByName})
      EXPECT_EQ(Read(ExportText(c, kExportGradesPlain, mode).bytes, mode, by),
                (Marks{"85", "85", "85"}))
          << mode << " " << by;
}

TEST_F(GradeFileTest, AStudentWithAnotherNameNowKeepsTheMarksInTheirColumn) {
  const char* titled = "ID\tNAME\tRivers\n\t\tRIV\n1\tOld, Ada\t91\n";
  EXPECT_EQ(Read(titled, kTabsText, kGradesById), (Marks{"", "91", ""}));
  const char* plain = "1\tOld, Ada\t91\n2\tLe, Bo\t82\n";
  EXPECT_EQ(Read(plain, kTabsText, kGradesById), (Marks{"82", "91", ""}));
  EXPECT_EQ(ReadGradeText(plain, kTabsText, {}, kGradesById).columns.size(), 1u);
  const std::string columns =
      "1            Old, Ada                         91\n"
      "2            Le, Bo                           82\n";
  EXPECT_EQ(Read(columns, kColumnsText, kGradesById), (Marks{"82", "91", ""}));
}

// What a layout writes for a mark of its own inside a name, and a name longer than its column.
TEST_F(GradeFileTest, NamesThatALayoutCannotCarryStillFindTheirStudent) {
  Class& c = Current();
  Enrol("4", "Ng", "Robert \"Bob\"");
  Enrol("5", "Tab\tber, Jr.", "Eve");
  Enrol("6", std::string(20, 'l'), std::string(20, 'f'));
  c.NumInstruments = 1;
  ReDim(c.Instruments, 1);
  for (std::size_t i = 1; i <= 6; ++i)
    ReDim(c.Students[i].Marks, 1, ShortText(std::string(i, 'A')));
  c.Students[6].Marks[1] = "B";
  const Marks all = {"A", "AA", "AAA", "AAAA", "AAAAA", "B"};
  for (const i16 mode : {kColumnsText, kSinglesText, kDoublesText, kTabsText, kCommasText})
    for (const int by : {kGradesById, kGradesByName}) {
      const std::string text = ExportText(c, kExportGradesPlain, mode).bytes;
      EXPECT_EQ(Read(text, mode, by), all) << mode << " " << by;
      EXPECT_EQ(ReadGradeText(text, mode, {}, by).columns.size(), 1u) << mode << " " << by;
    }
}

TEST_F(GradeFileTest, IdsThatALayoutCannotCarryStillFindTheirStudent) {
  Class& c = Current();
  Enrol("7,12", "Poe", "Di");
  Enrol("O'7", "Ray", "Ed");
  Enrol("\"8\"", "Sun", "Fay");
  Enrol("4711-0815-2026", "Tor", "Gus");
  c.NumInstruments = 1;
  ReDim(c.Instruments, 1);
  for (std::size_t i = 1; i <= 7; ++i)
    ReDim(c.Students[i].Marks, 1, ShortText(std::string(1, static_cast<char>('0' + i))));
  const Marks all = {"1", "2", "3", "4", "5", "6", "7"};
  for (const i16 mode :
       {kColumnsText, kSinglesText, kDoublesText, kTabsText, kCommasText, kCsvText})
    EXPECT_EQ(Read(ExportText(c, kExportGrades, mode).bytes, mode, kGradesById), all) << mode;
}

// Cut to twelve letters the two are one: neither takes the mark of the other.
TEST_F(GradeFileTest, IdsThatALayoutMakesEqualFindNobody) {
  Enrol("4711-0815-2026", "Poe", "Di");
  Enrol("4711-0815-2027", "Ray", "Ed");
  const char* text = "1            91\n4711-0815-20 55\n4711-0815-20 66\n";
  EXPECT_EQ(Read(text, kColumnsText, kGradesById), (Marks{"", "91", "", "", ""}));
  EXPECT_EQ(ReadGradeText(text, kColumnsText, {}, kGradesById).skipped, 2);
}

// "7 12" is an ID of its own, so the comma's is not looked for there.
TEST_F(GradeFileTest, AWholeIdGoesBeforeOneThatALayoutChanged) {
  Enrol("7,12", "Poe", "Di");
  Enrol("7 12", "Ray", "Ed");
  EXPECT_EQ(Read("7 12,55\n", kCommasText, kGradesById), (Marks{"", "", "", "", "55"}));
}

TEST_F(GradeFileTest, AStudentWithoutAFirstNameIsFoundByTheLastName) {
  Enrol("5", "Poe", "-");
  EXPECT_EQ(Read("Poe,70\n", kCommasText, kGradesByName), (Marks{"", "", "", "70"}));
  EXPECT_EQ(Read("Poe, -\t70\n", kTabsText, kGradesByName), (Marks{"", "", "", "70"}));
}

TEST_F(GradeFileTest, ALastNameAloneDoesNotTakeTheLineOfAnother) {
  Enrol("5", "Ng", "-");
  EXPECT_EQ(Read("Ng, Ada,91\nNg,55\n", kCommasText, kGradesByName), (Marks{"", "91", "", "55"}));
}

TEST_F(GradeFileTest, AMarkBehindANameIsNoPartOfIt) {
  EXPECT_EQ(Read("Ng Ada,-,91\n", kCommasText, kGradesByName), (Marks{"", "-", ""}));
  EXPECT_EQ(Read("Ng Ada,,91\n", kCommasText, kGradesByName), (Marks{"", "", ""}));
}

TEST_F(GradeFileTest, ALineWithoutAKeyIsNobodys) {
  Enrol("", "Poe", "Di");
  for (const i16 mode : {kCommasText, kCsvText}) {
    const GradeFile file = ReadGradeText("1,91\n,83\n", mode, {}, kGradesById);
    EXPECT_EQ(file.matched, 1);
    EXPECT_EQ(file.skipped, 1);
    EXPECT_EQ(file.columns.at(0).marks.at(4), "");
  }
}

TEST_F(GradeFileTest, TextsThatAClassFileCannotHoldAreListedAndLeftOut) {
  const GradeFile lines = ReadGradeText("1,9,\xC5\x81\n2,A\n", kCommasText, {}, kGradesById);
  EXPECT_EQ(lines.lacking, (Marks{"Line 1, grade 2: <U+0141>"}));
  EXPECT_EQ(lines.columns.at(0).marks, (Marks{"", "A", "9", ""}));
  EXPECT_EQ(lines.columns.at(1).marks, (Marks{"", "", "", ""}));
  const GradeFile csv =
      ReadGradeText("ID,\xC5\x81ok [LOK]\n1,91\n2,\xC5\x81\n", kCsvText, {}, kGradesById);
  EXPECT_EQ(csv.lacking, (Marks{"Line 1, title 1: <U+0141>ok [LOK]", "Line 3, grade 1: <U+0141>"}));
  EXPECT_EQ(csv.columns.at(0).title, "");
  EXPECT_EQ(csv.columns.at(0).code, "");
  EXPECT_EQ(csv.columns.at(0).marks, (Marks{"", "", "91", ""}));
}

TEST_F(GradeFileTest, TheListIsShownBeforeAnythingIsTaken) {
  ImportFile = Path("marks.txt");
  TextMode = kCommasText;
  ASSERT_EQ(ReplaceFile(ImportFile, "1,\xC5\x81\n2,A\n", OldTail::kDrop), 0);
  const std::string box =
      "A class file cannot hold these values. They will be left empty, and you can enter them in "
      "another spelling afterwards.\n\nLine 1, grade 1: <U+0141>\n\nContinue?";
  screen.ExpectBox(box, BoxAnswer::kNo);
  EXPECT_TRUE(ReadGradeImport(kGradesById).columns.empty());
  screen.ExpectBox(box, BoxAnswer::kYes);
  EXPECT_EQ(ReadGradeImport(kGradesById).columns.at(0).marks, (Marks{"", "A", "", ""}));
}

TEST_F(GradeFileTest, MarksThatWillBeCutAreCounted) {
  EXPECT_EQ(ReadGradeText("1,123456\n2, 12345 \n", kCommasText, {}, kGradesById).cut, 1);
}

TEST_F(GradeFileTest, RefusalsSayWhy) {
  EXPECT_EQ(ReadGradeText(std::string_view("\0", 1), kTabsText, {}, kGradesById).refusal,
            "is not a text file");
  EXPECT_EQ(ReadGradeText("", kTabsText, {}, kGradesById).refusal,
            "holds no student of this class");
  EXPECT_EQ(ReadGradeText("City,Street\nOslo,Main Street\n", kCsvText, {}, kGradesById).refusal,
            "has no columns with students and grades");
  EXPECT_EQ(ReadGradeText("ID,Quiz\n1,\"91\n", kCsvText, {}, kGradesById).refusal,
            "has a quotation mark in line 2 that is never closed");
}

TEST_F(GradeFileTest, AFileThatIsNotThereIsAFileError) {
  ImportFile = Path("none.txt");
  screen.ExpectBox("File Error 53");
  EXPECT_TRUE(ReadGradeImport(kGradesById).columns.empty());
}

}  // namespace
}  // namespace tallyroll
