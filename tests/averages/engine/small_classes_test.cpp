// SPDX-License-Identifier: GPL-3.0-or-later
// The Portals of the averages in a class without students, without grades, and with one of each.
#include "averages/engine/average_state.h"
#include "averages/portals/frmgradesave.h"
#include "averages/portals/frmoptions.h"
#include "averages/portals/frmpercents.h"
#include "averages/portals/frmpoints.h"
#include "averages/portals/frmroundoff.h"
#include "averages/portals/frmscrnavg.h"
#include "averages/portals/frmweights.h"
#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

class SmallClassesTest : public AveragePortalTest {
 protected:
  void AddQuiz() {
    AddGrade("Quiz 1", "Q ").mvalue = 50;
    Class& c = Current();
    c.Weights = {Currency(), Money("100")};
    c.InstrumentUse = {Currency(), Money("1")};
    c.TypePercents[10] = Money("100");
  }
  // Opens the Grades Portal and goes on to the first student.
  void ShowFirst(frmscrnavg& portal, i16 method) {
    Current().Method = method;
    Open(portal);
    driver->Press("nextt");
  }
  void SaveGrade(frmgradesave& portal) {
    Open(portal);
    driver->Type("title", "Term 1");
    driver->Type("code", "T1");
    driver->Press("save");
    EXPECT_TRUE(portal.Unloaded());
  }
};

TEST_F(SmallClassesTest, GradesOfNoStudents) {
  AddQuiz();
  for (i16 method = 0; method <= 3; ++method) {
    frmscrnavg portal;
    ShowFirst(portal, method);
    driver->Press("PREVIOUS");
    EXPECT_EQ(CurrentStudent, 0);
    EXPECT_EQ(driver->Text("avg"), "");
    EXPECT_FALSE(driver->Enabled("comments"));
    driver->Press("exit");
    EXPECT_TRUE(portal.Unloaded());
  }
}

TEST_F(SmallClassesTest, GradesOfAStudentWithoutAny) {
  Enrol("Ng", {});
  const std::string shown[] = {"0", "0", "0/0  0", "0/0  0"};
  for (i16 method = 0; method <= 3; ++method) {
    frmscrnavg portal;
    ShowFirst(portal, method);
    EXPECT_EQ(driver->Text("avg"), shown[method]) << method;
    EXPECT_EQ(driver->Text("suggr"), " 0 (F/UNSAT/ABS)");
    EXPECT_EQ(portal.grdgrade.Rows(), 1);
  }
}

TEST_F(SmallClassesTest, GradesOfOneStudentWithOne) {
  AddQuiz();
  Enrol("Ng", {"45"});
  const std::string shown[] = {"90", "90", "45/50  90", "45/50  90"};
  for (i16 method = 0; method <= 3; ++method) {
    frmscrnavg portal;
    ShowFirst(portal, method);
    driver->Press("nextt");
    EXPECT_EQ(CurrentStudent, 1);
    EXPECT_EQ(driver->Text("avg"), shown[method]) << method;
    EXPECT_EQ(driver->Text("suggr"), " 90 (A-/EX/4.0)");
  }
}

TEST_F(SmallClassesTest, PointsWithoutGradesSumToNothing) {
  DefaultMethod = 2;
  frmpoints portal;
  Open(portal);
  driver->TypeKeys("grdgrade", " ");
  driver->Press("paste");
  EXPECT_EQ(screen.clipboard, "4z\r");
  driver->Press("frombd");
  driver->Press("Sumanry");
  EXPECT_EQ(driver->Text("totals"), "0");
  screen.ExpectBox("Do you want to save these points", BoxAnswer::kNo);
  driver->Press("exit");
  EXPECT_EQ(Current().Method, 2);
  EXPECT_EQ(TotalPossible(), 0);
}

TEST_F(SmallClassesTest, PointsOfOneGradeNeedNoStudent) {
  DefaultMethod = 2;
  AddQuiz();
  frmpoints portal;
  Open(portal);
  EXPECT_EQ(driver->Text("totals"), "50");
  TypeCell("grdgrade", 1, 3, " ");
  EXPECT_EQ(driver->Text("totals"), "0");
}

