// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmpercents.h"

#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

constexpr int kOld = 3;
constexpr int kNew = 4;
constexpr int kEssayRow = 4;
constexpr int kQuizRow = 10;
constexpr int kTestRow = 12;
constexpr int kExtraRow = 13;

class FrmPercentsTest : public AveragePortalTest {
 protected:
  FrmPercentsTest() {
    DefaultMethod = 1;
    AddGrade("Quiz 1", "Q ", "Y");
    AddGrade("Quiz 2", "Q ");
    AddGrade("Test 1", "T ");
    AddGrade("Bonus", "X ");
  }
  std::string_view New(int row) const { return portal.typegrid.TextMatrix(row, kNew); }
  void TypeWeight(int row, std::string_view text) { TypeCell("typegrid", row, kNew, text); }
  void Share(std::string_view quiz, std::string_view test) {
    TypeWeight(kQuizRow, quiz);
    TypeWeight(kTestRow, test);
  }

  frmpercents portal;
};

TEST_F(FrmPercentsTest, ShowsARowForEachType) {
  Current().PercentsText = "1\r2\r3\r4.5";
  Open(portal);
  EXPECT_EQ(portal.Caption, "Weights Portals - Type");
  EXPECT_EQ(Headings(portal.typegrid),
            (Texts{"NAME of TYPE", "Type", "# of Items", "Old %", "New %"}));
  EXPECT_EQ(portal.typegrid.Rows(), 27);
  EXPECT_EQ(portal.typegrid.TextMatrix(kQuizRow, 0), "   Quiz");
  EXPECT_EQ(portal.typegrid.TextMatrix(kQuizRow, 1), "Q");
  EXPECT_EQ(portal.typegrid.TextMatrix(kQuizRow, 2), "2");
  EXPECT_EQ(portal.typegrid.TextMatrix(kEssayRow, kOld), "4.5");
  EXPECT_EQ(portal.typegrid.TextMatrix(26, kOld), "0");
  EXPECT_EQ(New(kEssayRow), "0");
}

TEST_F(FrmPercentsTest, TheCurrentRowIsMarked) {
  Open(portal);
  EXPECT_EQ(portal.typegrid.TextMatrix(1, 0), "\xBB Averaged Grade");
  driver->PickCell("typegrid", kTestRow, kNew);
  EXPECT_EQ(portal.typegrid.TextMatrix(1, 0), "   Averaged Grade");
  EXPECT_EQ(portal.typegrid.TextMatrix(kTestRow, 0), "\xBB Test");
  driver->Press("newwt");
  EXPECT_EQ(portal.typegrid.TextMatrix(1, 0), "\xBB Averaged Grade");
}

TEST_F(FrmPercentsTest, WeightsInForceAreOfferedAgain) {
  Current().Method = 1;
  Current().TypePercents[kQuizRow] = Money("60");
  Current().TypePercents[kTestRow] = Money("40");
  Open(portal);
  EXPECT_EQ(New(kQuizRow), "60");
  EXPECT_EQ(driver->Text("totals"), "100");
}

TEST_F(FrmPercentsTest, KeysCountExtraCreditApart) {
  Open(portal);
  Share("33.3", "66.7");
  TypeWeight(kExtraRow, "200");
  EXPECT_EQ(driver->Text("totals"), "100");
  EXPECT_EQ(driver->Text("extra"), "200");
  EXPECT_EQ(Current().AverageWork2, 1);
  EXPECT_EQ(Current().AverageWork1, 0);
}

TEST_F(FrmPercentsTest, EqualSharesAmongTypesWithItems) {
  Open(portal);
  TypeWeight(kEssayRow, "30");
  driver->Press("equal");
  EXPECT_EQ(New(kQuizRow), "50");
  EXPECT_EQ(New(kTestRow), "50");
  EXPECT_EQ(New(kEssayRow), "0");
  EXPECT_EQ(New(kExtraRow), "0");
  EXPECT_EQ(driver->Text("totals"), "100");
  EXPECT_EQ(Current().AverageWork2, 1);
}

TEST_F(FrmPercentsTest, EqualOfSevenTypesGivesTheLastWhatRemains) {
  for (const char* code : {"CA", "E ", "HW", "L ", "S9"}) AddGrade(code, code);
  Open(portal);
  driver->Press("equal");
  for (const int row : {2, 4, 6, 7, kQuizRow, kTestRow}) EXPECT_EQ(New(row), "14") << row;
  EXPECT_EQ(New(25), "16");
  EXPECT_EQ(driver->Text("totals"), "100");
}

