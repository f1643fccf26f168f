// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmEmarks.h"

#include "grades/student_grid.h"
#include "tests/grades/grade_portal_test.h"

namespace tallyroll {
namespace {

class FrmEmarksTest : public GradePortalTest {
 protected:
  FrmEmarksTest() {
    Enrol("Li", "Bo", "2");
    Enrol("Ng", "Ada", "1");
    Give("Rivers", "RIV", "Q", {"81", "82"});
    Give("Lakes", "LAK", "Q ", {"71", "A+"});
    Give("Hills", "HIL", "HW", {"61", "62"});
  }
  void OpenAt(i16 grade) {
    CurrentStudent = grade;
    Open(portal);
  }
  std::string Cell(int student) const {
    return std::string(portal.Grid1.TextMatrix(student, kMarkColumn));
  }
  void TypeMark(int student, std::string_view mark) {
    driver->PickCell("Grid1", student, kMarkColumn);
    driver->TypeKeys("Grid1", mark);
  }
  void ChooseType(int type) { driver->Choose("ttypelist", type - 1); }

  frmEmarks portal;
};

TEST_F(FrmEmarksTest, TheGradeHandedOverIsShown) {
  OpenAt(2);
  EXPECT_EQ(portal.Caption, "Edit Grades by Title Portal");
  EXPECT_EQ(portal.list1.List, (std::vector<std::string>{"Rivers", "Lakes", "Hills"}));
  EXPECT_EQ(portal.list1.ListIndex, 1);
  EXPECT_EQ(driver->Text("Title"), "Lakes");
  EXPECT_EQ(driver->Text("code"), "LAK");
  EXPECT_EQ(driver->Text("mvalue"), "100");
  EXPECT_EQ(driver->Text("dropyn"), "N");
  EXPECT_EQ(driver->Text("lowpass"), "65");
  EXPECT_EQ(portal.testdate.Value, 46266);
  EXPECT_EQ(driver->Text("ttypelist"), "Q    -  Quiz");
  EXPECT_EQ(Cell(1), "71");
  EXPECT_EQ(Cell(2), "A+");
}

TEST_F(FrmEmarksTest, AMarkOfZeroBytesIsShownAsNoneAndIsNone) {
  Current().Students[1].Marks[2] = std::string_view("\0\0", 2);
  Current().Students[2].Marks[2] = std::string_view("A+\0", 3);
  OpenAt(2);
  EXPECT_EQ(Cell(1), "");
  EXPECT_EQ(Cell(2), "A+");
  driver->Type("Title", "Lakes and seas");
  screen.ExpectBox(kReminder);
  driver->Press("Exitt");
  EXPECT_FALSE(portal.Unloaded());
  TypeMark(1, "75");
  driver->Press("Exitt");
  EXPECT_EQ(Current().Students[1].Marks[2], "75");
  EXPECT_EQ(Current().Students[2].Marks[2].view(), std::string_view("A+\0", 3));
}

TEST_F(FrmEmarksTest, WithoutAGradeTheFieldsWaitForAPick) {
  OpenAt(0);
  EXPECT_EQ(portal.list1.ListIndex, -1);
  EXPECT_FALSE(driver->Enabled("Title"));
  EXPECT_FALSE(driver->Enabled("Grid1"));
  EXPECT_FALSE(driver->Enabled("Command1"));
  EXPECT_EQ(portal.fields.Current, 0);
  driver->Choose("list1", 2);
  EXPECT_EQ(portal.fields.Current, 1);
  EXPECT_EQ(CurrentStudent, 3);
  EXPECT_EQ(driver->Text("Title"), "Hills");
  EXPECT_TRUE(driver->Enabled("Grid1"));
}

TEST_F(FrmEmarksTest, WithoutAGradeExitClosesAtOnce) {
  OpenAt(0);
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmEmarksTest, TheStudentHandedOverIsInWork) {
  OpenState = 2;
  OpenAt(1);
  EXPECT_EQ(portal.Grid1.Row, 2);
  driver->TypeKeys("Grid1", "55");
  driver->Press("Exitt");
  EXPECT_EQ(Mark(1, 1), "81");
  EXPECT_EQ(Mark(2, 1), "55");
}

TEST_F(FrmEmarksTest, AClickOnTheHeadingGoesBackToTheStudentHandedOver) {
  OpenState = 2;
  OpenAt(1);
  portal.marks.GoTo(1);
  driver->PickCell("Grid1", 0, kMarkColumn);
  EXPECT_EQ(portal.Grid1.Row, 2);
}

TEST_F(FrmEmarksTest, AStudentBeyondTheClassIsTheFirst) {
  OpenState = 3;
  OpenAt(1);
  EXPECT_EQ(portal.Grid1.Row, 1);
}

TEST_F(FrmEmarksTest, AGradeBeyondTheClassIsNone) {
  OpenAt(4);
  EXPECT_EQ(portal.list1.ListIndex, -1);
}

TEST_F(FrmEmarksTest, ExitStoresTheMarks) {
  OpenAt(1);
  TypeMark(2, "90");
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Mark(2, 1), "90");
  EXPECT_EQ(Mark(1, 1), "81");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmEmarksTest, ExitWithoutAnEditChangesNothing) {
  OpenAt(1);
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmEmarksTest, ExitStoresTheHeader) {
  OpenAt(1);
  driver->Type("Title", "Seas");
  driver->Type("code", "SEA");
  driver->Type("mvalue", "40");
  driver->TypeKeys("dropyn", "y");
  driver->PickDate("testdate", 46275);
  driver->Press("Exitt");
  EXPECT_EQ(Grade(1).title, "Seas");
  EXPECT_EQ(Grade(1).code, "SEA");
  EXPECT_EQ(Grade(1).mvalue, 40);
  EXPECT_EQ(Grade(1).lowpass, "26");
  EXPECT_EQ(Grade(1).dropyn, "Y");
  EXPECT_EQ(Grade(1).testdate, "9/10/2026");
}

TEST_F(FrmEmarksTest, MarksChangedAndChangedBackGiveTheSameBytes) {
  Grade(2).title = "Lakes  ";
  Grade(2).testdate = "9/1/26";
  Grade(2).dropyn = "N ";
  Grade(2).lowpass = "65 ";
  const std::string before = Bytes();
  OpenAt(2);
  TypeMark(1, "5");
  TypeMark(2, "6");
  driver->Choose("list1", 0);
  EXPECT_NE(Bytes(), before);
  driver->Choose("list1", 1);
  TypeMark(1, "71");
  TypeMark(2, "a+");
  driver->Press("Exitt");
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmEmarksTest, AMarkIsShownWithoutTheBlanksBehindItAndKeepsThem) {
  Current().Students[1].Marks[2] = "71 ";
  OpenAt(2);
  EXPECT_EQ(Cell(1), "71");
  TypeMark(2, "5");
  driver->Press("Exitt");
  EXPECT_EQ(Mark(1, 2), "71 ");
}

TEST_F(FrmEmarksTest, PickingAnotherTitleStoresTheShownGrade) {
  OpenAt(1);
  driver->Type("Title", "Seas");
  TypeMark(1, "99");
  driver->Choose("list1", 2);
  EXPECT_EQ(Grade(1).title, "Seas");
  EXPECT_EQ(Mark(1, 1), "99");
  EXPECT_EQ(portal.list1.List.at(0), "Seas");
  EXPECT_EQ(driver->Text("Title"), "Hills");
  EXPECT_EQ(CurrentStudent, 3);
  EXPECT_FALSE(portal.DataChanged);
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmEmarksTest, AnEmptiedMarkKeepsTheListOnItsTitle) {
  OpenAt(1);
  TypeMark(2, "\b");
  screen.ExpectBox(kReminder);
  driver->Choose("list1", 2);
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kCritical);
  EXPECT_EQ(portal.list1.ListIndex, 0);
  EXPECT_EQ(CurrentStudent, 1);
  EXPECT_EQ(driver->Text("Title"), "Rivers");
  EXPECT_EQ(portal.Mode, 2);
  EXPECT_EQ(driver->Focused(), "Grid1");
  EXPECT_EQ(portal.Grid1.Row, 2);
  EXPECT_EQ(Mark(2, 1), "82");
}

