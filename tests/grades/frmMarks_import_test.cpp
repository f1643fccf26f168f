// SPDX-License-Identifier: GPL-3.0-or-later
// A file of marks opened in the Enter Grades Portal.
#include "store/safe_file.h"
#include "store/text_layout.h"
#include "tests/grades/frmMarks_test.h"

namespace tallyroll {
namespace {

class FrmMarksImportTest : public FrmMarksTest {
 protected:
  // Opens the Portal on a file in comma layout.
  void ImportMarks(std::string_view text, int by) {
    ImportFile = Path("marks.txt");
    ASSERT_EQ(ReplaceFile(ImportFile, text, OldTail::kDrop), 0);
    TextMode = kCommasText;
    OpenState = by;
    OpenMarks();
  }
};

TEST_F(FrmMarksImportTest, MarksOfAFileFillTheColumn) {
  ImportMarks("1,91\n3,abs\n", kGradesById);
  EXPECT_EQ(Cell(1), "");
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

TEST_F(FrmMarksImportTest, AStudentWhomTheFileLacksStillNeedsAMark) {
  ImportMarks("1,91\n2,82\n", kGradesById);
  TypeHeader();
  screen.ExpectBox(kReminder);
  driver->Press("exit");
  TypeMark(3, "70");
  driver->Press("exit");
  EXPECT_EQ(Mark(2, 1), "91");
  EXPECT_EQ(Mark(3, 1), "70");
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
