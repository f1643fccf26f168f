// SPDX-License-Identifier: GPL-3.0-or-later
// From the class window to the averages and back, by each entry of Make Up Grades.
#include "averages/engine/average_state.h"
#include "platform/class_window.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class AveragePathTest : public ShellTest {
 protected:
  static Class Graded() {
    Class c = Sample(1, 2);
    SetDefaultLetterValues(c);
    SetDefaultRoundScale(c);
    c.Instruments[1].typecode = "Q ";
    c.Instruments[2].typecode = "T ";
    c.Students[1].Marks[2] = "90";
    return c;
  }
  void ExpectSave(const char* question) { screen.ExpectBox(question, BoxAnswer::kYes); }
  // The student's figures, and the way back without saving the grades.
  void ExpectAverage(std::string average) {
    screen.ExpectPortal("frmroundoff", [](PortalDriver& work) { work.Press("continue"); });
    screen.ExpectPortal("frmscrnavg", [this, average](PortalDriver& work) {
      work.Press("nextt");
      EXPECT_EQ(work.Text("avg"), average);
      screen.ExpectBox("Save Rounded Averaged Grades? (Recommended)", BoxAnswer::kNo);
      work.Press("exit");
    });
  }
  static void WeighTypes(PortalDriver& work) {
    work.PickCell("typegrid", 10, 4);
    work.TypeKeys("typegrid", "75");
    work.PickCell("typegrid", 12, 4);
    work.TypeKeys("typegrid", "25");
  }
};