TEST_F(FrmEmarksTest, AnEmptyTitleIsToBeMended) {
  OpenAt(1);
  driver->Type("Title", "");
  screen.ExpectBox(kReminder);
  driver->Press("Exitt");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Focused(), "Title");
  EXPECT_EQ(portal.Mode, 1);
  EXPECT_EQ(Grade(1).title, "Rivers");
}

TEST_F(FrmEmarksTest, AMaximumScoreOf0IsRefused) {
  OpenAt(1);
  driver->Type("mvalue", "0");
  screen.ExpectBox(kScoreMustBeAbove0);
  driver->Choose("list1", 2);
  EXPECT_EQ(screen.boxes.at(0).title, " Note To The Teacher");
  EXPECT_EQ(portal.Mode, 3);
  EXPECT_EQ(portal.list1.ListIndex, 0);
  EXPECT_EQ(driver->Focused(), "mvalue");
  EXPECT_EQ(Grade(1).mvalue, 100);
}

TEST_F(FrmEmarksTest, ANegativeMaximumScorePasses) {
  OpenAt(1);
  driver->Type("mvalue", "-7");
  driver->Press("Exitt");
  EXPECT_EQ(Grade(1).mvalue, -7);
}

TEST_F(FrmEmarksTest, AMaximumScoreBeyond16BitsIsRefused) {
  OpenAt(1);
  driver->Type("mvalue", "40000");
  screen.ExpectBox("The value for Maximum Score must not be greater than 32767");
  driver->Press("Exitt");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Grade(1).mvalue, 100);
}

