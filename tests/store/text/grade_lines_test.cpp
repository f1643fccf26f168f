// SPDX-License-Identifier: GPL-3.0-or-later
// The ends of the lines and rows that grades are read from.
#include "store/text/grade_lines.h"

#include "store/program_state.h"
#include "store/text/grade_file.h"
#include "store/text_layout.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

using Marks = std::vector<std::string>;

class GradeLinesTest : public PortalTest {
 protected:
  GradeLinesTest() {
    Enrol("2", "Le", "Bo");
    Enrol("1", "Ng", "Ada");
    Enrol("3", "Orr", "Cy");
  }
  static void Enrol(const std::string& id, const std::string& last, const std::string& first) {
    Class& c = Current();
    ReDimPreserve(c.Students, ++c.NumStudents);
    c.Students.back().id = id;
    c.Students.back().lastname = last;
    c.Students.back().firstname = first;
  }
  static GradeFile Read(std::string_view text, i16 mode, int by) {
    GradeFile file = ReadGradeText(text, mode, {}, by);
    EXPECT_EQ(file.refusal, "");
    return file;
  }
  // A line of formatted columns, each text at its place.
  static std::string Line(std::initializer_list<std::pair<std::size_t, const char*>> texts) {
    std::string line;
    for (const auto& [place, text] : texts) {
      line.resize(place, ' ');
      line += text;
    }
    return line + "\n";
  }
};

TEST_F(GradeLinesTest, TheFirstStudentMayHaveACommaBetweenTheNames) {
  const GradeFile file = Read("Le, Bo,82\nNg, Ada,91\n", kCommasText, kGradesByName);
  EXPECT_EQ(file.matched, 2);
  ASSERT_EQ(file.columns.size(), 1u);
  EXPECT_EQ(file.columns[0].marks, (Marks{"", "82", "91", ""}));
}

TEST_F(GradeLinesTest, ALineMayEndBehindTheName) {
  for (const char* line : {"Ng Ada\n", "Ng, Ada\n"}) {
    const GradeFile file = Read(line, kCommasText, kGradesByName);
    EXPECT_EQ(file.matched, 1) << line;
    EXPECT_EQ(file.skipped, 0) << line;
    EXPECT_TRUE(file.columns.empty()) << line;
  }
}

TEST_F(GradeLinesTest, ALineMayEndBehindTheId) {
  const GradeFile file = Read("3\n1\tNg, Ada\t91\n2\tLe, Bo\n", kTabsText, kGradesById);
  EXPECT_EQ(file.matched, 3);
  ASSERT_EQ(file.columns.size(), 1u);
  EXPECT_EQ(file.columns[0].marks, (Marks{"", "", "91", ""}));
}

TEST_F(GradeLinesTest, AnUnknownNameAloneIsSkipped) {
  const GradeFile file = Read("Zed\nYoe,Xi\nNg Ada,91\n", kCommasText, kGradesByName);
  EXPECT_EQ(file.matched, 1);
  EXPECT_EQ(file.skipped, 2);
  EXPECT_EQ(file.columns.at(0).marks, (Marks{"", "", "91", ""}));
}

TEST_F(GradeLinesTest, AnUnknownIdWithoutANameDoesNotSpeakForTheOthers) {
  for (const char* unknown : {"9\n", "9,,5\n"}) {
    const GradeFile file = Read(std::string(unknown) + "1,91\n", kCommasText, kGradesById);
    EXPECT_EQ(file.skipped, 1);
    ASSERT_EQ(file.columns.size(), 1u) << unknown;
    EXPECT_EQ(file.columns[0].marks, (Marks{"", "", "91", ""})) << unknown;
  }
}

TEST_F(GradeLinesTest, EachTitleHasItsCode) {
  const GradeFile file =
      Read("ID\tNAME\tLakes\tDams\n\t\tLAK\tDAM\n1\tNg, Ada\t91\tB\n", kTabsText, kGradesById);
  ASSERT_EQ(file.columns.size(), 2u);
  EXPECT_EQ(file.columns[0].title, "Lakes");
  EXPECT_EQ(file.columns[0].code, "LAK");
  EXPECT_EQ(file.columns[1].title, "Dams");
  EXPECT_EQ(file.columns[1].code, "DAM");
  EXPECT_EQ(file.skipped, 0);
}

TEST_F(GradeLinesTest, AStudentWithoutANameBehindTheTitlesIsNoLineOfCodes) {
  const GradeFile tabs = Read("ID\tNAME\tRivers\n1\t\t91\n", kTabsText, kGradesById);
  EXPECT_EQ(tabs.columns.at(0).code, "");
  EXPECT_EQ(tabs.columns.at(0).marks, (Marks{"", "", "91", ""}));
  const GradeFile columns =
      Read(Line({{0, "ID"}, {13, "NAME"}, {46, "Rivers"}}) + Line({{0, "1"}, {46, "91"}}),
           kColumnsText, kGradesById);
  EXPECT_EQ(columns.columns.at(0).code, "");
  EXPECT_EQ(columns.columns.at(0).marks, (Marks{"", "", "91", ""}));
}

