// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/grades/frmMarks_test.h"

namespace tallyroll {
namespace {

TEST_F(FrmMarksTest, TheClipboardDecidesWhatCanBePasted) {
  OpenMarks();
  EXPECT_FALSE(driver->Enabled("paste"));
  EXPECT_FALSE(driver->Enabled("pastegrade"));
}

TEST_F(FrmMarksTest, AHeaderOnTheClipboardCanBePasted) {
  screen.clipboard = "7z\r";
  OpenMarks();
  EXPECT_TRUE(driver->Enabled("paste"));
  EXPECT_FALSE(driver->Enabled("pastegrade"));
}

TEST_F(FrmMarksTest, CopyWritesTheHeaderALineEach) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "50");
  ChooseType(6);
  driver->Press("copy");
  EXPECT_EQ(screen.clipboard, "7z\rRivers\rRIV\r50\r32.5\r9/1/2026\rN\rHW  - Homework\r");
  EXPECT_TRUE(driver->Enabled("paste"));
}

TEST_F(FrmMarksTest, PasteFillsTheHeaderAndEmptiesTheMarks) {
  screen.clipboard = "7z\rRivers\rRIV\r50\r30\r9/10/2026\rY\rHW  - Homework\r";
  OpenMarks();
  TypeMark(1, "90");
  driver->Press("paste");
  EXPECT_EQ(driver->Text("title"), "Rivers");
  EXPECT_EQ(driver->Text("code"), "RIV");
  EXPECT_EQ(driver->Text("mvalue"), "50");
  EXPECT_EQ(driver->Text("lowpass"), "30");
  EXPECT_EQ(portal.testdate.Value, 46275);
  EXPECT_EQ(driver->Text("dropyn"), "Y");
  EXPECT_EQ(driver->Text("ttypelist"), "HW  - Homework");
  EXPECT_EQ(Cell(1), "");
  EXPECT_TRUE(portal.DataEntered);
  EXPECT_EQ(driver->Focused(), "Grid1");
  EXPECT_EQ(portal.Grid1.Col, kMarkColumn);
}

TEST_F(FrmMarksTest, PasteWithoutATypeTakesTheNoTypeEntry) {
  screen.clipboard = "7z\rRivers\rRIV\r50\r30\r9/10/2026\rY\r\r";
  OpenMarks();
  driver->Press("paste");
  EXPECT_EQ(portal.ttypelist.ListIndex, 25);
}

TEST_F(FrmMarksTest, PasteAsksBeforeItReplacesATitle) {
  screen.clipboard = "7z\rRivers\rRIV\r50\r30\r9/10/2026\rY\r\r";
  OpenMarks();
  driver->Type("title", "Lakes");
  screen.ExpectBox("There is already a Title - Replace with Clip Board", BoxAnswer::kNo);
  driver->Press("paste");
  EXPECT_EQ(driver->Text("title"), "Lakes");
  ExpectLastBox("Note to The Teacher", BoxIcon::kQuestion, BoxButtons::kYesNo);
  screen.ExpectBox("There is already a Title - Replace with Clip Board", BoxAnswer::kYes);
  driver->Press("paste");
  EXPECT_EQ(driver->Text("title"), "Rivers");
}

TEST_F(FrmMarksTest, PasteOfSomethingElseIsRefused) {
  screen.clipboard = "7z\r";
  OpenMarks();
  screen.clipboard = "3z\rLi\r";
  ExpectOtherClipboardTold();
  driver->Press("paste");
  ExpectLastBox("Note to the Teacher", BoxIcon::kNone);
  EXPECT_EQ(driver->Text("title"), "");
}

TEST_F(FrmMarksTest, PasteOfAnEmptyClipboardDoesNothing) {
  screen.clipboard = "7z\r";
  OpenMarks();
  screen.clipboard = "";
  driver->Press("paste");
  EXPECT_FALSE(portal.DataEntered);
}

