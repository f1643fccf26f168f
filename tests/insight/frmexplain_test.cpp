// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/frmexplain.h"

#include <gmock/gmock.h>

#include "averages/explained/explain_student.h"
#include "averages/portals/frmscrnavg.h"
#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

using testing::Contains;

class FrmExplainTest : public AveragePortalTest {
 protected:
  FrmExplainTest() {
    AddGrade("Quiz 1", "Q ");
    AddGrade("Test 1", "T ");
    Enrol("Ng", {"80", "ABS"});
    Enrol("Orr", {"96", "94"});
    Class& c = Current();
    c.Method = 0;
    c.Weights = {Currency(), Money("50"), Money("50")};
  }
  void OpenFor(i16 student) {
    CurrentStudent = student;
    OpenState = kExplainStudent;
    Open(portal);
  }
  frmexplain portal;
};

TEST_F(FrmExplainTest, BeginsWithTheStudentItWasAskedAbout) {
  OpenFor(2);
  EXPECT_EQ(portal.lstName.ListIndex, 1);
  EXPECT_EQ(driver->Text("avg"), "95");
  EXPECT_EQ(driver->Text("final_grade"), "95 (A/EX/4.0)");
  EXPECT_EQ(Column(portal.grdgrade, 0), (Texts{"Quiz", "Quiz 1", "Test", "Test 1"}));
  EXPECT_EQ(Column(portal.grdgrade, 5), (Texts{"", "48", "", "47"}));
  EXPECT_FALSE(driver->Visible("grdtypes"));
  EXPECT_THAT(portal.lststeps.List, Contains("The average is 95."));
}

TEST_F(FrmExplainTest, NextAndPreviousStopAtTheEnds) {
  OpenFor(1);
  driver->Press("PREVIOUS");
  EXPECT_EQ(portal.lstName.ListIndex, 0);
  driver->Press("nextt");
  driver->Press("nextt");
  EXPECT_EQ(portal.lstName.ListIndex, 1);
  driver->Choose("lstName", 0);
  EXPECT_EQ(driver->Text("avg"), "80");
}

// The quiz is 40; each point of the test adds a half.
TEST_F(FrmExplainTest, AMarkThatIsTriedShowsItsAverageAtOnceAndIsNotKept) {
  OpenFor(1);
  driver->PickCell("grdgrade", 4, 1);
  EXPECT_EQ(driver->Text("chosen"), "Test 1");
  driver->Type("trymark", "90");
  EXPECT_EQ(driver->Text("tried"), "85   85 (B/SAT/3.0)");
  EXPECT_EQ(driver->Text("why"), "");
  driver->Type("trymark", "60");
  EXPECT_EQ(driver->Text("tried"), "70   70 (C-/SAT/2.0)");
  EXPECT_EQ(driver->Text("why"), "The grade counts now; before it was left out.");
  driver->Type("trymark", "9O");
  EXPECT_EQ(driver->Text("why"), "This is no grade; it counts by the number that it begins with.");
  EXPECT_EQ(Current().Students[1].Marks[2], "ABS");
  EXPECT_EQ(Current().Changed, kFalse);
}

// 92.5 of 100 asks for 52.5 beside the 40 of the quiz, which a mark of 100 does not give; 89 asks
// for 98, 86.5 for 93.
TEST_F(FrmExplainTest, NeedsAreShownForTheChosenGrade) {
  OpenFor(1);
  driver->PickCell("grdgrade", 4, 1);
  EXPECT_EQ(Headings(portal.grdneeds), (Texts{"Final grade", "Needs"}));
  const std::vector<std::string> needs = Column(portal.grdneeds, 1);
  ASSERT_EQ(needs.size(), 13U);
  EXPECT_EQ(needs[2], "cannot be reached");
  EXPECT_EQ(needs[3], "98");
  EXPECT_EQ(needs[4], "93");
  EXPECT_EQ(portal.grdneeds.TextMatrix(4, 0), "90 (A-/EX/4.0)");
}

TEST_F(FrmExplainTest, WeightsOfTypesHaveATableOfTheirOwn) {
  Current().Method = 1;
  Current().TypePercents[10] = Money("25");
  Current().TypePercents[12] = Money("75");
  OpenFor(2);  // 24 + 70.5
  EXPECT_TRUE(driver->Visible("grdtypes"));
  EXPECT_EQ(Column(portal.grdtypes, 0), (Texts{"Quiz", "Test"}));
  EXPECT_EQ(Column(portal.grdtypes, 5), (Texts{"24", "70.5"}));
}

TEST_F(FrmExplainTest, AClassWithoutAMethodHasNothingToExplain) {
  Current().Method = 5;
  Open(portal);
  EXPECT_EQ(portal.lststeps.List,
            (Texts{"There are no averages to explain yet: the class needs students, grades, and "
                   "weights or points for them."}));
  for (const char* button : {"preview", "PREVIOUS", "nextt"}) EXPECT_FALSE(driver->Enabled(button));
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmExplainTest, TheGradesPortalLeadsHere) {
  frmscrnavg grades;
  Open(grades);
  screen.ExpectBox("You must first select a student", BoxAnswer::kOk);
  driver->Press("explain");
  driver->Choose("lstName", 1);
  screen.ExpectPortal("frmexplain", [](PortalDriver& explain) {
    EXPECT_EQ(explain.Text("avg"), "95");
    explain.Press("exit");
  });
  driver->Press("explain");
  EXPECT_EQ(CurrentStudent, 2);
}

}  // namespace
}  // namespace tallyroll
