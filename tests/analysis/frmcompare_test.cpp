// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/frmcompare.h"

#include <gtest/gtest.h>

#include "analysis/open_classes.h"
#include "tests/analysis/analysis_test.h"

namespace tallyroll {
namespace {

class FrmcompareTest : public AnalysisTest {
 protected:
  FrmcompareTest() {
    OpenSlot(1, "/a/ONE.TYR");
    GradeWith({"80", "90", "ABS"});
    OpenSlot(2, "/b/Two.tyr");
    GradeWith({"50", "54.5", "96", "CUT"}, 100, "54.5").title = "Test 9";
    Current().Instruments[1].code = "T9";
    CurrentClass = 1;
  }
  void ChooseBoth(frmcompare& portal) {
    Open(portal);
    driver->Check("Listfiles", 0);
    driver->Check("Listfiles", 1);
    driver->Press("continue1");
    driver->Choose("Combo1_1", 0);
    driver->Choose("Combo1_2", 0);
    driver->Press("continue2");
  }
};

TEST_F(FrmcompareTest, TakesTwoOpenClasses) {
  Classes[2].SlotState = 0;
  frmcompare portal;
  screen.ExpectBox("You must first open at least two class files for comparison.");
  portal.Load();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kInformation);
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
}

TEST_F(FrmcompareTest, AtLeastTwoMustBeChosen) {
  frmcompare portal;
  Open(portal);
  EXPECT_EQ(portal.Listfiles.List, Texts({"Class ONE.TYR", "Class TWO.TYR"}));
  driver->Check("Listfiles", 0);
  screen.ExpectBox("You must choose at least 2 classes to compare.");
  driver->Press("continue1");
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  EXPECT_EQ(screen.boxes.back().buttons, BoxButtons::kOk);
  EXPECT_TRUE(driver->Visible("framefiles"));
  driver->Check("Listfiles", 1);
  driver->Press("continue1");
  EXPECT_FALSE(driver->Visible("framefiles"));
  EXPECT_EQ(driver->Text("labelclass_2"), "TWO.TYR");
  EXPECT_EQ(portal.Combo1[1].List, Texts({"Test 9"}));
  EXPECT_FALSE(driver->Visible("Combo1_3"));
}

TEST_F(FrmcompareTest, AnAmpersandInAFilesNameIsNoKey) {
  Classes[2].FileName = "/b/r&d.tyr";
  frmcompare portal;
  Open(portal);
  driver->Check("Listfiles", 0);
  driver->Check("Listfiles", 1);
  driver->Press("continue1");
  EXPECT_EQ(driver->Text("labelclass_2"), "R&&D.TYR");
}

TEST_F(FrmcompareTest, EachClassNeedsAGrade) {
  frmcompare portal;
  Open(portal);
  driver->Check("Listfiles", 0);
  driver->Check("Listfiles", 1);
  driver->Press("continue1");
  driver->Choose("Combo1_1", 0);
  screen.ExpectBox("You must choose a Testing Instrument");
  driver->Press("continue2");
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  EXPECT_EQ(driver->Focused(), "Combo1_2");
  EXPECT_TRUE(driver->Visible("framegrades"));
}

// ONE: as two grades of 80 and 90 have it. TWO: 54.5 goes to the even 54, so 54.5 and 96 pass; the
// mean of 50, 54.5 and 96 is 200.5 / 3 = 66.8333; the distances -16.8333, -12.3333 and 29.1667 have
// the squares 283.36, 152.1103 and 850.6964, together 1286.1667 and a third 428.7222, whose root
// is 20.7056.
TEST_F(FrmcompareTest, APanelAClassAndTheTotals) {
  frmcompare portal;
  ChooseBoth(portal);
  EXPECT_TRUE(driver->Visible("framestat"));
  EXPECT_EQ(Headings(portal.panel), Texts({"", "ONE.TYR", "TWO.TYR", "     Totals"}));
  EXPECT_EQ(Column(portal.panel, 1),  // column 0 holds the labels
            Texts({" 5", " 85", " 2", " 100 %", " 0", " 0 %", " 80", " 90", " 2", " 1"}));
  Texts labels;
  for (int row = 1; row < portal.panel.Rows(); ++row)
    labels.emplace_back(portal.panel.TextMatrix(row, 0));
  EXPECT_EQ(labels, Texts({"Deviation ", "Average ", "# Passed ", "% Passed ", "# Failed ",
                           "% Failed ", "Lowest ", "Hightest ", "# Present ", "# Absent "}));
  EXPECT_EQ(Column(portal.panel, 2),
            Texts({" 20.71", " 66.83", " 2", " 67 %", " 1", " 33 %", " 50", " 96", " 3", " 1"}));
  EXPECT_EQ(Column(portal.panel, 3), Texts({"", "", " 4", "", " 1", "", "", "", " 5", " 2"}));
  EXPECT_EQ(CurrentClass, 1);
}

TEST_F(FrmcompareTest, TheTableCountsFromTheLowestRangeUp) {
  frmcompare portal;
  ChooseBoth(portal);
  driver->Press("continue3");
  EXPECT_EQ(portal.Caption, "Comparisons for ONE.TYR, TWO.TYR");
  EXPECT_EQ(driver->Text("tabletitle"), "Range for ONE.TYR, TWO.TYR");
  EXPECT_EQ(Headings(portal.table), Texts({"Range", "ONE.TYR", "TWO.TYR", "Total"}));
  Texts ranges;
  for (int row = 1; row < portal.table.Rows(); ++row)
    ranges.emplace_back(portal.table.TextMatrix(row, 0));
  EXPECT_EQ(ranges, Texts({"00-54", "55-64", "65-69", "70-74", "75-79", "80-84", "85-89", "90-94",
                           "95-100"}));
  EXPECT_EQ(Column(portal.table, 1), Texts({"0", "0", "0", "0", "0", "1", "0", "1", "0"}));
  // 54.5 percent is 54: the tie goes to the even number.
  EXPECT_EQ(Column(portal.table, 2), Texts({"2", "0", "0", "0", "0", "0", "0", "0", "1"}));
  EXPECT_EQ(Column(portal.table, 3), Texts({"2", "0", "0", "0", "0", "1", "0", "1", "1"}));
  const Chart& chart = portal.Graph1.chart;
  EXPECT_EQ(chart.kind, ChartKind::kBar);
  ASSERT_EQ(chart.sets.size(), 2u);
  EXPECT_EQ(chart.sets[1].name, "TWO.TYR");
  EXPECT_EQ(chart.sets[1].values, (std::vector<double>{2, 0, 0, 0, 0, 0, 0, 0, 1}));
  driver->Press("linegr");
  EXPECT_EQ(chart.kind, ChartKind::kLine);
  EXPECT_FALSE(driver->Visible("exit"));
  driver->Press("Continue");
  EXPECT_TRUE(portal.Unloaded());
}

// The letters of each class count by its own values.
TEST_F(FrmcompareTest, LettersCountByTheClassTheyStandIn) {
  Classes[1].Students[1].Marks[1] = "A";
  Classes[2].Students[1].Marks[1] = "A";
  Classes[2].LetterValues[2] = Money("60");
  frmcompare portal;
  ChooseBoth(portal);
  EXPECT_EQ(portal.panel.TextMatrix(8, 1), " 95");
  EXPECT_EQ(portal.panel.TextMatrix(7, 2), " 54.5");
  EXPECT_EQ(portal.panel.TextMatrix(2, 2), " 70.17");  // (60 + 54.5 + 96) / 3
}

TEST_F(FrmcompareTest, AClassWhereNobodyWasPresentHasCountsAlone) {
  for (std::size_t i = 1; i <= 3; ++i) Classes[1].Students[i].Marks[1] = "EXC";
  frmcompare portal;
  ChooseBoth(portal);
  EXPECT_EQ(Column(portal.panel, 1), Texts({"", "", " 0", "", " 0", "", "", "", " 0", " 3"}));
}

TEST_F(FrmcompareTest, AClassThatWasClosedMeanwhileIsTold) {
  frmcompare portal;
  ChooseBoth(portal);
  Classes[2].SlotState = 0;
  screen.ExpectBox("The class TWO.TYR was closed or changed. Choose the classes again.");
  driver->Press("continue3");
  EXPECT_TRUE(driver->Visible("framefiles"));
  EXPECT_EQ(portal.Listfiles.List, Texts({"Class ONE.TYR"}));
}

TEST_F(FrmcompareTest, AGradeThatIsGoneMeanwhileIsTold) {
  frmcompare portal;
  ChooseBoth(portal);
  Classes[1].NumInstruments = 0;
  screen.ExpectBox("The class ONE.TYR was closed or changed. Choose the classes again.");
  driver->Press("continue3");
}

// Closed and opened again in the slot of another class, or ordered anew, while the Portal stands.
TEST_F(FrmcompareTest, AClassThatIsAnotherOneMeanwhileIsTold) {
  frmcompare portal;
  ChooseBoth(portal);
  Classes[2].FileName = "/b/OTHER.TYR";
  screen.ExpectBox("The class TWO.TYR was closed or changed. Choose the classes again.");
  driver->Press("continue3");
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  EXPECT_TRUE(driver->Visible("framefiles"));
  EXPECT_EQ(portal.Listfiles.List, Texts({"Class ONE.TYR", "Class OTHER.TYR"}));
}

TEST_F(FrmcompareTest, AGradeThatIsAnotherOneMeanwhileIsTold) {
  frmcompare portal;
  ChooseBoth(portal);
  driver->Press("continue3");
  Classes[1].Instruments[1].title = "Quiz 2";
  screen.ExpectBox("The class ONE.TYR was closed or changed. Choose the classes again.");
  driver->Press("printgr");
  EXPECT_TRUE(screen.print_jobs.empty());
  EXPECT_TRUE(driver->Visible("framefiles"));
}

TEST_F(FrmcompareTest, AGradeThatMovedBetweenListAndChoiceIsTold) {
  frmcompare portal;
  Open(portal);
  driver->Check("Listfiles", 0);
  driver->Check("Listfiles", 1);
  driver->Press("continue1");
  driver->Choose("Combo1_1", 0);
  driver->Choose("Combo1_2", 0);
  Classes[1].Instruments[1].title = "Quiz 2";
  screen.ExpectBox("The class ONE.TYR was closed or changed. Choose the classes again.");
  driver->Press("continue2");
}

TEST_F(FrmcompareTest, EqualFileNamesAreToldApartByTheirFolders) {
  Classes[2].FileName = "/b/one.tyr";
  EXPECT_EQ(ClassNames({1, 2}), Texts({"ONE.TYR (/a)", "ONE.TYR (/b)"}));
  Classes[2].FileName.clear();
  EXPECT_EQ(ClassNames({1, 2}), Texts({"ONE.TYR", "NewClass 2"}));
}

TEST_F(FrmcompareTest, FiveClassesAreCompared) {
  for (int slot = 3; slot <= 5; ++slot) {
    OpenSlot(slot, "/c/C" + PlainNumberText(slot) + ".TYR");
    GradeWith({"70"});
  }
  CurrentClass = 1;
  frmcompare portal;
  Open(portal);
  for (int line = 0; line < 5; ++line) driver->Check("Listfiles", line);
  driver->Press("continue1");
  for (const char* combo : {"Combo1_1", "Combo1_2", "Combo1_3", "Combo1_4", "Combo1_5"})
    driver->Choose(combo, 0);
  driver->Press("continue2");
  EXPECT_EQ(portal.panel.Cols(), 7);
  driver->Press("continue3");
  EXPECT_EQ(portal.table.TextMatrix(4, 6), "3");
}

TEST_F(FrmcompareTest, PrintsTheGraphWithBothLists) {
  frmcompare portal;
  ChooseBoth(portal);
  driver->Press("continue3");
  driver->Press("printgr");
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  const Texts rows = FixedPrintTarget::RowsOf(screen.print_jobs[0]->pages[0]);
  const Texts wanted = {"List of Compared Classes",
                        "1.   ONE.TYR",
                        "2.   TWO.TYR",
                        "List of Compared Titles",
                        "1.   ONE.TYR:  Quiz 1 & Q1",
                        "2.   TWO.TYR:  Test 9 & T9"};
  EXPECT_EQ(Texts(rows.end() - 6, rows.end()), wanted);
}

TEST_F(FrmcompareTest, PrintsTheTable) {
  frmcompare portal;
  ChooseBoth(portal);
  driver->Press("continue3");
  screen.ExpectPortal("printmsg", [](PortalDriver& work) { work.Press("continue"); });
  driver->Press("printdist");
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  const Texts rows = FixedPrintTarget::RowsOf(screen.print_jobs[0]->pages[0]);
  EXPECT_EQ(rows[1], " Statistics: Comparison");
  EXPECT_EQ(rows[3], "Distribution of Grades");
  EXPECT_EQ(rows[4], "Range ONE.TYR TWO.TYR Total");
  EXPECT_EQ(rows[5], "00-54 0 2 2");
}

}  // namespace
}  // namespace tallyroll
