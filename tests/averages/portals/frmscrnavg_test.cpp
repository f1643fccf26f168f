// SPDX-License-Identifier: GPL-3.0-or-later
// The two screens that walk the students.
#include "averages/portals/frmscrnavg.h"

#include "averages/engine/average_state.h"
#include "averages/portals/frminfo.h"
#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

const std::string kSaveAverages = "Save Rounded Averaged Grades? (Recommended)";

class StudentScreenTest : public AveragePortalTest {
 protected:
  StudentScreenTest() {
    AddGrade("Quiz 1", "Q ");
    AddGrade("Test 1", "T ");
    Enrol("Ng", {"80", "ABS"}).comments = "reads a lot";
    Enrol("Orr", {"96", "95"});
    Class& c = Current();
    c.Method = 0;
    c.Weights = {Currency(), Money("50"), Money("50")};
    c.NumSummaries = 1;
    ReDim(c.Summaries, 1);
    c.Summaries[1].code = "A1";
    for (std::size_t i = 1; i <= 2; ++i) {
      ReDim(c.Students[i].SummaryAbsent, 1, FixedText<5>("2"));
      ReDim(c.Students[i].SummaryLate, 1, ShortText("1"));
      ReDim(c.Students[i].SummaryDetail, 1, ShortText(" 3/ 4/ 5/ 6/"));
    }
  }
};

class FrmScrnAvgTest : public StudentScreenTest {
 protected:
  void Leave(BoxAnswer answer) {
    screen.ExpectBox(kSaveAverages, answer);
    driver->Press("exit");
  }
  frmscrnavg portal;
};

TEST_F(FrmScrnAvgTest, OpensWithNoStudentAndEmptyFigures) {
  CurrentStudent = 2;
  Open(portal);
  EXPECT_EQ(portal.Caption, "Grades Portal");
  EXPECT_EQ(CurrentStudent, 0);
  EXPECT_EQ(portal.lstName.List, (Texts{"Ng, Ada\t101", "Orr, Ada\t102"}));
  EXPECT_EQ(driver->Text("avg_label"), "Exact Average");
  EXPECT_EQ(driver->Text("avg"), "");
  EXPECT_EQ(driver->Text("suggr"), "");
  EXPECT_FALSE(driver->Enabled("comments"));
  EXPECT_EQ(Current().Students[1].Marks[0], "-");
  EXPECT_EQ(Current().Students[2].Marks[0], "-");
  EXPECT_EQ(portal.grdgrade.TextMatrix(0, 0), "  TITLES");
  EXPECT_EQ(portal.grdgrade.TextMatrix(0, 2), "GR.");
  EXPECT_EQ(Headings(portal.grdatt), (Texts{"Code", "  Att", "Late", "CUT", "EXC", "SPA", "NOTE"}));
}

TEST_F(FrmScrnAvgTest, AClickShowsTheStudent) {
  Open(portal);
  driver->Choose("lstName", 0);
  EXPECT_EQ(driver->Text("lname"), "Ng");
  EXPECT_EQ(driver->Text("fname"), "Ada");
  EXPECT_EQ(driver->Text("studentid"), "101");
  EXPECT_EQ(driver->Text("comments"), "reads a lot");
  EXPECT_EQ(Column(portal.grdgrade, 1), (Texts{"Qui", "Tes"}));
  EXPECT_EQ(Column(portal.grdgrade, 2), (Texts{"80", "ABS"}));
  Texts attendance;
  for (int col = 0; col < 7; ++col) attendance.emplace_back(portal.grdatt.TextMatrix(1, col));
  EXPECT_EQ(attendance, (Texts{"A1", "2", "1", "3", "4", "5", "6"}));
  EXPECT_EQ(driver->Text("avg"), "80");  // the test's weight leaves the total
  EXPECT_EQ(driver->Text("suggr"), " 80 (B-/SAT/3.0)");
}

TEST_F(FrmScrnAvgTest, NextAndPreviousStopAtTheEnds) {
  Open(portal);
  driver->Press("PREVIOUS");
  EXPECT_EQ(CurrentStudent, 0);
  driver->Press("nextt");
  EXPECT_EQ(CurrentStudent, 1);
  driver->Press("nextt");
  driver->Press("nextt");
  EXPECT_EQ(CurrentStudent, 2);
  EXPECT_EQ(portal.lstName.ListIndex, 1);
  EXPECT_EQ(driver->Text("avg"), "95.5");
  driver->Press("PREVIOUS");
  driver->Press("PREVIOUS");
  EXPECT_EQ(CurrentStudent, 1);
}