TEST_F(GradeLinesTest, CodesStandRightBehindTheTitlesOrNowhere) {
  // Without titles.
  GradeFile file = Read("\t\tRIV\n1\tNg, Ada\t91\n", kTabsText, kGradesById);
  EXPECT_EQ(file.columns.at(0).code, "");
  EXPECT_EQ(file.skipped, 1);
  // Behind a student.
  file = Read("ID\tNAME\tRivers\n1\tNg, Ada\t91\n\t\tRIV\n", kTabsText, kGradesById);
  EXPECT_EQ(file.columns.at(0).code, "");
  EXPECT_EQ(file.skipped, 1);
  // Behind the codes.
  file = Read("ID\tNAME\tRivers\n\t\tRIV\n1\tNg, Ada\t91\n\t\tDAM\n", kTabsText, kGradesById);
  EXPECT_EQ(file.columns.at(0).code, "RIV");
  EXPECT_EQ(file.skipped, 1);
}

TEST_F(GradeLinesTest, TitlesStandInTheFirstLineOrNowhere) {
  const GradeFile file = Read("1\tNg, Ada\t91\nID\tNAME\tRivers\n", kTabsText, kGradesById);
  EXPECT_EQ(file.columns.at(0).title, "");
  EXPECT_EQ(file.skipped, 1);
}

TEST_F(GradeLinesTest, AMarkOfFiveCharactersStandsWholeBehindANameInColumns) {
  const GradeFile file =
      Read(Line({{0, "Ng, Ada"}, {33, "12.50 82"}}), kColumnsText, kGradesByName);
  ASSERT_EQ(file.columns.size(), 2u);
  EXPECT_EQ(file.columns[0].marks, (Marks{"", "", "12.50", ""}));
  EXPECT_EQ(file.columns[1].marks, (Marks{"", "", "82", ""}));
}

TEST_F(GradeLinesTest, AColumnThatIsFilledUpIsTheLast) {
  // The mark takes its six places, and the line ends there.
  const GradeFile file = Read(Line({{0, "1"}, {13, "91    "}}), kColumnsText, kGradesById);
  ASSERT_EQ(file.columns.size(), 1u);
  EXPECT_EQ(file.columns[0].marks, (Marks{"", "", "91", ""}));
}

TEST_F(GradeLinesTest, AThousandMarksOfALineAreTaken) {
  std::string columns = "1            ";
  std::string tabs = "1";
  for (int i = 0; i < 1001; ++i) {
    columns += "9     ";
    tabs += "\t9";
  }
  EXPECT_EQ(Read(columns, kColumnsText, kGradesById).columns.size(), 1000u);
  // A thousand fields, of which the id is one.
  EXPECT_EQ(Read(tabs, kTabsText, kGradesById).columns.size(), 999u);
}

TEST_F(GradeLinesTest, OfTwoLinesForOneStudentTheFirstCounts) {
  for (const char* id : {"2", "1", "3"}) {
    const std::string line(id);
    const GradeFile file = Read(line + ",82\n" + line + ",55\n", kCommasText, kGradesById);
    EXPECT_EQ(file.matched, 1) << id;
    EXPECT_EQ(file.skipped, 1) << id;
  }
}

TEST_F(GradeLinesTest, AControlCharacterInANamePartsItsWords) {
  Enrol("4", std::string("De\0Wit", 6), "Al");
  Enrol("5",
        "Van\x1F"
        "Eck",
        "Jo");
  const GradeFile file = Read("De Wit Al,91\nVan Eck Jo,82\n", kCommasText, kGradesByName);
  EXPECT_EQ(file.matched, 2);
  EXPECT_EQ(file.columns.at(0).marks, (Marks{"", "", "", "", "91", "82"}));
}

TEST_F(GradeLinesTest, ARowMayEndBeforeItsMarkOrItsKey) {
  GradeFile file = Read("ID,Score\n1\n2,91\n", kCsvText, kGradesById);
  EXPECT_EQ(file.matched, 2);
  EXPECT_EQ(file.columns.at(0).marks, (Marks{"", "91", "", ""}));
  file = Read("Score,ID\n91,1\n55\n", kCsvText, kGradesById);
  EXPECT_EQ(file.matched, 1);
  EXPECT_EQ(file.skipped, 1);
  ASSERT_EQ(file.columns.size(), 1u);
  EXPECT_EQ(file.columns[0].title, "Score");
  EXPECT_EQ(file.columns[0].marks, (Marks{"", "", "91", ""}));
}

TEST_F(GradeLinesTest, ACodeStandsBetweenABlankAndTwoBrackets) {
  const GradeFile file =
      Read("ID,Rivers [RIV],Lakes],Dams [DAM\n1,91,82,73\n", kCsvText, kGradesById);
  ASSERT_EQ(file.columns.size(), 3u);
  EXPECT_EQ(file.columns[0].title, "Rivers");
  EXPECT_EQ(file.columns[0].code, "RIV");
  EXPECT_EQ(file.columns[1].title, "Lakes]");
  EXPECT_EQ(file.columns[1].code, "");
  EXPECT_EQ(file.columns[2].title, "Dams [DAM");
  EXPECT_EQ(file.columns[2].code, "");
}

}  // namespace
}  // namespace tallyroll
