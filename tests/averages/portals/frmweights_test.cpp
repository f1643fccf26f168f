// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmweights.h"

#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

constexpr int kNewWeight = 3;

class FrmWeightsTest : public AveragePortalTest {
 protected:
  FrmWeightsTest() {
    AddGrade("Quiz 1", "Q ", "Y").weight = Money("20");
    AddGrade("Test 1", "T ").weight = Money("80");
    AddGrade("Bonus", "X ").weight = Money("5");
  }
  void TypeWeights(const Texts& weights) {
    for (std::size_t i = 0; i < weights.size(); ++i)
      TypeCell("grdgrade", static_cast<int>(i) + 1, kNewWeight, weights[i]);
  }
  Texts NewWeights() const { return Column(portal.grdgrade, kNewWeight); }

  frmweights portal;
};

TEST_F(FrmWeightsTest, ShowsARowForEachGrade) {
  Open(portal);
  EXPECT_EQ(portal.Caption, "Weights Portal - Individual Items");
  EXPECT_EQ(Headings(portal.grdgrade), (Texts{"  TITLES", "Type", "Old Wts.", "New Wts."}));
  EXPECT_EQ(Column(portal.grdgrade, 0), (Texts{"Quiz 1", "Test 1", "Bonus"}));
  EXPECT_EQ(Column(portal.grdgrade, 1), (Texts{"Q", "T", "X"}));
  EXPECT_EQ(Column(portal.grdgrade, 2), (Texts{"20", "80", "5"}));
}

TEST_F(FrmWeightsTest, WithoutWeightsInForceTheColumnStartsAtZero) {
  Open(portal);
  EXPECT_EQ(NewWeights(), (Texts{"0", "0", "0"}));
  EXPECT_EQ(driver->Text("totals"), "0");
  EXPECT_EQ(driver->Text("extra"), "0");
}

TEST_F(FrmWeightsTest, WeightsInForceAreOfferedAgain) {
  Class& c = Current();
  c.Method = 0;
  c.Weights = {Currency(), Money("33.3"), Money("66.7"), Money("2")};
  Open(portal);
  EXPECT_EQ(NewWeights(), (Texts{"33.3", "66.7", "2"}));
  EXPECT_EQ(driver->Text("totals"), "100");
  EXPECT_EQ(driver->Text("extra"), "2");
}

TEST_F(FrmWeightsTest, TheFirstKeyReplacesAndTheOthersAreAdded) {
  Open(portal);
  TypeCell("grdgrade", 1, kNewWeight, "33.333");
  EXPECT_EQ(NewWeights().at(0), "33.333");
  driver->TypeKeys("grdgrade", "\b\b");
  EXPECT_EQ(NewWeights().at(0), "33.3");
  driver->PickCell("grdgrade", 1, kNewWeight);
  driver->TypeKeys("grdgrade", "4");
  EXPECT_EQ(NewWeights().at(0), "4");
}

TEST_F(FrmWeightsTest, BackspaceAsFirstKeyEmptiesTheCell) {
  Open(portal);
  TypeCell("grdgrade", 1, kNewWeight, "12");
  driver->PickCell("grdgrade", 1, kNewWeight);
  driver->TypeKeys("grdgrade", "\b");
  EXPECT_EQ(NewWeights().at(0), "");
  driver->TypeKeys("grdgrade", "\b");
  EXPECT_EQ(NewWeights().at(0), "");
}

TEST_F(FrmWeightsTest, EachKeyCountsAnewWithExtraCreditApart) {
  Open(portal);
  TypeCell("grdgrade", 1, kNewWeight, "33.3");
  TypeCell("grdgrade", 2, kNewWeight, "66.7x");
  TypeCell("grdgrade", 3, kNewWeight, "7");
  EXPECT_EQ(driver->Text("totals"), "100");
  EXPECT_EQ(driver->Text("extra"), "7");
  EXPECT_EQ(Current().AverageWork1, 1);
}

TEST_F(FrmWeightsTest, EnterGoesOnToTheNextWeight) {
  Open(portal);
  driver->TypeKeys("grdgrade", "20");
  driver->PressKey("grdgrade", Key::kEnter);
  driver->TypeKeys("grdgrade", "80");
  EXPECT_EQ(NewWeights(), (Texts{"20", "80", "0"}));
  driver->PressKey("grdgrade", Key::kEnter);
  driver->PressKey("grdgrade", Key::kEnter);
  EXPECT_EQ(portal.grdgrade.Row, 3);
}