TEST_F(FrmScrnAvgTest, TheAverageShownIsRoundedToTwoDecimals) {
  Current().Weights = {Currency(), Money("33.333"), Money("66.667")};
  Open(portal);
  driver->Choose("lstName", 1);  // 31.99968 + 63.33365, each to four decimals: 95.3334
  EXPECT_EQ(driver->Text("avg"), "95.33");
}

TEST_F(FrmScrnAvgTest, UnderTypesTheTypesRule) {
  Current().Method = 1;
  Current().TypePercents[10] = Money("25");
  Current().TypePercents[12] = Money("75");
  Open(portal);
  driver->Choose("lstName", 1);  // 24 + 71.25
  EXPECT_EQ(driver->Text("avg"), "95.25");
  EXPECT_EQ(driver->Text("avg_label"), "Exact Average");
}

TEST_F(FrmScrnAvgTest, UnderPointsThePointsStandBesideTheAverage) {
  Current().Method = 2;
  Current().InstrumentUse = {Currency(), Money("1"), Money("1")};
  Open(portal);
  EXPECT_EQ(driver->Text("avg_label"), "Exact Average");
  driver->Choose("lstName", 0);
  EXPECT_EQ(driver->Text("avg_label"), "Points/Average");
  EXPECT_EQ(driver->Text("avg"), "80/100  80");
  driver->Press("nextt");
  EXPECT_EQ(driver->Text("avg"), "191/200  95.5");
}

TEST_F(FrmScrnAvgTest, UnderPointsAndTypesThePointsAreWeighted) {
  Current().Method = 3;
  Current().InstrumentUse = {Currency(), Money("1"), Money("1")};
  Current().TypePercents[10] = Money("25");
  Current().TypePercents[12] = Money("75");
  Open(portal);
  driver->Choose("lstName", 1);  // (96*25 + 95*75) * 200 / 10000
  EXPECT_EQ(driver->Text("avg"), "190.5/200  95.25");
}

TEST_F(FrmScrnAvgTest, AnEditedCommentGoesBackOnMovingOn) {
  Open(portal);
  driver->Choose("lstName", 0);
  driver->Type("comments", "tall");
  EXPECT_EQ(Current().Changed, kTrue);
  driver->Press("nextt");
  EXPECT_EQ(Current().Students[1].comments, "tall");
  EXPECT_EQ(driver->Text("comments"), "");
  driver->Type("comments", "short");
  driver->Press("exit");
  EXPECT_EQ(Current().Students[2].comments, "short");
}

TEST_F(FrmScrnAvgTest, LookingAloneChangesNothing) {
  Open(portal);
  driver->Choose("lstName", 0);
  driver->Press("exit");
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(Current().Students[1].comments, "reads a lot");
}

TEST_F(FrmScrnAvgTest, TheFinalGradeStaysWithThoseWhoWereShown) {
  Open(portal);
  driver->Choose("lstName", 1);
  driver->Press("exit");
  EXPECT_EQ(Current().Students[1].Marks[0], "-");
  EXPECT_EQ(Current().Students[2].Marks[0], "95");
  EXPECT_EQ(window.enabled, (Texts{"mnuoptions", "mnuprtgrade"}));
}

TEST_F(FrmScrnAvgTest, UnsavedWorkAsksToSaveTheGrades) {
  Current().Method = 2;
  Current().AverageWork1 = 2;
  Open(portal);
  Leave(BoxAnswer::kYes);
  EXPECT_EQ(screen.boxes.at(0).title, "Save File");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kQuestion);
  EXPECT_EQ(portal.Next(), "frmgradesave");
}

TEST_F(FrmScrnAvgTest, OnlyTheWorkOfTheMethodAsks) {
  struct Case {
    i16 method, work1, work2;
    bool asks;
  };
  for (const auto& [method, work1, work2, asks] :
       {Case{0, 0, 0, false}, Case{0, 1, 0, true}, Case{0, 2, 0, true}, Case{0, 0, 1, false},
        Case{0, 0, 2, false}, Case{1, 1, 0, false}, Case{1, 2, 0, false}, Case{1, 0, 1, true},
        Case{1, 0, 2, true}, Case{2, 1, 0, true}, Case{2, 0, 0, false}, Case{2, 0, 1, false},
        Case{2, 0, 2, false}, Case{3, 0, 0, false}, Case{3, 1, 0, true}, Case{3, 2, 0, true},
        Case{3, 0, 1, true}, Case{3, 0, 2, true}}) {
    Current().Method = method;
    Current().AverageWork1 = work1;
    Current().AverageWork2 = work2;
    frmscrnavg each;
    Open(each);
    screen.boxes.clear();
    if (asks) screen.ExpectBox(kSaveAverages, BoxAnswer::kNo);
    driver->Press("exit");
    EXPECT_EQ(screen.boxes.size(), asks ? 1U : 0U) << method << work1 << work2;
    EXPECT_TRUE(each.Unloaded());
    EXPECT_EQ(each.Next(), "");
  }
}