TEST_F(FrmMarksTest, PasteOfATornHeaderIsRefused) {
  screen.clipboard = "7z\rRivers\rRIV\r";
  OpenMarks();
  screen.ExpectBox("Can not read from Clipboard.");
  driver->Press("paste");
  ExpectLastBox("Note to the Teacher", BoxIcon::kNone);
  EXPECT_EQ(driver->Text("title"), "");
}

TEST_F(FrmMarksTest, LinesThatPassedThroughAnotherProgramAreRead) {
  screen.clipboard = "7z\r\nRivers\r\nRIV\n50\r\n30\r\n9/10/2026\r\nY\r\nHW  - Homework\r\n";
  OpenMarks();
  driver->Press("paste");
  EXPECT_EQ(driver->Text("code"), "RIV");
  EXPECT_EQ(driver->Text("ttypelist"), "HW  - Homework");
}

TEST_F(FrmMarksTest, AGradeTakesTheMarksOfTheStudentsItKnows) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r2\r 1 , 41 \r9,42\r";
  OpenMarks();
  EXPECT_TRUE(driver->Enabled("pastegrade"));
  driver->Press("pastegrade");
  EXPECT_EQ(driver->Text("title"), "Rivers");
  EXPECT_EQ(driver->Text("ttypelist"), "HW  - Homework");
  EXPECT_EQ(Cell(1), "NEW");
  EXPECT_EQ(Cell(2), "41");
  EXPECT_EQ(Cell(3), "NEW");
  EXPECT_TRUE(portal.DataEntered);
}

TEST_F(FrmMarksTest, AGradeWithFewerLinesThanStudentsIsAddedAtOnce) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r1\r1,41\r";
  OpenMarks();
  driver->Press("pastegrade");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Mark(1, 1), "NEW");
  EXPECT_EQ(Mark(2, 1), "41");
  EXPECT_EQ(Grade(1).typecode, "HW");
}

TEST_F(FrmMarksTest, TwoStudentsOfOneIdTheFirstTakesTheMark) {
  Current().Students[3].id = "1";
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r1\r1,41\r";
  OpenMarks();
  driver->Press("pastegrade");
  EXPECT_EQ(Cell(2), "41");
  EXPECT_EQ(Cell(3), "NEW");
}

TEST_F(FrmMarksTest, AnIdWithCommasKeepsItsMark) {
  Current().Students[1].id = "7";
  Current().Students[2].id = " 7,12 ";
  Current().Students[3].id = "7,12,B";
  screen.clipboard =
      "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r4\r7,41\r 7,12 ,42\r7,12,B,43\r8,12,44\r";
  OpenMarks();
  driver->Press("pastegrade");
  EXPECT_EQ(Cell(1), "41");
  EXPECT_EQ(Cell(2), "42");
  EXPECT_EQ(Cell(3), "43");
}

// "7,8,5" may be the mark "8,5" of 7 as well: what stands before the last comma is an ID, and wins.
TEST_F(FrmMarksTest, TheLongestIdThatALineBeginsWithTakesItsMark) {
  Current().Students[1].id = "7";
  Current().Students[2].id = "7,8";
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r2\r7,8,5\r7,9,5\r";
  OpenMarks();
  driver->Press("pastegrade");
  EXPECT_EQ(Cell(1), "9,5");
  EXPECT_EQ(Cell(2), "5");
}

TEST_F(FrmMarksTest, AGradeComesToTheSameStudentsWhateverTheirIdsHold) {
  const std::vector<std::string> ids = {"O'Hara, \"Bo\"", ",", "a  b"};
  for (std::size_t i = 0; i < ids.size(); ++i) Current().Students[i + 1].id = ids[i];
  Give("Rivers", "RIV", "HW", {"B+", "8,5", "EXC"});
  screen.clipboard = GradeOnClipboard(1);
  OpenMarks();
  driver->Press("pastegrade");
  EXPECT_EQ(Cell(1), "B+");
  EXPECT_EQ(Cell(2), "8,5");
  EXPECT_EQ(Cell(3), "EXC");
}

