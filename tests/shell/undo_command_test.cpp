// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo of what the commands of class windows did.
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class UndoCommandTest : public ShellTest {
 protected:
  // Gives the whole class a grade by the Enter Grades Portal.
  void EnterGrade(Form1& window, const std::string& title) {
    screen.ExpectPortal("frmMarks", [=](PortalDriver& work) {
      work.Type("title", title);
      work.Type("code", "N1");
      work.Type("mvalue", "50");
      work.PickCell("Grid1", 1, 2);
      work.TypeKeys("Grid1", "45");
      work.Press("exit");
    });
    window.ClickMenu("mnuMarks");
  }
  static std::string Bytes() {
    std::string bytes;
    EXPECT_EQ(SerializeClass(Current(), bytes), 0);
    return bytes;
  }
};

TEST_F(UndoCommandTest, NothingIsThereToUndoAtFirst) {
  Form1& window = Open("a.tyr");
  EXPECT_FALSE(window.menu.Reachable("mnuundo"));
  EXPECT_FALSE(window.menu.Reachable("mnuredo"));
  EXPECT_EQ(window.menu["mnuundo"].caption, "&Undo");
}

TEST_F(UndoCommandTest, AGradeThatWasEnteredGoesAndComesAgain) {
  Form1& window = Open("a.tyr", Sample(1, 1));
  const std::string before = Bytes();
  EnterGrade(window, "Quiz 5");
  const std::string after = Bytes();
  ASSERT_EQ(Current().NumInstruments, 2);
  EXPECT_EQ(window.menu["mnuundo"].caption, "&Undo Enter Grades: Quiz 5");
  window.ClickMenu("mnuundo");
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(window.Grid1.TextMatrix(1, 3), "");
  EXPECT_EQ(window.StatusText, "Undone: Enter Grades: Quiz 5.");
  EXPECT_FALSE(window.menu.Reachable("mnuundo"));
  EXPECT_EQ(window.menu["mnuredo"].caption, "&Redo Enter Grades: Quiz 5");
  window.ClickMenu("mnuredo");
  EXPECT_EQ(Bytes(), after);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(window.Grid1.TextMatrix(2, 3), "45");
}

TEST_F(UndoCommandTest, TheCellsThatCameBackAreMarkedUntilTheNextCommand) {
  Form1& window = Open("a.tyr", Sample(1, 1));
  EnterGrade(window, "Quiz 5");
  window.ClickMenu("mnuundo");
  EXPECT_EQ(window.Grid1.Style(2, 3), CellStyle::kInWork);
  EXPECT_EQ(NoteOf(window.Grid1.Notes, 2, 3).words, "changed just now");
  EXPECT_EQ(window.Grid1.Style(2, 2), CellStyle::kPlain);
  EXPECT_EQ(window.Grid1.Row, 2);
  EXPECT_EQ(window.Grid1.Col, 3);
  window.ClickMenu("mnusave");
  EXPECT_EQ(window.Grid1.Style(2, 3), CellStyle::kPlain);
}

TEST_F(UndoCommandTest, UndoGoesBackBeyondASave) {
  Form1& window = Open("a.tyr", Sample(1, 1));
  EnterGrade(window, "Quiz 5");
  window.ClickMenu("mnusave");
  EXPECT_EQ(Current().Changed, kFalse);
  window.ClickMenu("mnuundo");
  EXPECT_EQ(Current().NumInstruments, 1);
  EXPECT_EQ(Current().Changed, kTrue);
  window.ClickMenu("mnuredo");
  EXPECT_EQ(Current().NumInstruments, 2);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(UndoCommandTest, ADeletedStudentComesBackWithEveryMark) {
  Form1& window = Open("a.tyr", Sample(3, 2));
  const std::string before = Bytes();
  screen.ExpectPortal("frmdelete", [&](PortalDriver& work) {
    work.Choose("List1", 1);
    work.Press("delete");
    work.Press("exit");
  });
  screen.ExpectBox("Delete 102 Last02, First02?", BoxAnswer::kOk);
  window.ClickMenu("mnuDelete");
  ASSERT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(window.menu["mnuundo"].caption, "&Undo Delete Student: Last02, First02");
  window.ClickMenu("mnuundo");
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(window.Grid1.TextMatrix(3, 0), " 2 Last02, First02");
}

TEST_F(UndoCommandTest, EachClassHasStepsOfItsOwn) {
  Form1& first = Open("a.tyr", Sample(1, 1));
  EnterGrade(first, "Quiz 5");
  Form1& second = Open("b.tyr", Sample(1, 1));
  EXPECT_FALSE(second.menu.Reachable("mnuundo"));
  EXPECT_TRUE(first.menu.Reachable("mnuundo"));
}

TEST_F(UndoCommandTest, LookingAtAnAverageMakesNoStep) {
  Class c = Sample(2, 1);
  c.AverageSettings = "2,0,0,0,0";
  c.Instruments[1].typecode = "Q ";
  SetDefaultLetterValues(c);
  Form1& window = Open("a.tyr", c);
  screen.ExpectPortal("frmoptions", [](PortalDriver& work) { work.Press("continue"); });
  screen.ExpectPortal("frmscrnavg", [](PortalDriver& work) {
    work.Choose("lstName", 0);
    EXPECT_EQ(work.Text("suggr"), " 80 (B-/SAT/3.0)");
    work.Press("exit");
  });
  window.menu.Enable("mnuoptions", true);
  window.ClickMenu("mnuoptions");
  EXPECT_FALSE(window.menu.Reachable("mnuundo"));
}

TEST_F(UndoCommandTest, SortingAnotherWayMakesNoStep) {
  Form1& window = Open("a.tyr", Sample(3, 1));
  window.ClickMenu("mnunamefirst");
  Current().Students[1].id = "999";
  window.ClickMenu("mnuid");
  window.ClickMenu("mnunamefirst");
  EXPECT_EQ(window.menu["mnuundo"].caption, "&Undo Change: Last01, First01");
  window.ClickMenu("mnuid");
  EXPECT_EQ(window.menu["mnuundo"].caption, "&Undo Change: Last01, First01");
}

}  // namespace
}  // namespace tallyroll
