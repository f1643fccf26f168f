// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmpoints.h"

#include "platform/table_printer.h"

#include "averages/engine/engine.h"
#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

constexpr int kFlag = 3;
const std::string kSavePoints = "Do you want to save these points";

class FrmPointsTest : public AveragePortalTest {
 protected:
  FrmPointsTest() {
    DefaultMethod = 2;
    AddGrade("Quiz 1", "Q ").mvalue = 50;
    AddGrade("Test 1", "T ").mvalue = 200;
    AddGrade("Bonus", "X ").mvalue = 10;
    Enrol("Ng", {"40", "150", "5"});
  }
  void FlipRow(int row) { TypeCell("grdgrade", row, kFlag, " "); }
  void Accept(BoxAnswer answer) {
    screen.ExpectBox(kSavePoints, answer);
    driver->Press("exit");
  }

  frmpoints portal;
};

TEST_F(FrmPointsTest, AFreshClassCountsEveryGrade) {
  Open(portal);
  EXPECT_EQ(portal.Caption, "Points Portal");
  EXPECT_EQ(Headings(portal.grdgrade),
            (Texts{"  TITLES", "Type", "Max Pts.", "Count in Total Pts."}));
  EXPECT_EQ(Column(portal.grdgrade, 0), (Texts{"Quiz 1", "Test 1", "Bonus"}));
  EXPECT_EQ(Column(portal.grdgrade, 2), (Texts{"50", "200", "10"}));
  EXPECT_EQ(Column(portal.grdgrade, kFlag), (Texts{"Y", "Y", "Y"}));
  EXPECT_EQ(driver->Text("totals"), "250");
  EXPECT_EQ(driver->Text("extra"), "10");
}

TEST_F(FrmPointsTest, FlagsInForceAreShown) {
  Current().InstrumentUse = {Currency(), Money("2"), Money("1"), Money("1")};
  Open(portal);
  EXPECT_EQ(Column(portal.grdgrade, kFlag), (Texts{"N", "Y", "Y"}));
  EXPECT_EQ(driver->Text("totals"), "200");
}

TEST_F(FrmPointsTest, AColumnSavedAsNotCountingStartsSo) {
  Current().Instruments[1].countflag = "N";
  Open(portal);
  EXPECT_EQ(Column(portal.grdgrade, kFlag), (Texts{"N", "Y", "Y"}));
}

TEST_F(FrmPointsTest, AnItemOf50PointsMarkedNLowersTheTotalBy50) {
  Open(portal);
  FlipRow(1);
  EXPECT_EQ(Column(portal.grdgrade, kFlag), (Texts{"N", "Y", "Y"}));
  EXPECT_EQ(driver->Text("totals"), "200");
  EXPECT_EQ(Current().AverageWork1, 1);
  Accept(BoxAnswer::kNo);
  EXPECT_EQ(Current().InstrumentUse[1], Money("2"));
  CurrentStudent = 1;
  TypeTotals totals;
  EXPECT_FALSE(ComputeAverage(totals));  // 150 + 5 of 200
  EXPECT_EQ(ExactAverage, Money("77.5"));
}

TEST_F(FrmPointsTest, ExtraCreditAddsToItsOwnSum) {
  Open(portal);
  FlipRow(3);
  EXPECT_EQ(driver->Text("totals"), "250");
  EXPECT_EQ(driver->Text("extra"), "0");
  FlipRow(3);
  EXPECT_EQ(driver->Text("extra"), "10");
}

TEST_F(FrmPointsTest, CopyAndPasteCarryTheFlags) {
  Open(portal);
  EXPECT_FALSE(driver->Enabled("frombd"));
  FlipRow(2);
  driver->Press("paste");
  EXPECT_EQ(screen.clipboard, "4z\rY\rN\rY\r");
  EXPECT_TRUE(driver->Enabled("frombd"));
  FlipRow(2);
  FlipRow(3);
  driver->Press("frombd");
  EXPECT_EQ(Column(portal.grdgrade, kFlag), (Texts{"Y", "N", "Y"}));
  EXPECT_EQ(driver->Text("totals"), "50");
  EXPECT_EQ(driver->Text("extra"), "10");
}

TEST_F(FrmPointsTest, PasteIsReadyWhenTheClipboardHoldsFlags) {
  screen.clipboard = "4z\rN\r";
  Open(portal);
  driver->Press("frombd");
  EXPECT_EQ(Column(portal.grdgrade, kFlag), (Texts{"N", "Y", "Y"}));
}

TEST_F(FrmPointsTest, PasteRefusesAnotherText) {
  screen.clipboard = "4z\rN\r";
  Open(portal);
  screen.clipboard = "5z\rN\r";
  screen.ExpectBox(kWrongClipboard);
  driver->Press("frombd");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kNone);
  EXPECT_EQ(driver->Text("totals"), "250");
}

TEST_F(FrmPointsTest, OnlyYAndNComeFromTheClipboard) {
  AddGrade("Quiz 2", "Q ").mvalue = 25;
  AddGrade("Quiz 3", "Q ").mvalue = 30;
  screen.clipboard = "4z\r y \rn\r\rmaybe\rY\r";
  Open(portal);
  driver->Press("frombd");
  EXPECT_EQ(Column(portal.grdgrade, kFlag), (Texts{"Y", "N", "N", "N", "Y"}));
  EXPECT_EQ(driver->Text("totals"), "80");
  EXPECT_EQ(driver->Text("extra"), "0");
  Accept(BoxAnswer::kYes);
  EXPECT_EQ(Current().Instruments[1].countflag, "Y");
  EXPECT_EQ(Current().Instruments[3].countflag, "N");
  EXPECT_EQ(Current().Instruments[4].countflag, "N");
  EXPECT_EQ(Current().InstrumentUse[4], Money("2"));
}