TEST_F(FrmWeightsTest, NewGoesToTheFirstRow) {
  Open(portal);
  TypeCell("grdgrade", 2, kNewWeight, "80");
  driver->Press("newwt");
  EXPECT_EQ(portal.grdgrade.Row, 1);
  EXPECT_EQ(driver->Focused(), "grdgrade");
  driver->TypeKeys("grdgrade", "20");
  EXPECT_EQ(NewWeights(), (Texts{"20", "80", "0"}));
}

TEST_F(FrmWeightsTest, EqualOfThreeItemsGivesTheLastWhatRemains) {
  Current().Instruments[3].typecode = "HW";
  Open(portal);
  driver->Press("equal");
  EXPECT_EQ(NewWeights(), (Texts{"33.333", "33.333", "33.334"}));
  EXPECT_EQ(driver->Text("totals"), "100");
  EXPECT_EQ(Current().AverageWork1, 1);
}

TEST_F(FrmWeightsTest, EqualLeavesExtraCreditOut) {
  Open(portal);
  TypeCell("grdgrade", 3, kNewWeight, "7");
  driver->Press("equal");
  EXPECT_EQ(NewWeights(), (Texts{"50", "50", "0"}));
  EXPECT_EQ(driver->Text("totals"), "100");
  EXPECT_EQ(driver->Text("extra"), "0");
}

TEST_F(FrmWeightsTest, EqualOfSixRoundsToThreeDecimals) {
  AddGrade("Lab", "L ");
  for (const char* title : {"Essay", "Quiz 2", "Test 2"}) AddGrade(title, "E ");
  Open(portal);
  driver->Press("equal");  // 16.6666... is 16.667; five of them are 83.335
  EXPECT_EQ(NewWeights(), (Texts{"16.667", "16.667", "0", "16.667", "16.667", "16.667", "16.665"}));
}

TEST_F(FrmWeightsTest, EqualWithExtraCreditAloneChangesNothing) {
  Current().Instruments[1].typecode = Current().Instruments[2].typecode = "X ";
  Open(portal);
  TypeCell("grdgrade", 1, kNewWeight, "7");
  driver->Press("equal");
  EXPECT_EQ(NewWeights(), (Texts{"7", "0", "0"}));
  EXPECT_EQ(driver->Text("totals"), "0");
  EXPECT_EQ(driver->Text("extra"), "7");
}

TEST_F(FrmWeightsTest, UseOldTakesTheSavedWeights) {
  Open(portal);
  driver->Press("oldwt");
  EXPECT_EQ(NewWeights(), (Texts{"20", "80", "5"}));
  EXPECT_EQ(driver->Text("totals"), "100");
  EXPECT_EQ(driver->Text("extra"), "5");
  EXPECT_EQ(Current().AverageWork1, 1);
}

TEST_F(FrmWeightsTest, ClearPutsZeroEverywhere) {
  Open(portal);
  driver->Press("oldwt");
  driver->Press("clearwt");
  EXPECT_EQ(NewWeights(), (Texts{"0", "0", "0"}));
  EXPECT_EQ(driver->Text("totals"), "0");
  EXPECT_EQ(driver->Text("extra"), "0");
}

TEST_F(FrmWeightsTest, CopyToPutsTheColumnOnTheClipboard) {
  Open(portal);
  driver->Press("oldwt");
  driver->Press("paste");
  EXPECT_EQ(screen.clipboard, "5z\r20\r80\r5\r");
}

TEST_F(FrmWeightsTest, PasteFromFillsTheColumnInOrder) {
  Open(portal);
  screen.clipboard = "5z\r40\r60\r";
  TypeCell("grdgrade", 3, kNewWeight, "9");
  driver->Press("frombd");
  EXPECT_EQ(NewWeights(), (Texts{"40", "60", "9"}));
  EXPECT_EQ(driver->Text("totals"), "100");
  EXPECT_EQ(driver->Text("extra"), "9");
  EXPECT_EQ(Current().AverageWork1, 1);
}

