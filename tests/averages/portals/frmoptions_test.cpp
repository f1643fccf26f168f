// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmoptions.h"

#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

class FrmOptionsTest : public AveragePortalTest {
 protected:
  FrmOptionsTest() {
    OpenState = 82;
    AddGrade("Quiz 1", "Q ").mvalue = 50;
    AddGrade("Test 1", "T ");
    AddGrade("Bonus", "X ").mvalue = 10;
    Class& c = Current();
    c.RoundMode = 0;
    c.Weights = {Currency(), Money("33.3"), Money("66.7"), Money("5")};
    c.InstrumentUse = {Currency(), Money("1"), Money("2"), Money("1")};
    c.TypePercents[10] = Money("60");
    c.TypePercents[12] = Money("40");
  }
  void OpenUnder(i16 method) {
    Current().Method = method;
    Open(portal);
  }
  static Texts Row(const Grid& grid, int row) {
    Texts cells;
    for (int col = 0; col < grid.Cols(); ++col) cells.emplace_back(grid.TextMatrix(row, col));
    return cells;
  }

  frmoptions portal;
};

TEST_F(FrmOptionsTest, ShowsItemsAndTheirWeights) {
  OpenUnder(0);
  EXPECT_EQ(portal.Caption, "Current Weights and Rounding Summary Portal");
  EXPECT_EQ(driver->Text("method"), "Assign Weights to Individual Items");
  EXPECT_EQ(Row(portal.amountgrid, 0), (Texts{"  TITLES", "Type", "Wts."}));
  EXPECT_EQ(Row(portal.amountgrid, 1), (Texts{"Quiz 1", "Q", "33.3"}));
  EXPECT_EQ(Row(portal.amountgrid, 3), (Texts{"Bonus", "X", "5"}));
  EXPECT_FALSE(driver->Visible("typegrid"));
  EXPECT_FALSE(driver->Visible("pointframe"));
}

TEST_F(FrmOptionsTest, ShowsTypesAndTheirPercents) {
  Current().AverageFlag4 = kTrue;
  Current().TypeWeights[10] = Money("2");
  OpenUnder(1);
  EXPECT_EQ(driver->Text("method"), "Assign Weights by Type");
  EXPECT_FALSE(driver->Visible("amountgrid"));
  EXPECT_EQ(Row(portal.typegrid, 0),
            (Texts{"NAME of TYPE", "Type", "# of Items", "Percent", "Drop"}));
  EXPECT_EQ(portal.typegrid.Rows(), 4);
  EXPECT_EQ(Row(portal.typegrid, 1), (Texts{"Quiz", "Q", "1", "60", "Y"}));
  EXPECT_EQ(Row(portal.typegrid, 2), (Texts{"Test", "T", "1", "40", "N"}));
  EXPECT_EQ(Row(portal.typegrid, 3), (Texts{"Extra Credit", "X", "1", "0", "N"}));
}

TEST_F(FrmOptionsTest, ShowsPointsAndTheirSums) {
  OpenUnder(2);
  EXPECT_EQ(driver->Text("method"), "Use Points");
  EXPECT_EQ(Row(portal.amountgrid, 0), (Texts{"", "", "Max", "Count"}));
  EXPECT_EQ(Row(portal.amountgrid, 1), (Texts{"  TITLES", "Type", "Pts.", "in Total"}));
  EXPECT_EQ(Row(portal.amountgrid, 2), (Texts{"Quiz 1", "Q", "50", "Y"}));
  EXPECT_EQ(Row(portal.amountgrid, 3), (Texts{"Test 1", "T", "100", "N"}));
  EXPECT_EQ(driver->Text("totals"), "50");
  EXPECT_EQ(driver->Text("extra"), "10");
  EXPECT_TRUE(driver->Visible("pointframe"));
}

TEST_F(FrmOptionsTest, ShowsTypesWithPoints) {
  OpenUnder(3);
  EXPECT_EQ(driver->Text("method"), "Use Points and Weights by Type");
  EXPECT_EQ(Row(portal.typegrid, 0), (Texts{"NAME of TYPE", "Type", "Wts.", "#", "Drop"}));
  EXPECT_EQ(Row(portal.typegrid, 1), (Texts{"Quiz", "Q", "60", "1", "N"}));
  EXPECT_TRUE(driver->Visible("pointframe"));
}

TEST_F(FrmOptionsTest, ShowsTheRounding) {
  OpenUnder(0);
  EXPECT_EQ(driver->Text("round"), "Enabled");
  EXPECT_EQ(Row(portal.grdgrade, 0), (Texts{"", "", " Min."}));
  EXPECT_EQ(Row(portal.grdgrade, 1), (Texts{"Letter", "#", "Value"}));
  EXPECT_EQ(Row(portal.grdgrade, 3), (Texts{"A+", "99", "97"}));
  EXPECT_EQ(Row(portal.grdgrade, 14), (Texts{"D-", "60", "58.5"}));
}

TEST_F(FrmOptionsTest, ShowsThatRoundingIsSkipped) {
  Current().RoundMode = 1;
  UseLetterValuesAsScale();
  OpenUnder(0);
  EXPECT_EQ(driver->Text("round"), "Not Enabled");
  EXPECT_EQ(Row(portal.grdgrade, 2), (Texts{"A+", "100", "100"}));
}