TEST_F(FrmEmarksTest, ADecimalPointInTheMaximumScoreIsRefused) {
  OpenAt(1);
  screen.ExpectBox("Maximum Score must be a whole number");
  driver->Type("mvalue", "5.");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the teacher.");
  EXPECT_EQ(driver->Text("mvalue"), "5");
  EXPECT_EQ(driver->Text("lowpass"), "3.25");
}

TEST_F(FrmEmarksTest, ATypeInUseInsteadOfOneThatKeepsAGradeKeepsTheMethod) {
  UseMethod(1);
  OpenAt(1);
  ChooseType(6);
  driver->Press("Exitt");
  EXPECT_EQ(Grade(1).typecode, "HW");
  ExpectMethodKept(1);
}

TEST_F(FrmEmarksTest, ATypeNewToTheClassForgetsTheMethod) {
  UseMethod(1);
  OpenAt(1);
  ChooseType(12);
  driver->Press("Exitt");
  EXPECT_EQ(Grade(1).typecode, "T ");
  ExpectMethodForgotten();
}

TEST_F(FrmEmarksTest, TheLastGradeOfATypeGivenAnotherForgetsTheMethod) {
  UseMethod(3);
  OpenAt(3);
  ChooseType(10);
  driver->Press("Exitt");
  ExpectMethodForgotten();
}

TEST_F(FrmEmarksTest, TheSecondOfTwoGradesToLeaveATypeForgetsTheMethod) {
  UseMethod(1);
  OpenAt(1);
  ChooseType(6);
  driver->Choose("list1", 1);
  ExpectMethodKept(1);
  ChooseType(6);
  driver->Press("Exitt");
  ExpectMethodForgotten();
}

TEST_F(FrmEmarksTest, UnderMethods0And2AChangeOfTypeKeepsTheMethod) {
  for (const i16 method : {i16{0}, i16{2}}) {
    UseMethod(method);
    frmEmarks other;
    CurrentStudent = 1;
    other.Load();
    PortalDriver hand(other);
    hand.Choose("ttypelist", method == 0 ? 11 : 4);
    hand.Press("Exitt");
    ExpectMethodKept(method);
  }
}

TEST_F(FrmEmarksTest, AChangeOfMarksAloneKeepsTheMethod) {
  UseMethod(1);
  OpenAt(3);
  TypeMark(1, "5");
  driver->Press("Exitt");
  ExpectMethodKept(1);
}

TEST_F(FrmEmarksTest, ACodeOfNoTypeStaysUntilATypeIsChosen) {
  Grade(1).typecode = "ZZ";
  OpenAt(1);
  EXPECT_EQ(portal.ttypelist.ListIndex, -1);
  TypeMark(1, "5");
  driver->Press("Exitt");
  EXPECT_EQ(Grade(1).typecode, "ZZ");
}

TEST_F(FrmEmarksTest, ADateThatIsNoneIsShownAsItStandsAndKept) {
  Grade(1).testdate = "some day";
  OpenAt(1);
  EXPECT_TRUE(driver->Visible("tempdate"));
  EXPECT_EQ(driver->Text("tempdate"), "some day");
  TypeMark(1, "5");
  driver->Choose("list1", 1);
  EXPECT_EQ(Grade(1).testdate, "some day");
  EXPECT_FALSE(driver->Visible("tempdate"));
  driver->Choose("list1", 0);
  driver->PickDate("testdate", 46275);
  EXPECT_FALSE(driver->Visible("tempdate"));
  driver->Press("Exitt");
  EXPECT_EQ(Grade(1).testdate, "9/10/2026");
}

TEST_F(FrmEmarksTest, CancelAfterAnEditAsks) {
  OpenAt(1);
  driver->Type("code", "X");
  screen.ExpectBox(kDataEntered, BoxAnswer::kNo);
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).title, "CANCEL");
  screen.ExpectBox(kDataEntered, BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Grade(1).code, "RIV");
}