TEST_F(SmallClassesTest, TypesWithoutGradesAreWeighedAllTheSame) {
  DefaultMethod = 1;
  frmpercents portal;
  Open(portal);
  driver->Press("equal");
  EXPECT_EQ(driver->Text("totals"), "0");
  TypeCell("typegrid", 10, 4, "100");
  screen.ExpectBox(kSaveWeights, BoxAnswer::kNo);
  driver->Press("exit");
  EXPECT_EQ(Current().TypePercents[10], Money("100"));
}

TEST_F(SmallClassesTest, TheOneTypeInUseTakesTheHundred) {
  DefaultMethod = 1;
  AddQuiz();
  frmpercents portal;
  Open(portal);
  driver->Press("equal");
  EXPECT_EQ(portal.typegrid.TextMatrix(10, 4), "100");
}

TEST_F(SmallClassesTest, TheOneGradeTakesTheHundred) {
  AddQuiz();
  frmweights portal;
  Open(portal);
  driver->Press("equal");
  EXPECT_EQ(portal.grdgrade.TextMatrix(1, 3), "100");
  screen.ExpectBox(kSaveWeights, BoxAnswer::kNo);
  driver->Press("exit");
  EXPECT_EQ(Current().Weights[1], Money("100"));
}

TEST_F(SmallClassesTest, TheSummaryOfAClassWithoutGrades) {
  for (i16 method = 0; method <= 3; ++method) {
    Current().Method = method;
    frmoptions portal;
    Open(portal);
    const bool items = method == 0 || method == 2;
    const Grid& grid = items ? portal.amountgrid : portal.typegrid;
    EXPECT_EQ(grid.Rows(), grid.FixedRows) << method;
    EXPECT_EQ(driver->Text("totals"), "0");
  }
}

TEST_F(SmallClassesTest, TheSummaryOfOneGradeWithoutStudents) {
  AddQuiz();
  for (i16 method = 0; method <= 3; ++method) {
    Current().Method = method;
    frmoptions portal;
    Open(portal);
    const bool items = method == 0 || method == 2;
    const Grid& grid = items ? portal.amountgrid : portal.typegrid;
    EXPECT_EQ(grid.TextMatrix(grid.Rows() - 1, 1), "Q") << method;
    EXPECT_EQ(driver->Text("totals"), "50");
  }
}

TEST_F(SmallClassesTest, AGradeIsSavedForNoStudents) {
  AddQuiz();
  Current().Method = 0;
  frmgradesave portal;
  SaveGrade(portal);
  EXPECT_EQ(Current().NumInstruments, 2);
  EXPECT_EQ(Current().Instruments[2].title, "Term 1");
}

TEST_F(SmallClassesTest, TheFirstGradeOfAClassIsASavedOne) {
  Enrol("Ng", {});
  Current().Method = 0;
  frmgradesave portal;
  SaveGrade(portal);
  EXPECT_EQ(Current().NumInstruments, 1);
  EXPECT_EQ(Current().Students[1].Marks[1], " 0");
}

TEST_F(SmallClassesTest, AGradeIsSavedForOneStudent) {
  AddQuiz();
  Enrol("Ng", {"45"});
  Current().Method = 0;
  frmgradesave portal;
  SaveGrade(portal);
  EXPECT_EQ(Current().Students[1].Marks[2], "90");
}

TEST_F(SmallClassesTest, RoundingNeedsNeitherStudentsNorGrades) {
  Current().Method = 0;
  for (int step = 0; step < 3; ++step) {
    if (step == 1) AddQuiz();
    if (step == 2) Enrol("Ng", {"45"});
    Current().RoundMode = 0;
    frmroundoff portal;
    Open(portal);
    EXPECT_EQ(portal.grdgrade.Rows(), 14);
    driver->Press("skip");
    EXPECT_EQ(portal.grdgrade.TextMatrix(1, 2), "100");
    driver->Press("noskip");
    EXPECT_EQ(portal.grdgrade.TextMatrix(1, 2), "99.5");
    driver->Press("continue");
    EXPECT_TRUE(portal.Unloaded());
  }
}

}  // namespace
}  // namespace tallyroll
