// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/grade_file.h"

#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/text_export.h"
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

TEST_F(GradeFileTest, AMarkThatAClassFileCannotHoldIsLeftOut) {
  EXPECT_EQ(Read("1,\xC5\x81\n2,A\n", kCommasText, kGradesById), (Marks{"A", "", ""}));
}

TEST_F(GradeFileTest, RefusalsSayWhy) {
  EXPECT_EQ(ReadGradeText(std::string_view("\0", 1), kTabsText, {}, kGradesById).refusal,
            "is not a text file");
  EXPECT_EQ(ReadGradeText("", kTabsText, {}, kGradesById).refusal,
            "holds no student of this class");
  EXPECT_EQ(ReadGradeText("City,Street\nOslo,Main Street\n", kCsvText, {}, kGradesById).refusal,
            "has no columns with students and grades");
}

TEST_F(GradeFileTest, AFileThatIsNotThereIsAFileError) {
  ImportFile = Path("none.txt");
  screen.ExpectBox("File Error 53");
  EXPECT_TRUE(ReadGradeImport(kGradesById).columns.empty());
}

}  // namespace
}  // namespace tallyroll