TEST_F(FrmWeightsTest, PasteFromTakesAnyLineEndAndPassesOverSpareLines) {
  Open(portal);
  screen.clipboard = "5z\r\n40\n60\r\n1\r2\r3";
  driver->Press("frombd");
  EXPECT_EQ(NewWeights(), (Texts{"40", "60", "1"}));
}

TEST_F(FrmWeightsTest, PasteFromRefusesAnotherText) {
  Open(portal);
  screen.clipboard = "6z\r40\r60\r";
  screen.ExpectBox(kWrongClipboard);
  driver->Press("frombd");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kNone);
  EXPECT_EQ(NewWeights(), (Texts{"0", "0", "0"}));
  EXPECT_EQ(Current().AverageWork1, 0);
}

TEST_F(FrmWeightsTest, TypesShowsTheSumsBesideAndFollowsTheKeys) {
  Open(portal);
  driver->Press("oldwt");
  driver->Press("types");
  auto* totals = dynamic_cast<frmtotals*>(screen.PortalBeside("frmtotals"));
  ASSERT_NE(totals, nullptr);
  EXPECT_EQ(Headings(totals->grdgrade), (Texts{"NAME of TYPE", "Type", "Weight", "Points"}));
  EXPECT_EQ(totals->grdgrade.Rows(), 27);
  EXPECT_EQ(totals->grdgrade.TextMatrix(10, 0), "Quiz");
  EXPECT_EQ(totals->grdgrade.TextMatrix(10, 1), "Q");
  EXPECT_EQ(totals->grdgrade.TextMatrix(10, 2), "20");
  EXPECT_EQ(totals->grdgrade.TextMatrix(10, 3), "100");
  EXPECT_EQ(totals->grdgrade.TextMatrix(13, 2), "5");
  TypeCell("grdgrade", 1, kNewWeight, "25");
  EXPECT_EQ(totals->grdgrade.TextMatrix(10, 2), "25");
}

TEST_F(FrmWeightsTest, TypesClosedByTheTeacherShowsAgain) {
  Open(portal);
  driver->Press("types");
  PortalDriver(*screen.PortalBeside("frmtotals")).Press("exit");
  EXPECT_EQ(screen.PortalBeside("frmtotals"), nullptr);
  driver->Press("types");
  EXPECT_NE(screen.PortalBeside("frmtotals"), nullptr);
}

TEST_F(FrmWeightsTest, ContinueRefusesASumThatIsNotAHundred) {
  Open(portal);
  TypeWeights({"20", "79.9999", "5"});
  screen.ExpectBox(kMustBeHundred);
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher ");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kCritical);
  EXPECT_EQ(Current().Method, 5);
  EXPECT_TRUE(Current().Weights.empty());
  EXPECT_EQ(driver->Focused(), "grdgrade");
}

TEST_F(FrmWeightsTest, ANumberTooLargeIsRefusedAndMayBeMended) {
  Open(portal);
  TypeWeights({"1e30", "80", "5"});
  EXPECT_EQ(driver->Text("totals"), "?");
  screen.ExpectBox(kMustBeHundred);
  driver->Press("exit");
  TypeCell("grdgrade", 1, kNewWeight, "20");
  EXPECT_EQ(driver->Text("totals"), "100");
}

TEST_F(FrmWeightsTest, ContinueSavesTheWeightsOnYes) {
  Open(portal);
  TypeWeights({"33.3", "66.7", "12"});
  screen.ExpectBox(kSaveWeights, BoxAnswer::kYes);
  driver->Press("exit");
  const Class& c = Current();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(portal.Next(), "frmroundoff");
  EXPECT_EQ(screen.boxes.at(0).title, "SAVE WEIGHTS");
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kYesNo);
  EXPECT_EQ(c.Method, 0);
  EXPECT_EQ(c.Weights, (List<Currency>{Currency(), Money("33.3"), Money("66.7"), Money("12")}));
  EXPECT_EQ(c.Instruments[2].weight, Money("66.7"));
  EXPECT_EQ(c.Instruments[3].weight, Money("12"));
  EXPECT_EQ(c.AverageSettings, "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0");
  EXPECT_EQ(c.AverageWork1, 2);
  EXPECT_EQ(c.AverageWork2, 1);
  EXPECT_EQ(window.saved, 1);
}