TEST_F(FrmEmarksTest, CancelWithoutAnEditCloses) {
  OpenAt(1);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmEmarksTest, ACodeLongerThanTheLimitIsShownWhole) {
  Grade(1).code = "RIVER";
  OpenAt(1);
  EXPECT_EQ(portal.code.MaxLength, 5);
  driver->Choose("list1", 1);
  EXPECT_EQ(portal.code.MaxLength, 3);
}

TEST_F(FrmEmarksTest, AnotherTitleForgetsTheRowLastActive) {
  OpenAt(1);
  TypeMark(2, "90");
  driver->Choose("list1", 1);
  driver->PickCell("Grid1", 2, kMarkColumn);
  driver->PickCell("Grid1", 0, kMarkColumn);  // a heading belongs to no row
  EXPECT_EQ(portal.Grid1.Row, 1);
}

TEST_F(FrmEmarksTest, AMaximumScoreBelow16BitsIsRefused) {
  OpenAt(1);
  driver->Type("mvalue", "-40000");
  screen.ExpectBox("The value for Maximum Score must not be less than -32768");
  driver->Press("Exitt");
  EXPECT_FALSE(portal.Unloaded());
  ExpectLastBox(" Note To The Teacher", BoxIcon::kNone);
  EXPECT_EQ(Grade(1).mvalue, 100);
}

TEST_F(FrmEmarksTest, WithEverythingEmptiedExitClosesAtOnce) {
  Grade(1).dropyn = "";
  OpenAt(1);
  for (const char* box : {"Title", "code", "mvalue"}) driver->Type(box, "");
  for (int student = 1; student <= 2; ++student) TypeMark(student, "\b");
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Grade(1).title, "Rivers");
  EXPECT_EQ(Mark(1, 1), "81");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmEmarksTest, OneBlankMarkIsNotEmptied) {
  Grade(1).dropyn = "";
  OpenAt(1);
  for (const char* box : {"Title", "code", "mvalue"}) driver->Type(box, "");
  TypeMark(1, "\b");
  TypeMark(2, " ");
  screen.ExpectBox(kReminder);
  driver->Press("Exitt");
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmEmarksTest, KeysWriteTheSpecialMarks) {
  const std::pair<Key, const char*> keys[] = {
      {Key::kF6, "ABS"}, {Key::kF7, "NON"}, {Key::kF8, "CUT"}, {Key::kF9, "EXC"}};
  OpenAt(1);
  driver->PickCell("Grid1", 2, kMarkColumn);
  for (const auto& [key, mark] : keys) {
    driver->PressKey("Grid1", key);
    EXPECT_EQ(Cell(2), mark);
  }
  EXPECT_TRUE(portal.DataChanged);
}

TEST_F(FrmEmarksTest, ButtonsWriteTheSpecialMarks) {
  const std::pair<const char*, const char*> buttons[] = {
      {"Command1", "ABS"}, {"Command2", "NON"}, {"Command3", "CUT"}, {"Command4", "EXC"}};
  OpenAt(1);
  driver->PickCell("Grid1", 2, kMarkColumn);
  for (const auto& [button, mark] : buttons) {
    driver->Press(button);
    EXPECT_EQ(Cell(2), mark);
    EXPECT_EQ(driver->Focused(), "Grid1");
  }
  driver->Press("Exitt");
  EXPECT_EQ(Mark(2, 1), "EXC");
}

TEST_F(FrmEmarksTest, WithoutAMethodAChangeOfTypeEmptiesTheSettings) {
  UseMethod(5);
  OpenAt(3);
  ChooseType(12);
  driver->Press("Exitt");
  ExpectMethodForgotten();
}

TEST_F(FrmEmarksTest, AClassWithoutGradesHasNothingToEdit) {
  DropGrades();
  OpenAt(1);
  EXPECT_TRUE(portal.list1.List.empty());
  EXPECT_FALSE(driver->Enabled("Title"));
  EXPECT_FALSE(driver->Enabled("Grid1"));
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmEmarksTest, WithoutStudentsTheHeaderCanBeEdited) {
  DropStudents();
  OpenAt(1);
  EXPECT_EQ(portal.Grid1.Rows(), 1);
  driver->TypeKeys("Grid1", "5");
  driver->Press("Command1");
  driver->Type("Title", "Seas");
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Grade(1).title, "Seas");
}

}  // namespace
}  // namespace tallyroll
