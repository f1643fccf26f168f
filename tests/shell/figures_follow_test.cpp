// SPDX-License-Identifier: GPL-3.0-or-later
// Figures follow each change of a class at once, and are the same when it is opened again.
#include "averages/rounding.h"
#include "base/text.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class FiguresFollowTest : public ShellTest {
 protected:
  // One student with 80 of 100 and 90 of 100 points.
  static Class Points() {
    Class c = Sample(1, 2);
    c.AverageSettings = "2,0,0,0,0";
    SetDefaultLetterValues(c);
    c.Instruments[1].typecode = "Q ";
    c.Instruments[2].typecode = "T ";
    for (std::size_t i = 1; i <= 2; ++i) c.Instruments[i].lowpass = "65";
    c.Instruments[1].dropyn = c.Instruments[2].dropyn = "N";
    c.Students[1].Marks[2] = "90";
    return c;
  }
  static std::string Figure() {
    CurrentStudent = 1;
    StudentAverage student;
    EXPECT_FALSE(AverageStudent(student));
    return PlainNumberText(student.points.earned) + "/" + PlainNumberText(student.points.possible) +
           "  " + PlainNumberText(student.exact) + " " +
           std::string(TrimRight(student.grade.Text()));
  }
  // Now, in the summary of settings, and after the class was saved and opened again.
  void ExpectFigure(Form1& window, const std::string& figure, const std::string& total) {
    EXPECT_EQ(Figure(), figure);
    screen.ExpectPortal("frmoptions", [total](PortalDriver& work) {
      EXPECT_EQ(work.Text("totals"), total);
      work.Press("EXIT");
    });
    window.ClickMenu("mnuoptions");
    const std::string path = Current().FileName;
    window.ClickMenu("mnusave");
    window.ClickMenu("mnuclose");
    FrameForm->OpenRecent(path);
    EXPECT_EQ(Figure(), figure) << "opened again";
  }
  // In the Enter Grades Portal, for one student.
  void AddGrade(Form1& window, const std::string& max, const std::string& mark) {
    screen.ExpectPortal("frmMarks", [=](PortalDriver& work) {
      work.Type("title", "New");
      work.Type("code", "N1");
      work.Type("mvalue", max);
      work.PickCell("Grid1", 1, 2);
      work.TypeKeys("Grid1", mark);
      work.Press("exit");
    });
    window.ClickMenu("mnuMarks");
  }
};

TEST_F(FiguresFollowTest, AGradeAdded) {
  Form1& window = Open("A.TYR", Points());
  AddGrade(window, "100", "40");
  ExpectFigure(window, "210/300  70  70 (C-/SAT/2.0)", "300");
}

TEST_F(FiguresFollowTest, AGradeDeleted) {
  Form1& window = Open("A.TYR", Points());
  screen.ExpectPortal("frmdGrade", [this](PortalDriver& work) {
    work.Choose("List1", 1);
    screen.ExpectBox("Delete Quiz?", BoxAnswer::kOk);
    work.Press("delete");
    work.Press("exitbt");
  });
  window.ClickMenu("mnuDMarks");
  ExpectFigure(window, "80/100  80  80 (B-/SAT/3.0)", "100");
}

TEST_F(FiguresFollowTest, AMaximumScoreChanged) {
  Form1& window = Open("A.TYR", Points());
  screen.ExpectPortal("frmEmarks", [](PortalDriver& work) {
    work.Choose("list1", 1);
    work.Type("mvalue", "300");
    work.Press("Exitt");
  });
  window.ClickMenu("mnuEMarksT");
  ExpectFigure(window, "170/400  42.5  55 (F/UNSAT/0.0)", "400");
}

TEST_F(FiguresFollowTest, AGradeThatBecomesExtraCredit) {
  Form1& window = Open("A.TYR", Points());
  screen.ExpectPortal("frmEmarks", [](PortalDriver& work) {
    work.Choose("list1", 1);
    work.Choose("ttypelist", 12);
    work.Press("Exitt");
  });
  window.ClickMenu("mnuEMarksT");
  ExpectFigure(window, "170/100  170  100 (A+/EX/4.0)", "100");
}

TEST_F(FiguresFollowTest, AGradeFromAnotherClass) {
  Class other = Points();
  other.Instruments[1].mvalue = 50;
  other.Students[1].Marks[1] = "25";
  Form1& source = Open("B.TYR", other);
  screen.ExpectPortal("frmdGrade", [this](PortalDriver& work) {
    work.Choose("List1", 0);
    screen.ExpectBox(
        "Transfer Quiz to the clipboard? (The Grade will still remain in the current class.)",
        BoxAnswer::kOk);
    work.Press("transfer");
    work.Press("exitbt");
  });
  source.ClickMenu("mnuTransfergrade");
  Form1& window = Open("A.TYR", Points());
  screen.ExpectPortal("frmMarks", [](PortalDriver& work) {
    work.Press("pastegrade");
    work.Press("exit");
  });
  window.ClickMenu("mnuMarks");
  ExpectFigure(window, "195/250  78  78 (C+/SAT/2.5)", "250");
  // The other class has its own 50 and 100.
  source.Activate();
  EXPECT_EQ(Figure(), "115/150  76.67  78 (C+/SAT/2.5)");
}

TEST_F(FiguresFollowTest, ALetterValueUnderSkipRounding) {
  Class c = Points();
  c.RoundMode = 1;
  Form1& window = Open("A.TYR", c);
  EXPECT_EQ(Figure(), "170/200  85  85 (B/SAT/3.0)");
  screen.ExpectPortal("frmletter", [](PortalDriver& work) {
    work.PickCell("grdletter", 5, 1);
    work.TypeKeys("grdletter", "86");
    work.Press("EXIT");
  });
  window.ClickMenu("mnuLetter");
  EXPECT_EQ(Current().RoundTable[4][5], 86.0f);
  ExpectFigure(window, "170/200  85  85 (B-/SAT/3.0)", "200");
}

TEST_F(FiguresFollowTest, AMarkOfALetterWhoseValueChanges) {
  Class c = Points();
  c.Students[1].Marks[2] = "B";
  Form1& window = Open("A.TYR", c);
  EXPECT_EQ(Figure(), "165/200  82.5  85 (B/SAT/3.0)");
  screen.ExpectPortal("frmletter", [](PortalDriver& work) {
    work.PickCell("grdletter", 5, 1);
    work.TypeKeys("grdletter", "79");
    work.Press("EXIT");
  });
  window.ClickMenu("mnuLetter");
  ExpectFigure(window, "159/200  79.5  80 (B-/SAT/3.0)", "200");
}

}  // namespace
}  // namespace tallyroll