TEST_F(FrmPercentsTest, EqualOfSixTypesRoundsToTheNearest) {
  for (const char* code : {"CA", "E ", "HW", "L "}) AddGrade(code, code);
  Open(portal);
  driver->Press("equal");  // 16.67 is 17; five of them are 85
  EXPECT_EQ(New(kQuizRow), "17");
  EXPECT_EQ(New(kTestRow), "15");
}

TEST_F(FrmPercentsTest, EqualWithExtraCreditAloneChangesNothing) {
  for (Instrument& grade : Current().Instruments) grade.typecode = "X ";
  Open(portal);
  TypeWeight(kEssayRow, "30");
  driver->Press("equal");
  EXPECT_EQ(New(kEssayRow), "30");
}

TEST_F(FrmPercentsTest, UseOldAndClear) {
  Current().PercentsText = "100";
  Open(portal);
  driver->Press("oldwt");
  EXPECT_EQ(New(1), "100");
  EXPECT_EQ(Current().AverageWork2, 1);
  driver->Press("clearwt");
  EXPECT_EQ(New(1), "0");
  EXPECT_EQ(driver->Text("totals"), "0");
}

TEST_F(FrmPercentsTest, CopyAndPasteCarryThe26Weights) {
  Open(portal);
  Share("60", "40");
  driver->Press("paste");
  EXPECT_EQ(screen.clipboard,
            "6z\r0\r0\r0\r0\r0\r0\r0\r0\r0\r60\r0\r40\r0\r0\r0\r0\r0\r0\r0\r0\r0"
            "\r0\r0\r0\r0\r0\r");
  driver->Press("clearwt");
  driver->Press("frombd");
  EXPECT_EQ(New(kQuizRow), "60");
  EXPECT_EQ(driver->Text("totals"), "100");
}

TEST_F(FrmPercentsTest, PasteRefusesWeightsOfItems) {
  Open(portal);
  screen.clipboard = "5z\r60\r";
  screen.ExpectBox(kWrongClipboard);
  driver->Press("frombd");
  EXPECT_EQ(New(1), "0");
}

TEST_F(FrmPercentsTest, TypesShowsTheWeightsWithThePoints) {
  Open(portal);
  Share("60", "40");
  driver->Press("types");
  auto* totals = dynamic_cast<frmtotals*>(screen.PortalBeside("frmtotals"));
  ASSERT_NE(totals, nullptr);
  EXPECT_EQ(totals->grdgrade.TextMatrix(kQuizRow, 2), "60");
  EXPECT_EQ(totals->grdgrade.TextMatrix(kQuizRow, 3), "200");
}

TEST_F(FrmPercentsTest, ContinueRefusesASumThatIsNotAHundred) {
  Open(portal);
  Share("60", "39.9999");
  screen.ExpectBox(kMustBeHundred);
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Current().Method, 5);
  EXPECT_EQ(Current().TypePercents[kQuizRow], Currency());
}

TEST_F(FrmPercentsTest, ContinueSavesTheWeightsOnYes) {
  Open(portal);
  Share("60", "40");
  driver->Tick("redist");
  driver->Tick("dropyn");
  screen.ExpectBox(kSaveWeights, BoxAnswer::kYes);
  driver->Press("exit");
  const Class& c = Current();
  EXPECT_EQ(portal.Next(), "frmroundoff");
  EXPECT_EQ(c.Method, 1);
  EXPECT_EQ(c.TypePercents[kQuizRow], Money("60"));
  EXPECT_EQ(c.PercentsText,
            "0\r0\r0\r0\r0\r0\r0\r0\r0\r60\r0\r40\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0");
  EXPECT_EQ(c.AverageSettings, "1,0,1,1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0");
  EXPECT_EQ(c.AverageFlag2, kTrue);
  EXPECT_EQ(c.AverageFlag3, kTrue);
  EXPECT_EQ(c.AverageWork2, 2);
  EXPECT_EQ(c.AverageWork1, 0);
  EXPECT_EQ(window.saved, 1);
}

