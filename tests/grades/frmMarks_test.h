// SPDX-License-Identifier: GPL-3.0-or-later
// The Enter Grades Portal on a class of three students.
#pragma once

#include "grades/frmMarks.h"
#include "grades/student_grid.h"
#include "tests/grades/grade_portal_test.h"

namespace tallyroll {

class FrmMarksTest : public GradePortalTest {
 protected:
  FrmMarksTest() {
    Enrol("Li", "Bo", "2");
    Enrol("Ng", "Ada", "1");
    Enrol("Orr", "Cy", "3");
  }
  void OpenMarks() { Open(portal); }
  std::string Cell(int student) const {
    return std::string(portal.Grid1.TextMatrix(student, kMarkColumn));
  }
  void TypeMark(int student, std::string_view mark) {
    driver->PickCell("Grid1", student, kMarkColumn);
    driver->TypeKeys("Grid1", mark);
  }
  void TypeMarks() {
    TypeMark(1, "81");
    TypeMark(2, "82");
    TypeMark(3, "83");
  }
  void TypeHeader() {
    driver->Type("title", "Rivers");
    driver->Type("code", "RIV");
  }
  void ChooseType(int type) { driver->Choose("ttypelist", type - 1); }
  // A quiz for every student, accepted.
  void AddQuiz() {
    OpenMarks();
    TypeHeader();
    ChooseType(10);
    TypeMarks();
    driver->Press("exit");
    EXPECT_TRUE(portal.Unloaded());
  }

  void ExpectOtherClipboardTold() {
    screen.ExpectBox(
        "There are no appropriate fields to be found on the clipboard. The data on the clipboard "
        "may not be the right type for inserting in the current module.  You need to go back to a "
        "compatible module, then copy the information to the clipboard and try again.");
  }

  frmMarks portal;
};

}  // namespace tallyroll