TEST_F(FrmScrnAvgTest, AnAverageAbove327IsShown) {
  Current().Students[1].Marks[1] = "400";
  Open(portal);
  driver->Choose("lstName", 0);
  EXPECT_EQ(driver->Text("avg"), "400");
  EXPECT_EQ(driver->Text("suggr"), " 100 (A+/EX/4.0)");
}

// 40000 percent: an average, but no final grade.
TEST_F(FrmScrnAvgTest, AFinalGradeBeyond16BitsIsToldAndChangesNothing) {
  Class& c = Current();
  c.AverageFlag2 = kTrue;
  c.TypeWeights[10] = Money("2");
  c.Students[1].Marks[1] = "40000";
  ExactAverage = Money("77");
  Open(portal);
  screen.ExpectBox("The average of Ng, Ada can't be computed: a number is too large.");
  driver->Choose("lstName", 0);
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kCritical);
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(driver->Text("avg"), "");
  EXPECT_EQ(driver->Text("suggr"), "");
  EXPECT_EQ(ExactAverage, Money("77"));
  EXPECT_EQ(c.TypeWeights[10], Money("2"));
  EXPECT_EQ(c.Students[1].Marks[0], "-");
}

TEST_F(FrmScrnAvgTest, AnArithmeticErrorIsToldAndThePortalGoesOn) {
  Current().Instruments[1].mvalue = 0;
  Current().Students[2].Marks[1] = "EXC";
  Open(portal);
  screen.ExpectBox(
      "The average of Ng, Ada can't be computed: the maximum score is 0 in the grade \"Quiz 1\".");
  driver->Choose("lstName", 0);
  EXPECT_EQ(driver->Text("avg"), "");
  EXPECT_EQ(driver->Text("lname"), "Ng");
  EXPECT_EQ(Current().Students[1].Marks[0], "-");
  driver->Press("nextt");
  EXPECT_EQ(driver->Text("avg"), "95");
}

class FrmInfoTest : public StudentScreenTest {
 protected:
  frminfo portal;
};

TEST_F(FrmInfoTest, ShowsTheRecordWithoutTheAverage) {
  Open(portal);
  EXPECT_EQ(portal.Caption, "Show Information Portal");
  EXPECT_EQ(portal.grdgrade.TextMatrix(0, 1), "Codes");
  driver->Choose("list1", 0);
  EXPECT_EQ(driver->Text("fullname"), "Ada Ng");
  EXPECT_EQ(driver->Text("studentid"), "101");
  EXPECT_EQ(Column(portal.grdgrade, 2), (Texts{"80", "ABS"}));
  EXPECT_EQ(portal.grdatt.TextMatrix(1, 1), "2");
  EXPECT_EQ(Current().Students[1].Marks[0], "");
}

TEST_F(FrmInfoTest, WalksTheStudents) {
  Open(portal);
  driver->Press("mnuext");
  driver->Press("mnuext");
  driver->Press("mnuext");
  EXPECT_EQ(CurrentStudent, 2);
  driver->Press("mnuprevious");
  driver->Press("mnuprevious");
  EXPECT_EQ(CurrentStudent, 1);
}

TEST_F(FrmInfoTest, AnEditedCommentIsKept) {
  Open(portal);
  driver->Press("mnuext");
  driver->Type("comments", "tall");
  driver->CloseWindow();
  EXPECT_EQ(Current().Students[1].comments, "tall");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmInfoTest, AGraphNeedsAStudent) {
  Open(portal);
  screen.ExpectBox("You must first select a student");
  driver->Press("mnugraph");
  EXPECT_EQ(window.status, "");
}

TEST_F(FrmInfoTest, TheGraphIsOfTheStudentShown) {
  Open(portal);
  driver->Press("mnuext");
  screen.ExpectPortal("frmgrone", [](PortalDriver& work) {
    EXPECT_EQ(CurrentStudent, 1);
    work.Press("continue");
  });
  driver->Press("mnugraph");
  EXPECT_EQ(window.status, "");
}

TEST_F(FrmInfoTest, AnEmptyClassShowsNobody) {
  Current().NumStudents = 0;
  Current().Students.clear();
  Open(portal);
  driver->Press("mnuext");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
}

}  // namespace
}  // namespace tallyroll
