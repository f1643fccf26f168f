// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/frmsingles.h"

#include <gtest/gtest.h>

#include "tests/analysis/analysis_test.h"

namespace tallyroll {
namespace {

class FrmsinglesTest : public AnalysisTest {
 protected:
  FrmsinglesTest() {
    AddGrade("Quiz 1", "Q ").testdate = "9/2/2026";
    AddGrade("Test 1", "T ");
    Enrol("Ng", {"80", "1"});
    Enrol("Abel", {"A", "2"});
    Enrol("Dyer", {"ABS", "3"});
    Enrol("Reed", {"80", "4"});
    Enrol("Yoon", {"9e99", "5"});
  }
  static Texts Names(const frmsingles& portal) {
    Texts names;
    for (int row = 1; row < portal.grid1.Rows(); ++row)
      names.emplace_back(portal.grid1.TextMatrix(row, 0));
    return names;
  }
};

TEST_F(FrmsinglesTest, ShowsTheGradeThatIsChosen) {
  frmsingles portal;
  Open(portal);
  EXPECT_EQ(portal.lstName.List, Texts({"Quiz 1", "Test 1"}));
  driver->Choose("lstName", 0);
  EXPECT_EQ(driver->Text("title"), "Quiz 1");
  EXPECT_EQ(driver->Text("code"), "Qui");
  EXPECT_EQ(driver->Text("typecat"), "Quiz");
  EXPECT_EQ(driver->Text("testdate"), "9/2/2026");
  EXPECT_EQ(Column(portal.grid1, 2), Texts({"80", "A", "ABS", "80", "9e99"}));
  EXPECT_EQ(Headings(portal.grid1), Texts({"     NAME", "       ID", "Qui"}));
}

TEST_F(FrmsinglesTest, NextStopsAtTheLastAndPreviousAtTheFirst) {
  frmsingles portal;
  Open(portal);
  driver->Press("mnunext");
  EXPECT_EQ(driver->Text("title"), "Quiz 1");
  driver->Press("mnunext");
  driver->Press("mnunext");
  EXPECT_EQ(driver->Text("title"), "Test 1");
  EXPECT_EQ(portal.lstName.ListIndex, 1);
  driver->Press("mnuprevious");
  driver->Press("mnuprevious");
  EXPECT_EQ(driver->Text("title"), "Quiz 1");
  EXPECT_EQ(Column(portal.grid1, 2)[0], "80");
}

// An A is 95, an absence 0; what is beyond all values ranks first. Equal ones keep their order.
TEST_F(FrmsinglesTest, RanksACopyAndNeverTheClass) {
  const List<Student> before = Current().Students;
  frmsingles portal;
  Open(portal);
  driver->Choose("lstName", 0);
  driver->Tick("mnuheighest");
  EXPECT_EQ(Names(portal),
            Texts({" 1 Yoon, Ada", " 2 Abel, Ada", " 3 Ng, Ada", " 4 Reed, Ada", " 5 Dyer, Ada"}));
  EXPECT_EQ(Column(portal.grid1, 2), Texts({"9e99", "A", "80", "80", "ABS"}));
  EXPECT_FALSE(portal.mnunone.Value);
  driver->Tick("mnulowest");
  EXPECT_EQ(Column(portal.grid1, 2), Texts({"ABS", "80", "80", "A", "9e99"}));
  EXPECT_EQ(Names(portal)[1], " 2 Ng, Ada");
  driver->Press("mnunext");  // ranked too
  EXPECT_EQ(Column(portal.grid1, 2), Texts({"1", "2", "3", "4", "5"}));
  driver->Tick("mnuheighest");
  EXPECT_EQ(Column(portal.grid1, 2), Texts({"5", "4", "3", "2", "1"}));
  driver->Tick("mnunone");
  EXPECT_EQ(Names(portal)[0], " 1 Ng, Ada");
  EXPECT_FALSE(portal.mnuheighest.Value);
  EXPECT_EQ(Current().Students, before);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmsinglesTest, HasADisplayModeOfItsOwn) {
  frmsingles portal;
  Open(portal);
  driver->Choose("lstName", 0);
  driver->Tick("mnuidwith");
  EXPECT_EQ(portal.grid1.TextMatrix(1, 0), "101 ");
  driver->Tick("mnunamewithout");
  EXPECT_EQ(portal.grid1.TextMatrix(1, 0), "Ng, Ada");
  EXPECT_EQ(portal.grid1.ColWidth(1), 0);
  EXPECT_EQ(NameMode, 68);
  driver->Press("mnuExit");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmsinglesTest, ATypeThatDoesNotExistHasNoName) {
  Current().Instruments[1].typecode = "?";
  frmsingles portal;
  Open(portal);
  driver->Choose("lstName", 0);
  EXPECT_EQ(driver->Text("typecat"), "");
}

}  // namespace
}  // namespace tallyroll
