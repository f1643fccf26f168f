// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/frmgraph.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/analysis/analysis_test.h"

namespace tallyroll {
namespace {

class FrmgraphTest : public AnalysisTest {
 protected:
  void OpenGraph(frmgraph& portal) {
    CurrentStudent = 1;
    Open(portal);
  }
};

TEST_F(FrmgraphTest, BeginsWithBarsFromTheLowestRangeUp) {
  GradeWith({"96", "97", "50", "ABS"}).title = " quiz 1 ";
  frmgraph portal;
  OpenGraph(portal);
  EXPECT_EQ(portal.Caption, "Graph Portal - QUIZ 1");
  const Chart& chart = portal.Graph1.chart;
  EXPECT_EQ(chart.kind, ChartKind::kBar);
  EXPECT_EQ(chart.title, "QUIZ 1");
  EXPECT_EQ(chart.sets[0].values, (std::vector<double>{1, 0, 0, 0, 0, 0, 0, 0, 2}));
  EXPECT_EQ(chart.labels, Texts({"0-54", "55-64", "65-69", "70-74", "75-79", "80-84", "85-89",
                                 "90-94", "95-100"}));
  EXPECT_EQ(chart.sets[0].tells[8], "95-100: 2 students of 3");
  EXPECT_EQ(driver->Text("dist"),
            "\r\n QUIZ 1\r\n\r\nDISTRIBUTION OF GRADES\r\n\r\n"
            " 2    95 - 100\r\n 0    90 - 94 \r\n 0    85 - 89 \r\n 0    80 - 84 \r\n"
            " 0    75 - 79 \r\n 0    70 - 74 \r\n 0    65 - 69 \r\n 0    55 - 64 \r\n"
            " 1    0  - 54 \r\n");
}

TEST_F(FrmgraphTest, CountsOfTwoDigitsLineUpWithThoseOfOne) {
  GradeWith(std::vector<const char*>(12, "96"));
  frmgraph portal;
  OpenGraph(portal);
  EXPECT_NE(driver->Text("dist").find("\r\n 12   95 - 100\r\n 0    90"), std::string::npos);
}

TEST_F(FrmgraphTest, EachKindBringsItsOwnTexts) {
  GradeWith({"96"});
  frmgraph portal;
  OpenGraph(portal);
  const unsigned before = portal.Graph1.Revision;
  driver->Press("pie");
  EXPECT_EQ(portal.Graph1.chart.kind, ChartKind::kPie);
  EXPECT_TRUE(portal.Graph1.chart.labels.empty());
  EXPECT_EQ(portal.Graph1.chart.legend.size(), 9u);
  EXPECT_EQ(portal.Graph1.chart.exploded, std::vector<bool>(9, true));
  driver->Press("linegr");
  EXPECT_EQ(portal.Graph1.chart.kind, ChartKind::kLine);
  EXPECT_EQ(portal.Graph1.chart.labels.size(), 9u);
  EXPECT_TRUE(portal.Graph1.chart.legend.empty());
  EXPECT_TRUE(portal.Graph1.chart.exploded.empty());
  driver->Press("bar");
  EXPECT_EQ(portal.Graph1.chart.kind, ChartKind::kBar);
  EXPECT_EQ(portal.Graph1.Revision, before + 3);
}

// Letter paper is 12240 by 15840 twips: a quarter is 3060 and 3960, half the width 6120, and the
// height 15840 / 3.5 = 4525.71.
TEST_F(FrmgraphTest, PrintsTheChartOnHalfThePage) {
  GradeWith({"96"});
  frmgraph portal;
  OpenGraph(portal);
  driver->Press("printgr");
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_TRUE(screen.print_jobs[0]->ended);
  ASSERT_EQ(screen.print_jobs[0]->pages.size(), 1u);
  const std::vector<PrintPoint>& ground = screen.print_jobs[0]->pages[0].shapes[0].corners;
  EXPECT_EQ(ground[0], (PrintPoint{3060, 3960}));
  EXPECT_EQ(ground[2].x, 9180);
  EXPECT_NEAR(ground[2].y, 8485.714, 0.001);
}

TEST_F(FrmgraphTest, APrinterThatRefusesIsTold) {
  GradeWith({"96"});
  frmgraph portal;
  OpenGraph(portal);
  screen.printer_refuses = true;
  screen.ExpectBox("The printer can't be used. Choose one at Printer Set Up.");
  driver->Press("printgr");
}

TEST_F(FrmgraphTest, PrintsRangesAndFigures) {
  GradeWith({"80", "90", "ABS"});
  frmgraph portal;
  OpenGraph(portal);
  screen.ExpectPortal("printmsg", [](PortalDriver& work) {
    work.Type("Text1", "Mine");
    work.Press("continue");
  });
  driver->Press("printdist");
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_TRUE(screen.print_jobs[0]->ended);
  const Texts rows = FixedPrintTarget::RowsOf(screen.print_jobs[0]->pages[0]);
  const Texts wanted = {"Quiz 1 Statistics: ",
                        "Mine",
                        "Distribution of Grades",
                        "95 - 100  0",
                        "90 - 94   1",
                        "85 - 89   0",
                        "80 - 84   1",
                        "75 - 79   0",
                        "70 - 74   0",
                        "65 - 69   0",
                        "55 - 64   0",
                        "0  - 54   0",
                        "The number of students present was  2",
                        "The number of students absent was  1",
                        "The number of students who passed was  2",
                        "The number of students who failed was  0",
                        "The percent of students who passed was  100 %",
                        "The percent of students who failed was  0 %",
                        "The lowest grade was  80",
                        "The highest grade was  90",
                        "The standard deviation was  5",
                        "The class average was   85",
                        "Page 1"};
  EXPECT_EQ(Texts(rows.begin() + 1, rows.end()), wanted);
  const PrintedPage& page = screen.print_jobs[0]->pages[0];
  double heads = 0, counts = 1000, figures = 0;
  for (const PrintedText& text : page.texts) {
    const double character = text.size * 10;  // the widths are fixed
    if (text.text == "95 - 100") heads = text.x / character;
    if (text.text == " 0") counts = std::min(counts, text.x / character);
    if (text.text == " 100 %") figures = text.x / character;
  }
  EXPECT_EQ(heads, 9);  // the first column is 1
  EXPECT_EQ(counts, 39);
  EXPECT_EQ(figures, 49);
}

TEST_F(FrmgraphTest, PrintingThatIsCancelledPrintsNothing) {
  GradeWith({"80"});
  frmgraph portal;
  OpenGraph(portal);
  screen.ExpectPortal("printmsg", [](PortalDriver& work) { work.Press("exit"); });
  driver->Press("printdist");
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(FrmgraphTest, ADotStandsForEachStudentInARange) {
  GradeWith({"96", "ABS", "-3", "52"});
  frmgraph portal;
  OpenGraph(portal);
  const std::vector<ChartDot>& dots = portal.Graph1.chart.dots;
  ASSERT_EQ(dots.size(), 2u);
  EXPECT_EQ(dots[0].point, 8);
  EXPECT_EQ(dots[0].tells, "S1, Ada: 96");
  EXPECT_EQ(dots[1].point, 0);
  EXPECT_GT(dots[1].place, 0.9);  // 52 of 0 to 54
}

TEST_F(FrmgraphTest, ADoubleClickOnADotOpensItsStudent) {
  GradeWith({"96", "ABS", "52"});
  frmgraph portal;
  OpenGraph(portal);
  portal.Graph1.Dot = -1;
  driver->DoubleClick("Graph1");  // beside all dots
  portal.Graph1.Dot = 1;
  screen.ExpectPortal("frminfo", [](PortalDriver& work) {
    EXPECT_EQ(CurrentStudent, 3);
    work.Type("comments", "works hard");
    work.Press("exit");
  });
  driver->DoubleClick("Graph1");
  EXPECT_EQ(CurrentStudent, 1);
  EXPECT_EQ(OpenState, 0);
  EXPECT_EQ(Current().Students[3].comments, "works hard");
  EXPECT_EQ(Current().Students[1].comments, "");
}

TEST_F(FrmgraphTest, WithoutAGradeItDoesNotOpen) {
  GradeWith({"96"});
  for (const i16 none : {i16{0}, i16{2}}) {
    frmgraph portal;
    CurrentStudent = none;
    portal.Load();
    EXPECT_TRUE(portal.Unloaded());
  }
}

}  // namespace
}  // namespace tallyroll
