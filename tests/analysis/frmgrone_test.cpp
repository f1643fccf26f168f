// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/frmgrone.h"

#include <gtest/gtest.h>

#include <cmath>

#include "averages/portals/frminfo.h"
#include "tests/analysis/analysis_test.h"

namespace tallyroll {
namespace {

class FrmgroneTest : public AnalysisTest {
 protected:
  FrmgroneTest() {
    AddNamed("Quiz 1", "Q1", "Q ", 50, "10/2/2026");
    AddNamed("Test 1", "T1", "T ", 100, "9/2/2026");
    AddNamed("Quiz 2", "Q2", "Q ", 20, "9/30/2026");
    Enrol("Ng", {"45", "ABS", "25"});
    Enrol("Abel", {"40", "81", "NEW"});
    Enrol("Dyer", {"NEW", "NEW", "NEW"});
  }
  static void AddNamed(const char* title, const char* code, const char* type, i16 mvalue,
                       const char* date) {
    Instrument& grade = AddGrade(title, type);
    grade.code = code;
    grade.mvalue = mvalue;
    grade.testdate = date;
  }
  void OpenFor(frmgrone& portal, i16 student) {
    CurrentStudent = student;
    Open(portal);
  }
  static const std::vector<double>& Values(const frmgrone& portal) {
    return portal.Graph1.chart.sets[0].values;
  }
};

// 45 of 50 is 90 percent, 25 of 20 is 125; an absence stands at 0.
TEST_F(FrmgroneTest, ChartsAllGradesAsPercents) {
  frmgrone portal;
  OpenFor(portal, 1);
  EXPECT_EQ(portal.Caption, "Student Progress Portal for ADA NG 101");
  EXPECT_EQ(portal.Graph1.chart.title, "ADA NG 101");
  EXPECT_EQ(portal.Graph1.chart.kind, ChartKind::kBar);
  EXPECT_EQ(portal.Graph1.chart.labels, Texts({"Q1", "T1", "Q2"}));
  EXPECT_EQ(Values(portal), (std::vector<double>{90, 0, 125}));
  EXPECT_EQ(portal.Graph1.chart.sets[0].tells,
            Texts({"Quiz 1: 90 %, 2 students present", "Test 1: ABS, 0 %, 1 student present",
                   "Quiz 2: 125 %, 1 student present"}));
  EXPECT_EQ(portal.ttypelist.List, Texts({"Quiz", "Test"}));
  EXPECT_FALSE(driver->Visible("gradetype"));
}

TEST_F(FrmgroneTest, NamesTheStudentAsTheClassWindowDoes) {
  const std::pair<i16, const char*> labels[] = {
      {68, "ADA NG 101"}, {57, "ADA NG"}, {82, "101 ADA NG"}, {73, "101"}};
  for (const auto& [mode, label] : labels) {
    NameMode = mode;
    EXPECT_EQ(ProgressLabel(1), label);
  }
}

TEST_F(FrmgroneTest, AStudentWithoutAnyGradeHasPointsAtZero) {
  frmgrone portal;
  OpenFor(portal, 3);
  EXPECT_EQ(Values(portal), (std::vector<double>{0, 0, 0}));
}

TEST_F(FrmgroneTest, SomeTypesShowTheirGradesTypeAfterType) {
  frmgrone portal;
  OpenFor(portal, 1);
  driver->Press("data");
  EXPECT_TRUE(driver->Visible("gradetype"));
  driver->Tick("some");
  driver->Check("ttypelist", 0);
  driver->Check("ttypelist", 1);
  driver->Press("linegr");
  driver->Press("graph");
  EXPECT_FALSE(driver->Visible("gradetype"));
  EXPECT_EQ(portal.Graph1.chart.labels, Texts({"Q1", "Q2", "T1"}));
  EXPECT_EQ(portal.Graph1.chart.kind, ChartKind::kBar);
  driver->Press("data");
  portal.some.Value = false;
  driver->Tick("all");
  driver->Press("graph");
  EXPECT_EQ(portal.Graph1.chart.labels, Texts({"Q1", "T1", "Q2"}));
}

TEST_F(FrmgroneTest, OneGradeIsNotEnoughAndTheChartStays) {
  frmgrone portal;
  OpenFor(portal, 1);
  driver->Press("data");
  driver->Press("types");
  EXPECT_TRUE(portal.some.Value);
  driver->Check("ttypelist", 1);
  const unsigned before = portal.Graph1.Revision;
  screen.ExpectBox(
      "There must be at least 2 items that meet your selected criteria to show a graph");
  driver->Press("graph");
  EXPECT_EQ(screen.boxes.back().title, "Note to the teacher");
  EXPECT_EQ(portal.Graph1.Revision, before);
  EXPECT_EQ(Values(portal).size(), 3u);
}

TEST_F(FrmgroneTest, LineAndBarRedrawThePresentPoints) {
  frmgrone portal;
  OpenFor(portal, 2);
  driver->Press("linegr");
  EXPECT_EQ(portal.Graph1.chart.kind, ChartKind::kLine);
  EXPECT_EQ(Values(portal), (std::vector<double>{80, 81, 0}));
  driver->Press("bar");
  EXPECT_EQ(portal.Graph1.chart.kind, ChartKind::kBar);
}

// Of Quiz 1 90 and 80 percent, of Test 1 81, of Quiz 2 125.
TEST_F(FrmgroneTest, TheClassAverageIsAThinLineThatCanBeOff) {
  frmgrone portal;
  OpenFor(portal, 2);
  EXPECT_TRUE(portal.Graph1.chart.thin_line.empty());
  driver->Tick("classline");
  EXPECT_EQ(portal.Graph1.chart.thin_line, (std::vector<double>{85, 81, 125}));
  driver->Press("linegr");
  EXPECT_EQ(portal.Graph1.chart.thin_line.size(), 3u);
  driver->Tick("classline", false);
  EXPECT_TRUE(portal.Graph1.chart.thin_line.empty());
}

TEST_F(FrmgroneTest, AGradeWithoutAnyLeavesAGapInTheLine) {
  Current().Students[1].Marks[3] = "EXC";
  frmgrone portal;
  OpenFor(portal, 2);
  driver->Tick("classline");
  EXPECT_TRUE(std::isnan(portal.Graph1.chart.thin_line[2]));
}

TEST_F(FrmgroneTest, GradesStandInOrderOfDateWhereWanted) {
  frmgrone portal;
  OpenFor(portal, 1);
  driver->Tick("bydate");
  EXPECT_EQ(portal.Graph1.chart.labels, Texts({"T1", "Q2", "Q1"}));
  driver->Tick("bydate", false);
  EXPECT_EQ(portal.Graph1.chart.labels, Texts({"Q1", "T1", "Q2"}));
}

TEST_F(FrmgroneTest, PrintsItsChart) {
  frmgrone portal;
  OpenFor(portal, 1);
  driver->Press("prints");
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_EQ(screen.print_jobs[0]->title, "ADA NG 101");
  EXPECT_TRUE(screen.print_jobs[0]->ended);
}

// The graph leaves CurrentStudent as it is, and the screen below trusts in nothing else.
TEST_F(FrmgroneTest, TheStudentScreenKeepsItsStudentAndComment) {
  frminfo portal;
  Open(portal);
  driver->Choose("list1", 1);
  driver->Type("comments", "for Abel");
  screen.ExpectPortal("frmgrone", [](PortalDriver& work) {
    EXPECT_EQ(CurrentStudent, 2);
    CurrentStudent = 1;
    work.Press("continue");
  });
  driver->Press("mnugraph");
  driver->Press("mnuext");
  EXPECT_EQ(Current().Students[2].comments, "for Abel");
  EXPECT_EQ(Current().Students[1].comments, "");
  EXPECT_EQ(CurrentStudent, 3);
  driver->Press("exit");
}

TEST_F(FrmgroneTest, WithoutAStudentItDoesNotOpen) {
  frmgrone portal;
  CurrentStudent = 0;
  portal.Load();
  EXPECT_TRUE(portal.Unloaded());
}

}  // namespace
}  // namespace tallyroll