TEST_F(FrmPointsTest, SummaryShowsThePointsByTypeAndFollowsTheFlags) {
  Open(portal);
  driver->Press("Sumanry");
  auto* totals = dynamic_cast<frmtotals*>(screen.PortalBeside("frmtotals"));
  ASSERT_NE(totals, nullptr);
  EXPECT_EQ(totals->grdgrade.TextMatrix(10, 3), "50");
  EXPECT_EQ(totals->grdgrade.TextMatrix(10, 2), "");
  EXPECT_EQ(totals->grdgrade.TextMatrix(13, 3), "10");
  FlipRow(1);
  EXPECT_EQ(totals->grdgrade.TextMatrix(10, 3), "0");
}

TEST_F(FrmPointsTest, PrintHandsTheTableOver) {
  static PrintedTable printed;
  PrintTable = [](const PrintedTable& table) { printed = table; };
  Open(portal);
  FlipRow(2);
  driver->Press("print");
  EXPECT_EQ(printed.title, " Points Printout");
  EXPECT_EQ(printed.head, (Texts{"NAME", "Types", "MAX PTS.", "COUNT IN"}));
  EXPECT_EQ(printed.second_head, (Texts{"", "", "", "TOTAL PTS."}));
  EXPECT_EQ(printed.first_column, 7);
  ASSERT_GT(printed.rows.size(), 1u);
  EXPECT_EQ(printed.rows[0].back(), "Y");
  EXPECT_EQ(printed.rows[1].back(), "N");
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmPointsTest, ContinueSavesOnYes) {
  Class& c = Current();
  c.AverageSettings = "1,1,1,1,1,2,2";
  Open(portal);
  FlipRow(1);
  Accept(BoxAnswer::kYes);
  EXPECT_EQ(screen.boxes.at(0).title, "SAVE POINTS");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kQuestion);
  EXPECT_EQ(c.Method, 2);
  EXPECT_EQ(TotalPossible(), 200);
  EXPECT_EQ(c.Instruments[1].countflag, "N");
  EXPECT_EQ(c.Instruments[2].countflag, "Y");
  EXPECT_EQ(c.AverageSettings, "2,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0");
  EXPECT_EQ(c.AverageWork1, 2);
  EXPECT_EQ(window.saved, 1);
  EXPECT_EQ(window.enabled, (Texts{"mnuoptions", "mnuprtgrade"}));
  EXPECT_EQ(portal.Next(), "frmroundoff");
}

TEST_F(FrmPointsTest, ContinueWithoutSavingLeavesTheFileAsItIs) {
  Open(portal);
  Accept(BoxAnswer::kNo);
  EXPECT_EQ(Current().Method, 2);
  EXPECT_EQ(Current().InstrumentUse[3], Money("1"));
  EXPECT_EQ(Current().Instruments[1].countflag, "");
  EXPECT_EQ(Current().AverageSettings, "");
  EXPECT_EQ(Current().AverageWork1, 1);
  EXPECT_EQ(window.saved, 0);
}

TEST_F(FrmPointsTest, PointsAndTypesAskNothingAndGoOnToTheTypes) {
  DefaultMethod = 3;
  Open(portal);
  driver->Press("exit");
  EXPECT_EQ(Current().Method, 3);
  EXPECT_EQ(Current().AverageWork2, 1);
  EXPECT_EQ(Current().AverageWork1, 0);
  EXPECT_EQ(portal.Next(), "frmpercents");
}

TEST_F(FrmPointsTest, FromTheSummaryPointsGoBackThere) {
  DefaultMethod = 5;
  Current().Method = 2;
  Open(portal);
  driver->Press("exit");
  EXPECT_EQ(portal.Next(), "");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmPointsTest, FromTheSummaryPointsAndTypesGoOnToTheTypes) {
  DefaultMethod = 5;
  Current().Method = 3;
  Open(portal);
  driver->Press("exit");
  EXPECT_EQ(portal.Next(), "frmpercents");
}

TEST_F(FrmPointsTest, CancelLeavesUseMethodAndTotalAsTheyWere) {
  Open(portal);
  FlipRow(1);
  driver->Press("Sumanry");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().InstrumentUse[1], Currency());
  EXPECT_EQ(Current().Method, 5);
  EXPECT_EQ(Current().AverageWork1, 0);
  EXPECT_EQ(TotalPossible(), 250);
  EXPECT_EQ(screen.PortalBeside("frmtotals"), nullptr);
}

TEST_F(FrmPointsTest, MoreThan32767PointsAreRefused) {
  AddGrade("Huge", "T ").mvalue = 32600;
  Open(portal);
  screen.ExpectBox("The total points of a class can't be more than 32767.");
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Current().Method, 5);
  EXPECT_EQ(Current().InstrumentUse[1], Currency());
  FlipRow(2);
  Accept(BoxAnswer::kNo);
  EXPECT_EQ(TotalPossible(), 32650);
}

}  // namespace
}  // namespace tallyroll
