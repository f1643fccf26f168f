// SPDX-License-Identifier: GPL-3.0-or-later
// A file of marks opened in the Enter Grades Portal.
#include "store/safe_file.h"
#include "store/text_layout.h"
#include "tests/grades/frmMarks_test.h"

namespace tallyroll {
namespace {

class FrmMarksImportTest : public FrmMarksTest {
 protected:
  void ImportMarks(std::string_view text, int by, i16 mode = kCommasText) {
    ImportFile = Path("marks.txt");
    ASSERT_EQ(ReplaceFile(ImportFile, text, OldTail::kDrop), 0);
    TextMode = mode;
    OpenState = by;
    OpenMarks();
  }
  void ExpectNoGrades(const std::string& lines) {
    screen.ExpectBox(
        "These marks of the file are no grades as they stand. Of each only the number that it "
        "begins with counts, otherwise 0; letters count in capitals.\n" +
        lines);
  }
};

TEST_F(FrmMarksImportTest, MarksOfAFileFillTheColumn) {
  ImportMarks("1,91\n3,ABS\n", kGradesById);
  EXPECT_EQ(Cell(1), "NEW");
  EXPECT_EQ(Cell(2), "91");
  EXPECT_EQ(Cell(3), "ABS");
  EXPECT_TRUE(portal.DataEntered);
  EXPECT_EQ(window.status, "Students found in the file: 2.");
}

TEST_F(FrmMarksImportTest, MarksOfAFileAreCutAsTypedOnesAre) {
  ImportMarks("Ng Ada,1234567\n", kGradesByName);
  EXPECT_EQ(Cell(2), "12345");
  EXPECT_EQ(window.status, "Students found in the file: 1; grades cut to five characters: 1.");
}

TEST_F(FrmMarksImportTest, AStudentWhomTheFileLacksIsNotYetGraded) {
  ImportMarks("1,91\n2,82\n", kGradesById);
  TypeHeader();
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Mark(1, 1), "82");
  EXPECT_EQ(Mark(2, 1), "91");
  EXPECT_EQ(Mark(3, 1), "NEW");
}

TEST_F(FrmMarksImportTest, AStudentWithoutAMarkInHisLineStillNeedsOne) {
  ImportMarks("1,91\n2,82\n3,\n", kGradesById);
  EXPECT_EQ(Cell(3), "");
  TypeHeader();
  screen.ExpectBox(kReminder);
  driver->Press("exit");
  TypeMark(3, "70");
  driver->Press("exit");
  EXPECT_EQ(Mark(3, 1), "70");
}

// A lower-case b+ is worth 0, "8,5" is worth 8, and so they stand: they are listed, not changed.
TEST_F(FrmMarksImportTest, MarksThatAreNoGradesAreListedAsTheyStand) {
  const std::pair<i16, std::string> files[] = {
      {kColumnsText, "1            b+\n2            8,5\n3            B+\n"},
      {kSinglesText, "1'b+\n2'8,5\n3'B+\n"},
      {kDoublesText, "\"1\",\"b+\"\n\"2\",\"8,5\"\n\"3\",\"B+\"\n"},
      {kTabsText, "1\tb+\n2\t8,5\n3\tB+\n"},
      {kCsvText, "ID;Quiz\n1;b+\n2;8,5\n3;B+\n"}};
  for (const auto& [mode, text] : files) {
    frmMarks fresh;
    ImportFile = Path("marks.txt");
    ASSERT_EQ(ReplaceFile(ImportFile, text, OldTail::kDrop), 0);
    TextMode = mode;
    OpenState = kGradesById;
    ExpectNoGrades("\nLi, Bo: 8,5\nNg, Ada: b+");
    fresh.Load();
    EXPECT_EQ(fresh.Grid1.TextMatrix(2, kMarkColumn), "b+") << mode;
    EXPECT_EQ(fresh.Grid1.TextMatrix(1, kMarkColumn), "8,5") << mode;
    EXPECT_EQ(fresh.Grid1.TextMatrix(3, kMarkColumn), "B+") << mode;
  }
}

TEST_F(FrmMarksImportTest, OfGradesSideBySideTheListNamesWhich) {
  ExpectNoGrades("\nNg, Ada, grade 2: abs");
  ImportMarks("1,91,abs\n2,82,-5\n3,1e1,NON\n", kGradesById);
}

TEST_F(FrmMarksImportTest, ASpreadsheetsLettersAreCapitalsWhereThatWasTicked) {
  ImportColumns.uses = {CsvUse::kId, CsvUse::kGrade};
  ImportColumns.capitals = true;
  ImportMarks("1;b+\n2;abs\n3;85\n", kGradesById, kCsvText);
  EXPECT_EQ(Cell(1), "ABS");
  EXPECT_EQ(Cell(2), "B+");
  EXPECT_EQ(Cell(3), "85");
}

TEST_F(FrmMarksImportTest, AnotherTakesTheNextGradeOfTheFile) {
  ImportMarks("ID,NAME,Rivers,Lakes\n,,RIV,LAK\n1,Ng Ada,91,A\n2,Li Bo,82,B\n3,Orr Cy,73,C\n",
              kGradesById);
  EXPECT_EQ(window.status, "Students found in the file: 3; grades side by side: 2.");
  EXPECT_EQ(driver->Text("title"), "Rivers");
  EXPECT_EQ(driver->Text("code"), "RIV");
  driver->Press("another");
  EXPECT_EQ(driver->Text("title"), "Lakes");
  EXPECT_EQ(Cell(1), "B");
  driver->Press("another");
  EXPECT_EQ(driver->Text("title"), "");
  EXPECT_EQ(Cell(1), "");
  driver->Press("exit");
  EXPECT_EQ(Titles(), (std::vector<std::string>{"Rivers", "Lakes"}));
  EXPECT_EQ(Mark(2, 2), "A");
}

TEST_F(FrmMarksImportTest, AFileThatCannotBeReadLeavesThePortalClean) {
  ImportFile = Path("none.txt");
  OpenState = kGradesById;
  screen.ExpectBox("File Error 53");
  OpenMarks();
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumInstruments, 0);
}

}  // namespace
}  // namespace tallyroll