TEST_F(AveragePathTest, WeightsOfItems) {
  Form1& window = Open("A.TYR", Graded());
  EXPECT_FALSE(window.menu["mnuoptions"].enabled);
  screen.ExpectPortal("frmweights", [this](PortalDriver& work) {
    work.Press("equal");
    ExpectSave("Do you want to save these weights?");
    work.Press("exit");
  });
  ExpectAverage("85");
  window.ClickMenu("mnuindweights");
  EXPECT_TRUE(window.menu["mnuoptions"].enabled);
  EXPECT_TRUE(window.menu["mnuprtgrade"].enabled);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(AveragePathTest, WeightsOfTypes) {
  Form1& window = Open("A.TYR", Graded());
  screen.ExpectPortal("frmpercents", [this](PortalDriver& work) {
    WeighTypes(work);
    ExpectSave("Do you want to save these weights?");
    work.Press("exit");
  });
  ExpectAverage("82.5");
  window.ClickMenu("mnupercent");
  EXPECT_EQ(Current().Method, 1);
}

TEST_F(AveragePathTest, Points) {
  Form1& window = Open("A.TYR", Graded());
  screen.ExpectPortal("frmpoints", [this](PortalDriver& work) {
    ExpectSave("Do you want to save these points");
    work.Press("exit");
  });
  ExpectAverage("170/200  85");
  window.ClickMenu("mnupoints");
  EXPECT_EQ(Current().Method, 2);
}

TEST_F(AveragePathTest, PointsAndTypes) {
  Form1& window = Open("A.TYR", Graded());
  screen.ExpectPortal("frmpoints", [](PortalDriver& work) { work.Press("exit"); });
  screen.ExpectPortal("frmpercents", [this](PortalDriver& work) {
    WeighTypes(work);
    ExpectSave("Do you want to save these weights?");
    work.Press("exit");
  });
  ExpectAverage("165/200  82.5");
  window.ClickMenu("mnuPointsType");
  EXPECT_EQ(Current().Method, 3);
}

TEST_F(AveragePathTest, SettingsInForceAndSavedGrades) {
  Class c = Graded();
  c.AverageSettings = "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0";
  c.Instruments[1].weight = Currency::FromWhole(100);
  Form1& window = Open("A.TYR", c);
  ASSERT_TRUE(window.menu["mnuoptions"].enabled);
  Current().AverageWork1 = 2;
  screen.ExpectPortal("frmoptions", [](PortalDriver& work) { work.Press("continue"); });
  screen.ExpectPortal("frmscrnavg", [this](PortalDriver& work) {
    screen.ExpectBox("Save Rounded Averaged Grades? (Recommended)", BoxAnswer::kYes);
    work.Press("exit");
  });
  screen.ExpectPortal("frmgradesave", [](PortalDriver& work) {
    work.Type("title", "Term 1");
    work.Type("code", "T1");
    work.Press("save");
  });
  window.ClickMenu("mnuoptions");
  EXPECT_EQ(Current().NumInstruments, 3);
  EXPECT_EQ(window.Grid1.TextMatrix(1, 4), "T1");
  EXPECT_EQ(window.Grid1.TextMatrix(2, 4), "80");
}

TEST_F(AveragePathTest, ForThePrinterTheAveragesArePreviewedAndSaved) {
  Class c = Graded();
  c.AverageSettings = "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0";
  c.Instruments[1].weight = Currency::FromWhole(100);
  Form1& window = Open("A.TYR", c);
  Current().AverageWork1 = 2;  // no grade keeps the averages yet
  screen.ExpectPortal("frmoptions", [](PortalDriver& work) { work.Press("continue"); });
  screen.ExpectPortal("frmprintall", [this](PortalDriver& work) {
    EXPECT_TRUE(work.Visible("studentboxes"));  // of the averages
    screen.ExpectPortal("printmsg", [](PortalDriver& title) { title.Press("continue"); });
    screen.ExpectPortal("frmprintpre", [this](PortalDriver& pages) {
      EXPECT_EQ(pages.Text("Pagel"), "1");
      screen.ExpectBox("Save Rounded Averaged Grades? (Recommended)", BoxAnswer::kYes);
      pages.Press("twelve");
    });
    screen.ExpectPortal("frmgradesave", [](PortalDriver& save) { save.Press("cancel"); });
    work.Press("preview");
    work.Press("cancel");
  });
  window.ClickMenu("mnuprtgrade");
}

TEST_F(AveragePathTest, TheRoundingGoesOnToThePrintedAverages) {
  Class c = Graded();
  c.AverageSettings = "2,0,0,0,0";
  Form1& window = Open("A.TYR", c);
  screen.ExpectPortal("frmpoints", [](PortalDriver& work) { work.Press("exit"); });
  screen.ExpectPortal("frmroundoff", [](PortalDriver& work) { work.Press("contprinter"); });
  screen.ExpectPortal("frmprintall", [](PortalDriver& work) {
    EXPECT_TRUE(work.Visible("studentboxes"));
    work.Press("cancel");
  });
  window.ClickMenu("mnupoints");
}

TEST_F(AveragePathTest, AClassOfMoreThan32767PointsHasNoAverage) {
  Class c = Graded();
  c.AverageSettings = "2,0,0,0,0";
  c.Instruments[1].mvalue = 32700;
  Form1& window = Open("A.TYR", c);
  screen.ExpectPortal("frmoptions", [](PortalDriver& work) { work.Press("continue"); });
  screen.ExpectPortal("frmscrnavg", [this](PortalDriver& work) {
    screen.ExpectBox("The average of Last01, First01 can't be computed: a number is too large.");
    work.Press("nextt");
    EXPECT_EQ(work.Text("avg"), "");
    work.Press("exit");
  });
  window.ClickMenu("mnuoptions");
  // With one of the grades left out the Points Portal takes it.
  screen.ExpectPortal("frmpoints", [this](PortalDriver& work) {
    work.PickCell("grdgrade", 1, 3);
    work.TypeKeys("grdgrade", " ");
    ExpectSave("Do you want to save these points");
    work.Press("exit");
  });
  ExpectAverage("90/100  90");
  window.ClickMenu("mnupoints");
}

TEST_F(AveragePathTest, OpeningAClassMakesItsTotalPossibleAnew) {
  Class c = Graded();
  c.AverageSettings = "2,0,0,0,0";
  c.Instruments[2].countflag = "N";
  Open("A.TYR", c);
  EXPECT_EQ(TotalPossible(), 100);
  EXPECT_EQ(Current().InstrumentUse[2], Currency::FromWhole(2));
}

}  // namespace
}  // namespace tallyroll