TEST_F(FrmWeightsTest, WeightsOfFourDecimalsAreAccepted) {
  AddGrade("Test 2", "T ");
  Open(portal);
  TypeWeights({"33.3333", "33.3333", "5", "33.3334"});
  EXPECT_EQ(driver->Text("totals"), "100");
  screen.ExpectBox(kSaveWeights, BoxAnswer::kYes);
  driver->Press("exit");
  const Class& c = Current();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(c.Weights[1], Currency::FromScaled(333333));
  EXPECT_EQ(c.Instruments[2].weight, Currency::FromScaled(333333));
  EXPECT_EQ(c.Instruments[4].weight, Currency::FromScaled(333334));
}

TEST_F(FrmWeightsTest, ContinueWithoutSavingPutsTheWeightsInForceAlone) {
  Open(portal);
  driver->Press("equal");
  screen.ExpectBox(kSaveWeights, BoxAnswer::kNo);
  driver->Press("exit");
  const Class& c = Current();
  EXPECT_EQ(c.Method, 0);
  EXPECT_EQ(c.Weights[1], Money("50"));
  EXPECT_EQ(c.Instruments[1].weight, Money("20"));
  EXPECT_EQ(c.AverageSettings, "");
  EXPECT_EQ(c.AverageWork1, 1);
  EXPECT_EQ(window.saved, 0);
}

TEST_F(FrmWeightsTest, WeightsInForceThatNobodyChangedAskNothing) {
  Class& c = Current();
  c.Method = 0;
  c.AverageSettings = "0,0,0,0,0";
  c.Weights = {Currency(), Money("20"), Money("80"), Money("5")};
  c.AverageWork1 = 2;
  Open(portal);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(c.AverageWork1, 2);
  EXPECT_EQ(c.AverageWork2, 0);
}

TEST_F(FrmWeightsTest, AnotherMethodInForceAsksEvenWithoutAKey) {
  Current().Method = 2;
  Open(portal);
  driver->Press("oldwt");
  Current().AverageWork1 = 0;
  screen.ExpectBox(kSaveWeights, BoxAnswer::kNo);
  driver->Press("exit");
  EXPECT_EQ(Current().AverageWork1, 1);
}

TEST_F(FrmWeightsTest, FromTheSummaryItGoesBackThere) {
  DefaultMethod = 5;
  Current().Method = 0;
  Open(portal);
  driver->Press("equal");
  screen.ExpectBox(kSaveWeights, BoxAnswer::kNo);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(portal.Next(), "");
}

TEST_F(FrmWeightsTest, CancelChangesNothing) {
  Open(portal);
  driver->Press("types");
  driver->Tick("droptype");
  driver->Press("equal");
  driver->Press("cancel");
  const Class& c = Current();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(c.Method, 5);
  EXPECT_EQ(c.AverageWork1, 0);
  EXPECT_EQ(c.AverageFlag4, kFalse);
  EXPECT_TRUE(c.Weights.empty());
  EXPECT_EQ(screen.PortalBeside("frmtotals"), nullptr);
  EXPECT_EQ(screen.PortalBeside("frmdropgrade"), nullptr);
}

TEST_F(FrmWeightsTest, AClassWithoutGradesTakesNoKey) {
  Current().NumInstruments = 0;
  Current().Instruments.clear();
  Open(portal);
  driver->TypeKeys("grdgrade", "5");
  driver->Press("equal");
  driver->Press("newwt");
  EXPECT_EQ(driver->Text("totals"), "0");
  screen.ExpectBox(kMustBeHundred);
  driver->Press("exit");
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmWeightsTest, PrintHandsTheTableOver) {
  static PrintedTable printed;
  PrintTable = [](const PrintedTable& table) { printed = table; };
  Open(portal);
  TypeCell("grdgrade", 1, 3, "70");
  driver->Press("print");
  EXPECT_EQ(printed.title, " Weights Printout");
  EXPECT_EQ(printed.head, (Texts{"NAME", "Types", "OLD WTS.", "NEW WTS."}));
  EXPECT_TRUE(printed.second_head.empty());
  EXPECT_EQ(printed.first_column, 7);
  ASSERT_EQ(static_cast<int>(printed.rows.size()), Current().NumInstruments);
  EXPECT_EQ(printed.rows[0][0], Current().Instruments[1].title);
  EXPECT_EQ(printed.rows[0][3], "70");
  EXPECT_FALSE(portal.Unloaded());
}

}  // namespace
}  // namespace tallyroll