TEST_F(FrmOptionsTest, PointsDropNothingWhateverTheWeightsPortalsLeft) {
  Class& c = Current();
  c.AverageFlag1 = c.AverageFlag2 = c.AverageFlag3 = c.AverageFlag4 = kTrue;
  c.TypeWeights.fill(Money("2"));
  for (const i16 method : {i16{2}, i16{3}}) {
    c.Method = method;
    frmoptions fresh;
    fresh.Load();
    PortalDriver each(fresh);
    for (const char* label : {"dropabs", "dsl", "dis", "dlt"})
      EXPECT_EQ(each.Text(label), "Not Selected") << label << method;
    for (int row = 1; row < fresh.typegrid.Rows(); ++row)
      EXPECT_EQ(fresh.typegrid.TextMatrix(row, 4), "N");
  }
}

TEST_F(FrmOptionsTest, ShowsTheFourStatesEachOfItsOwnFlag) {
  Class& c = Current();
  const std::vector<std::pair<i16 Class::*, const char*>> states = {
      {&Class::AverageFlag1, "dropabs"},
      {&Class::AverageFlag2, "dsl"},
      {&Class::AverageFlag3, "dis"},
      {&Class::AverageFlag4, "dlt"}};
  for (const auto& [flag, label] : states) {
    c.*flag = kTrue;
    frmoptions fresh;
    fresh.Load();
    PortalDriver each(fresh);
    for (const auto& [other, name] : states)
      EXPECT_EQ(each.Text(name), other == flag ? "Selected" : "Not Selected") << label << name;
    c.*flag = kFalse;
  }
}

TEST_F(FrmOptionsTest, ChangeWeightsOpensThePortalOfTheMethod) {
  const std::string_view portals[] = {"frmweights", "frmpercents", "frmpoints", "frmpoints"};
  for (i16 method = 0; method < 4; ++method) {
    OpenUnder(method);
    screen.ExpectPortal(std::string(portals[method]), [](PortalDriver& work) {
      EXPECT_EQ(DefaultMethod, 5);
      work.Press("cancel");
    });
    driver->Press("Change1");
    EXPECT_FALSE(portal.Unloaded());
  }
}

TEST_F(FrmOptionsTest, ChangeWeightsComesBackToAFreshSummary) {
  Current().AverageSettings = "0,0,0,0,0";
  OpenUnder(0);
  screen.ExpectPortal("frmweights", [this](PortalDriver& work) {
    work.Press("equal");
    screen.ExpectBox(kSaveWeights, BoxAnswer::kNo);
    work.Press("exit");
  });
  driver->Press("Change1");
  EXPECT_EQ(portal.amountgrid.TextMatrix(1, 2), "50");
}

TEST_F(FrmOptionsTest, ChangeWeightsOfTypesComesBackToAFreshSummary) {
  Current().AverageSettings = "1,0,0,0,0";
  OpenUnder(1);
  screen.ExpectPortal("frmpercents", [this](PortalDriver& work) {
    work.Press("equal");
    screen.ExpectBox(kSaveWeights, BoxAnswer::kNo);
    work.Press("exit");
  });
  driver->Press("Change1");
  EXPECT_EQ(Row(portal.typegrid, 1), (Texts{"Quiz", "Q", "1", "50", "N"}));
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Current().Method, 1);
}

TEST_F(FrmOptionsTest, ChangePointsComesBackToAFreshSummary) {
  OpenUnder(2);
  screen.ExpectPortal("frmpoints", [this](PortalDriver& work) {
    work.PickCell("grdgrade", 2, 3);
    work.TypeKeys("grdgrade", " ");
    screen.ExpectBox("Do you want to save these points", BoxAnswer::kNo);
    work.Press("exit");
  });
  driver->Press("Change1");
  EXPECT_EQ(Row(portal.amountgrid, 3), (Texts{"Test 1", "T", "100", "Y"}));
  EXPECT_EQ(driver->Text("totals"), "150");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Current().Method, 2);
}

TEST_F(FrmOptionsTest, ChangePointsAndTypesComesBackFromTheTypes) {
  Current().AverageSettings = "3,0,0,0,0";
  OpenUnder(3);
  screen.ExpectPortal("frmpoints", [](PortalDriver& work) { work.Press("exit"); });
  screen.ExpectPortal("frmpercents", [this](PortalDriver& work) {
    work.Press("equal");
    screen.ExpectBox(kSaveWeights, BoxAnswer::kNo);
    work.Press("exit");
  });
  driver->Press("Change1");
  EXPECT_EQ(Row(portal.typegrid, 1), (Texts{"Quiz", "Q", "50", "1", "N"}));
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Current().Method, 3);
}

TEST_F(FrmOptionsTest, ChangeRoundingComesBackToAFreshSummary) {
  OpenUnder(0);
  screen.ExpectPortal("frmroundoff", [](PortalDriver& work) {
    EXPECT_EQ(DefaultMethod, 5);
    work.Press("skip");
    work.Press("continueprint");
  });
  driver->Press("Change2");
  EXPECT_EQ(driver->Text("round"), "Not Enabled");
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmOptionsTest, ContinueGoesOnToTheGradesPortal) {
  OpenUnder(0);
  driver->Press("continue");
  EXPECT_EQ(portal.Next(), "frmscrnavg");
}

TEST_F(FrmOptionsTest, ForThePrinterItGoesOnToThePrinterPortal) {
  OpenState = 69;
  OpenUnder(0);
  driver->Press("continue");
  EXPECT_EQ(portal.Next(), "frmprintall");
}

TEST_F(FrmOptionsTest, CancelCloses) {
  OpenUnder(0);
  driver->Press("EXIT");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(portal.Next(), "");
}

}  // namespace
}  // namespace tallyroll