TEST_F(FrmMarksTest, ATypeOfTwoCodesIsFoundByTheCodeOfOneCharacter) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rQ \r0\r";
  OpenMarks();
  driver->Press("pastegrade");
  EXPECT_EQ(driver->Text("ttypelist"), "Q    -  Quiz");
}

TEST_F(FrmMarksTest, AGradeAsksBeforeItReplacesATitle) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r0\r";
  OpenMarks();
  driver->Type("title", "Lakes");
  screen.ExpectBox("There is already a Title - Replace with Clip Board", BoxAnswer::kNo);
  driver->Press("pastegrade");
  EXPECT_EQ(driver->Text("title"), "Lakes");
}

TEST_F(FrmMarksTest, AGradeWithLinesMissingIsRefused) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r2\r1,41\r";
  OpenMarks();
  screen.ExpectBox("Can not read from Clipboard.");
  driver->Press("pastegrade");
  ExpectLastBox("Note to the Teacher", BoxIcon::kNone);
  EXPECT_EQ(Cell(1), "");
}

TEST_F(FrmMarksTest, AGradePastedFromAHeaderIsRefused) {
  screen.clipboard = "8z\r";
  OpenMarks();
  screen.clipboard = "7z\rRivers\r";
  ExpectOtherClipboardTold();
  driver->Press("pastegrade");
  ExpectLastBox("Note to the Teacher", BoxIcon::kNone);
  EXPECT_EQ(driver->Text("title"), "");
}

TEST_F(FrmMarksTest, AGradeAsksForTheTitleBeforeItLooksAtTheClipboard) {
  screen.clipboard = "8z\r";
  OpenMarks();
  driver->Type("title", "Lakes");
  screen.clipboard = "7z\rRivers\r";
  screen.ExpectBox("There is already a Title - Replace with Clip Board", BoxAnswer::kNo);
  driver->Press("pastegrade");
  ExpectLastBox("Note to The Teacher", BoxIcon::kQuestion, BoxButtons::kYesNo);
  screen.ExpectBox("There is already a Title - Replace with Clip Board", BoxAnswer::kYes);
  ExpectOtherClipboardTold();
  driver->Press("pastegrade");
  EXPECT_EQ(driver->Text("title"), "Lakes");
}

TEST_F(FrmMarksTest, AGradeFromAnEmptyClipboardIsRefused) {
  screen.clipboard = "8z\r";
  OpenMarks();
  screen.clipboard = "";
  ExpectOtherClipboardTold();
  driver->Press("pastegrade");
  EXPECT_FALSE(portal.DataEntered);
  EXPECT_EQ(Cell(1), "");
}

TEST_F(FrmMarksTest, PasteOfATypeThatIsNoneHereKeepsTheChoice) {
  screen.clipboard = "7z\rRivers\rRIV\r50\r30\r9/10/2026\rY\rZZ    -  Zithers\r";
  OpenMarks();
  ChooseType(6);
  driver->Press("paste");
  EXPECT_EQ(driver->Text("title"), "Rivers");
  EXPECT_EQ(driver->Text("ttypelist"), "HW  - Homework");
  EXPECT_EQ(portal.ttypelist.ListIndex, 5);
}

TEST_F(FrmMarksTest, AGradeOfATypeThatIsNoneHereKeepsTheChoice) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rZZ\r0\r";
  OpenMarks();
  ChooseType(6);
  driver->Press("pastegrade");
  EXPECT_EQ(driver->Text("title"), "Rivers");
  EXPECT_EQ(driver->Text("ttypelist"), "HW  - Homework");
  EXPECT_EQ(portal.ttypelist.ListIndex, 5);
}

TEST_F(FrmMarksTest, AGradeWithoutATypeTakesTheNoTypeEntry) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\r\r0\r";
  OpenMarks();
  driver->Press("pastegrade");
  EXPECT_EQ(portal.ttypelist.ListIndex, 25);
}

}  // namespace
}  // namespace tallyroll