TEST_F(FrmPercentsTest, WeightsOfFourDecimalsAreAccepted) {
  AddGrade("Essay", "E ");
  Open(portal);
  TypeWeight(kEssayRow, "33.3333");
  Share("33.3333", "33.3334");
  EXPECT_EQ(driver->Text("totals"), "100");
  screen.ExpectBox(kSaveWeights, BoxAnswer::kYes);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().TypePercents[kTestRow], Currency::FromScaled(333334));
  EXPECT_EQ(Current().PercentsText,
            "0\r0\r0\r33.3333\r0\r0\r0\r0\r0\r33.3333\r0\r33.3334\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0"
            "\r0\r0\r0");
}

TEST_F(FrmPercentsTest, WhatIsSavedIsReadBack) {
  Open(portal);
  Share("33.3", "66.7");
  driver->Tick("redist");
  screen.ExpectBox(kSaveWeights, BoxAnswer::kYes);
  driver->Press("exit");
  Class& c = Current();
  c.Method = 5;
  c.AverageFlag3 = kFalse;
  ParseAverageSettings();
  PrepareWeights();
  EXPECT_EQ(c.Method, 1);
  EXPECT_EQ(c.AverageFlag3, kTrue);
  EXPECT_EQ(c.TypePercents[kQuizRow], Money("33.3"));
  EXPECT_EQ(c.TypePercents[kTestRow], Money("66.7"));
}

TEST_F(FrmPercentsTest, WeightsInForceThatNobodyChangedAskNothing) {
  Class& c = Current();
  c.Method = 1;
  c.AverageSettings = "1,0,0,0,0";
  c.TypePercents[kQuizRow] = Money("100");
  c.AverageWork2 = 2;
  Open(portal);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(c.AverageWork2, 2);
}

TEST_F(FrmPercentsTest, UnderPointsTheMethodStays) {
  DefaultMethod = Current().Method = 3;
  Current().AverageSettings = "3,0,0,0,0";
  Open(portal);
  Share("60", "40");
  screen.ExpectBox(kSaveWeights, BoxAnswer::kYes);
  driver->Press("exit");
  EXPECT_EQ(Current().Method, 3);
  EXPECT_EQ(Current().AverageSettings.substr(0, 2), "3,");
}

TEST_F(FrmPercentsTest, UnderPointsExtraCreditTakesNoWeight) {
  DefaultMethod = Current().Method = 3;
  Open(portal);
  EXPECT_EQ(New(kExtraRow), "*");
  TypeWeight(kExtraRow, "5");
  driver->Press("clearwt");
  driver->Press("equal");
  EXPECT_EQ(New(kExtraRow), "*");
  EXPECT_EQ(driver->Text("extra"), "0");
}

TEST_F(FrmPercentsTest, UnderPointsWithoutExtraCreditItsRowIsAsAnyOther) {
  DefaultMethod = Current().Method = 3;
  Current().Instruments[4].typecode = "Q ";
  Open(portal);
  EXPECT_EQ(New(kExtraRow), "0");
}

TEST_F(FrmPercentsTest, FromTheSummaryItGoesBackThere) {
  DefaultMethod = 5;
  Current().Method = 1;
  Open(portal);
  Share("60", "40");
  screen.ExpectBox(kSaveWeights, BoxAnswer::kNo);
  driver->Press("exit");
  EXPECT_EQ(portal.Next(), "");
  EXPECT_EQ(Current().Method, 1);
}

TEST_F(FrmPercentsTest, CancelChangesNothing) {
  Open(portal);
  Share("60", "40");
  driver->Tick("redist");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Method, 5);
  EXPECT_EQ(Current().AverageWork2, 0);
  EXPECT_EQ(Current().AverageFlag3, kFalse);
  EXPECT_EQ(Current().TypePercents[kQuizRow], Currency());
}

TEST_F(FrmPercentsTest, PrintHandsTheTableOverWithoutTheMark) {
  static PrintedTable printed;
  PrintTable = [](const PrintedTable& table) { printed = table; };
  Open(portal);
  TypeCell("typegrid", 10, 4, "60");
  driver->Press("print");
  EXPECT_EQ(printed.title, " Weights Printout by Type");
  EXPECT_EQ(printed.head, (Texts{"NAME", "Types", "# of ", "OLD %", "NEW %"}));
  EXPECT_EQ(printed.second_head, (Texts{"", "", "Items"}));
  EXPECT_EQ(printed.first_column, 1);
  ASSERT_EQ(printed.rows.size(), 26u);
  EXPECT_EQ(printed.rows[9][0], "Quiz");
  EXPECT_EQ(printed.rows[9][1], "Q");
  EXPECT_EQ(printed.rows[9][4], "60");
}

}  // namespace
}  // namespace tallyroll
