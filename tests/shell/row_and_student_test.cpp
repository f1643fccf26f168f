// SPDX-License-Identifier: GPL-3.0-or-later
// The row of the class window and the student whom a click on it reaches, whatever Portal went
// before.
#include "store/student_names.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class RowAndStudentTest : public ShellTest {
 protected:
  static Class Roster() {
    Class c = Sample(3, 1);
    c.AverageSettings = "2,0,0,0,0";
    constexpr const char* kNames[] = {"", "Abrams", "Aguilar", "Baker"};
    for (std::size_t i = 1; i <= 3; ++i) {
      c.Students[i].lastname = kNames[i];
      c.Students[i].firstname = "Jo";
    }
    return c;
  }

  // Each row shows its student, and a double click on it edits him.
  void ExpectRowsReachTheirStudents(Form1& window) {
    for (int i = 1; i <= Current().NumStudents; ++i) {
      const Student& student = Current().Students[static_cast<std::size_t>(i)];
      const std::string id = student.id;
      EXPECT_EQ(window.Grid1.TextMatrix(i + 1, NameMode >= 73 ? 0 : 1), id + " ");
      screen.ExpectPortal("frmEdit", [id](PortalDriver& work) {
        EXPECT_EQ(work.Text("id"), id);
        work.Press("cancel");
      });
      window.Grid1.MouseRow = i + 1;
      window.Grid1.MouseCol = 0;
      window.Grid1_DblClick();
    }
  }
  using Lines = std::vector<std::string>;
  static Lines Rows(const Form1& window, int col) {
    Lines rows;
    for (int i = 1; i <= Current().NumStudents; ++i)
      rows.emplace_back(window.Grid1.TextMatrix(i + 1, col));
    return rows;
  }
  // In the Edit Portal the first student gets this in a box, and then the button is pressed.
  void EditFirst(Form1& window, std::string box, std::string text, std::string button) {
    screen.ExpectPortal("frmEdit", [=](PortalDriver& work) {
      work.Choose("List1", 0);
      work.Type(box, text);
      work.Press(button);
      if (!work.portal().Unloaded()) work.Press("cancel");
    });
    window.ClickMenu("mnuEdit");
  }
};

TEST_F(RowAndStudentTest, ARenamedStudentGoesToHisRowAtOnce) {
  Form1& window = Open("A.TYR", Roster());
  EditFirst(window, "lastname", "Zuk", "exit");
  EXPECT_EQ(Rows(window, 0), (Lines{" 1 Aguilar, Jo", " 2 Baker, Jo", " 3 Zuk, Jo"}));
  ExpectRowsReachTheirStudents(window);
}

TEST_F(RowAndStudentTest, AStudentWhoWasKeptBeforeCancelGoesToHisRowToo) {
  Form1& window = Open("A.TYR", Roster());
  EditFirst(window, "lastname", "Zuk", "nextt");
  EXPECT_EQ(Rows(window, 0), (Lines{" 1 Aguilar, Jo", " 2 Baker, Jo", " 3 Zuk, Jo"}));
  ExpectRowsReachTheirStudents(window);
}

TEST_F(RowAndStudentTest, APreviewLeavesEachRowToItsStudent) {
  Form1& window = Open("A.TYR", Roster());
  EditFirst(window, "lastname", "Zuk", "exit");
  screen.ExpectPortal("frmprintall", [this](PortalDriver& work) {
    screen.ExpectPortal("printmsg", [](PortalDriver& title) { title.Press("continue"); });
    screen.ExpectPortal("frmprintpre", [](PortalDriver& pages) { pages.Press("twelve"); });
    work.Press("preview");
    screen.ExpectPortal("printmsg", [](PortalDriver& title) { title.Press("continue"); });
    work.Press("prints");
    work.Press("cancel");
  });
  window.ClickMenu("mnuroster");
  ExpectRowsReachTheirStudents(window);
}

TEST_F(RowAndStudentTest, AStudentAddedByNextStandsInHisRowAfterCancel) {
  Form1& window = Open("A.TYR", Roster());
  screen.ExpectPortal("frmAdd", [](PortalDriver& work) {
    work.Type("lastname", "Adler");
    work.Type("firstname", "Jo");
    work.Type("id", "100");
    work.Press("nextt");
    work.Press("cancel");
  });
  window.ClickMenu("mnuAdd");
  EXPECT_EQ(Rows(window, 0),
            (Lines{" 1 Abrams, Jo", " 2 Adler, Jo", " 3 Aguilar, Jo", " 4 Baker, Jo"}));
  ExpectRowsReachTheirStudents(window);
}

TEST_F(RowAndStudentTest, AChangedIdGoesToItsRowWhereIdsSort) {
  NameMode = 73;
  Form1& window = Open("A.TYR", Roster());
  EditFirst(window, "id", "199", "exit");
  EXPECT_EQ(Rows(window, 0), (Lines{"102 ", "103 ", "199 "}));
  ExpectRowsReachTheirStudents(window);
}

// The Portals that show students change none, but whatever reordered them before is mended here.
TEST_F(RowAndStudentTest, EveryPortalEndsInAFilledGrid) {
  Form1& window = Open("A.TYR", Roster());
  int round = 0;
  for (const auto& [entry, portal] :
       {std::pair{"mnuVScreen", "frminfo"}, std::pair{"mnuclassinfo", "frmclassinfo"},
        std::pair{"mnuLetter", "frmletter"}}) {
    const std::string name = "Zuk" + PlainNumberText(++round);
    screen.ExpectPortal(portal, [name](PortalDriver& work) {
      Current().Students[1].lastname = name;
      work.CloseWindow();
    });
    window.ClickMenu(entry);
    EXPECT_EQ(window.Grid1.TextMatrix(4, 0), " 3 " + name + ", Jo");
  }
}

TEST_F(RowAndStudentTest, ManyStudentsOfEqualNamesKeepTheirRows) {
  Class c = Sample(200, 2);
  for (std::size_t i = 1; i <= 200; ++i) c.Students[i].lastname = i % 3 == 0 ? "Same" : "Other";
  for (std::size_t i = 1; i <= 200; ++i) c.Students[i].firstname = "";
  Form1& window = Open("A.TYR", c);
  const Lines before = Rows(window, 1);
  screen.ExpectPortal("frmEMarksS", [](PortalDriver& work) { work.Press("cancel"); });
  window.ClickMenu("mnuEMarksS");
  EXPECT_EQ(Rows(window, 1), before);
}

}  // namespace
}  // namespace tallyroll
