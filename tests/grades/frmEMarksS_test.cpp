// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmEMarksS.h"

#include "grades/student_grid.h"
#include "tests/grades/grade_portal_test.h"

namespace tallyroll {
namespace {

const std::string kFillEachGrade =
    "You must fill in a GRADE for each testing instruement.\nUse TAB to move from one column to "
    "the next.\nUse ARROW KEYS to move between grade titles.";

class FrmEMarksSTest : public GradePortalTest {
 protected:
  FrmEMarksSTest() {
    Enrol("Li", "Bo", "2");
    Enrol("Ng", "Ada", "1");
    Give("Rivers", "RIV", "Q", {"81", "82"});
    Give("Lakes", "LAK", "Q", {"71", "A+"});
  }
  void OpenPortal() { Open(portal); }
  std::string Cell(int grade) const {
    return std::string(portal.grdgrade.TextMatrix(grade, kMarkColumn));
  }
  void TypeMark(int grade, std::string_view mark) {
    driver->PickCell("grdgrade", grade, kMarkColumn);
    driver->TypeKeys("grdgrade", mark);
  }

  frmEMarksS portal;
};

TEST_F(FrmEMarksSTest, ListsStudentsAndTitles) {
  OpenPortal();
  EXPECT_EQ(portal.Caption, "Edit Grades by Student Name Portal");
  EXPECT_EQ(driver->Text("namecaption"), "Names");
  EXPECT_EQ(portal.lstName.List, (std::vector<std::string>{"Li, Bo\t2", "Ng, Ada\t1"}));
  EXPECT_EQ(portal.grdgrade.TextMatrix(0, 0), "  TITLES");
  EXPECT_EQ(portal.grdgrade.TextMatrix(0, 2), "GR.");
  EXPECT_EQ(portal.grdgrade.TextMatrix(2, 0), "Lakes");
  EXPECT_EQ(portal.grdgrade.TextMatrix(2, 1), "LAK");
  EXPECT_EQ(Cell(1), "");
  EXPECT_FALSE(driver->Enabled("grdgrade"));
  EXPECT_FALSE(driver->Enabled("Command4"));
}

TEST_F(FrmEMarksSTest, SortedByIdTheCaptionSaysSo) {
  for (const i16 mode : {i16{73}, i16{82}}) {
    NameMode = mode;
    frmEMarksS one;
    one.Load();
    EXPECT_EQ(one.namecaption.Caption, "Id 's");
  }
}

TEST_F(FrmEMarksSTest, APickShowsTheMarksOfTheStudent) {
  OpenPortal();
  driver->Choose("lstName", 1);
  EXPECT_EQ(Cell(1), "82");
  EXPECT_EQ(Cell(2), "A+");
  EXPECT_TRUE(driver->Enabled("grdgrade"));
}

TEST_F(FrmEMarksSTest, AnotherPickStoresTheMarks) {
  OpenPortal();
  driver->Choose("lstName", 0);
  TypeMark(2, "b");
  driver->Choose("lstName", 1);
  EXPECT_EQ(Mark(1, 2), "B");
  EXPECT_EQ(Mark(1, 1), "81");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(Cell(2), "A+");
}

TEST_F(FrmEMarksSTest, ExitStoresAndCloses) {
  OpenPortal();
  driver->Choose("lstName", 1);
  driver->PickCell("grdgrade", 1, kMarkColumn);
  driver->PressKey("grdgrade", Key::kF8);
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Mark(2, 1), "CUT");
}

TEST_F(FrmEMarksSTest, AnEmptyMarkKeepsTheStudent) {
  OpenPortal();
  driver->Choose("lstName", 0);
  TypeMark(2, "\b");
  driver->PickCell("grdgrade", 1, kMarkColumn);
  screen.ExpectBox(kFillEachGrade);
  driver->Choose("lstName", 1);
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(portal.lstName.ListIndex, 0);
  EXPECT_EQ(driver->Focused(), "grdgrade");
  EXPECT_EQ(portal.grdgrade.Row, 2);
  EXPECT_EQ(Mark(1, 2), "71");
  screen.ExpectBox(kFillEachGrade);
  driver->Press("Exitt");
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmEMarksSTest, ExitWithoutAPickCloses) {
  OpenPortal();
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmEMarksSTest, CancelAfterAnEditAsks) {
  OpenPortal();
  driver->Choose("lstName", 0);
  TypeMark(1, "5");
  screen.ExpectBox(kDataEntered, BoxAnswer::kNo);
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
  screen.ExpectBox(kDataEntered, BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Mark(1, 1), "81");
}

TEST_F(FrmEMarksSTest, MarksChangedAndChangedBackGiveTheSameBytes) {
  Current().Students[1].Marks[1] = "81  ";
  const std::string before = Bytes();
  OpenPortal();
  driver->Choose("lstName", 0);
  TypeMark(2, "1");
  driver->Choose("lstName", 1);
  EXPECT_NE(Bytes(), before);
  driver->Choose("lstName", 0);
  TypeMark(2, "71");
  driver->Press("Exitt");
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmEMarksSTest, AMarkTypedLikeThePaddedOneLeavesItsBytes) {
  Current().Students[1].Marks[1] = "81  ";
  const std::string before = Bytes();
  OpenPortal();
  driver->Choose("lstName", 0);
  TypeMark(1, "81");
  driver->Press("Exitt");
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmEMarksSTest, EachNameModeHasItsLines) {
  const std::pair<i16, const char*> modes[] = {
      {68, "Li, Bo\t2"}, {57, "Li, Bo"}, {82, "2\tLi, Bo"}, {73, "2"}};
  for (const auto& [mode, line] : modes) {
    NameMode = mode;
    frmEMarksS one;
    one.Load();
    EXPECT_EQ(one.lstName.List.at(0), line);
  }
}

TEST_F(FrmEMarksSTest, AnotherStudentForgetsTheRowLastActive) {
  OpenPortal();
  driver->Choose("lstName", 0);
  TypeMark(2, "90");
  driver->Choose("lstName", 1);
  driver->PickCell("grdgrade", 2, kMarkColumn);
  driver->PickCell("grdgrade", 0, kMarkColumn);  // a heading belongs to no row
  EXPECT_EQ(portal.grdgrade.Row, 1);
}

TEST_F(FrmEMarksSTest, ExitAfterAMerePickChangesNothing) {
  OpenPortal();
  driver->Choose("lstName", 0);
  driver->Choose("lstName", 1);
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmEMarksSTest, AClassWithoutGradesHasNoMarksToEdit) {
  DropGrades();
  const std::string before = Bytes();
  OpenPortal();
  driver->Choose("lstName", 1);
  EXPECT_EQ(portal.grdgrade.Rows(), 1);
  driver->TypeKeys("grdgrade", "5");
  driver->Press("Command1");
  driver->Choose("lstName", 0);
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmEMarksSTest, AClassWithoutStudentsHasNobodyToPick) {
  DropStudents();
  OpenPortal();
  EXPECT_TRUE(portal.lstName.List.empty());
  EXPECT_FALSE(driver->Enabled("grdgrade"));
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
}

}  // namespace
}  // namespace tallyroll
