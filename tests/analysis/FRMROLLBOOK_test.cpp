// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/FRMROLLBOOK.h"

#include <gtest/gtest.h>

#include "tests/analysis/analysis_test.h"

namespace tallyroll {
namespace {

class RollBookScreenTest : public AnalysisTest {
 protected:
  RollBookScreenTest() {
    AddNamed("T1", "T ", "10/2/2026");
    AddNamed("Q1", "Q ", "9/30/2026");
    AddNamed("ZZ", "?", "soon");
    AddNamed("Q2", "Q ", "9/2/2026");
    Current().Instruments[1].lowpass = "65";
    Enrol("Ng", {"64", "CUT", "F", "65"});
    Enrol("Abel", {"65", "NON", "", "5"});
  }
  static void AddNamed(const char* code, const char* type, const char* date) {
    Instrument& grade = AddGrade(code, type);
    grade.code = code;
    grade.testdate = date;
  }
};

TEST_F(RollBookScreenTest, ShowsEveryMarkUnderItsCode) {
  FRMROLLBOOK portal;
  Open(portal);
  EXPECT_EQ(Headings(portal.Grid1), Texts({"     NAME", "       ID", "T1", "Q1", "ZZ", "Q2"}));
  EXPECT_EQ(portal.Grid1.TextMatrix(1, 0), " 1 Ng, Ada");
  EXPECT_EQ(portal.Grid1.TextMatrix(1, 1), "101 ");
  EXPECT_EQ(Column(portal.Grid1, 2), Texts({"64", "65"}));
  EXPECT_EQ(portal.Grid1.ColWidth(2), 1120);
}

TEST_F(RollBookScreenTest, FailingMarksAreMarked) {
  FRMROLLBOOK portal;
  Open(portal);
  EXPECT_EQ(portal.Grid1.Style(1, 2), CellStyle::kFailing);  // 64 of 65
  EXPECT_EQ(portal.Grid1.Style(2, 2), CellStyle::kPlain);    // equal
  EXPECT_EQ(portal.Grid1.Style(1, 3), CellStyle::kFailing);  // CUT, without a lowpass
  EXPECT_EQ(portal.Grid1.Style(2, 3), CellStyle::kFailing);  // NON
  EXPECT_EQ(portal.Grid1.Style(1, 4), CellStyle::kPlain);    // a plain F
  EXPECT_EQ(portal.Grid1.Style(2, 5), CellStyle::kPlain);    // no lowpass
}

TEST_F(RollBookScreenTest, TheTestOfAMarkFollowsItsFirstCharacter) {
  EXPECT_TRUE(FailsInRollBook("F  ", 0));
  EXPECT_FALSE(FailsInRollBook("F", 70));
  EXPECT_FALSE(FailsInRollBook("", 70));
  EXPECT_FALSE(FailsInRollBook("ABS", 70));
  EXPECT_FALSE(FailsInRollBook("-5", 70));
  EXPECT_FALSE(FailsInRollBook(".5", 70));
  EXPECT_TRUE(FailsInRollBook("69.9", 70));
  EXPECT_TRUE(FailsInRollBook("CUT", 0));
}

TEST_F(RollBookScreenTest, SortsTheGradesThreeWays) {
  FRMROLLBOOK portal;
  Open(portal);
  EXPECT_TRUE(portal.mnunone.Value);
  driver->Tick("mnudate");
  EXPECT_EQ(Headings(portal.Grid1), Texts({"     NAME", "       ID", "ZZ", "Q2", "Q1", "T1"}));
  EXPECT_FALSE(portal.mnunone.Value);
  EXPECT_EQ(portal.Grid1.Style(1, 5), CellStyle::kFailing);  // went with its column
  EXPECT_EQ(portal.Grid1.Style(1, 2), CellStyle::kPlain);
  driver->Tick("mnutype");
  EXPECT_EQ(Headings(portal.Grid1), Texts({"     NAME", "       ID", "Q1", "Q2", "T1", "ZZ"}));
  driver->Tick("mnunone");
  EXPECT_EQ(Headings(portal.Grid1), Texts({"     NAME", "       ID", "T1", "Q1", "ZZ", "Q2"}));
  EXPECT_FALSE(portal.mnutype.Value);
}

TEST_F(RollBookScreenTest, HasADisplayModeOfItsOwn) {
  FRMROLLBOOK portal;
  Open(portal);
  driver->Tick("mnunamenoid");
  EXPECT_EQ(portal.Grid1.TextMatrix(1, 0), "Ng, Ada");
  EXPECT_EQ(portal.Grid1.ColWidth(1), 0);
  driver->Tick("mnuidandname");
  EXPECT_EQ(portal.Grid1.TextMatrix(0, 0), "       ID");
  EXPECT_EQ(portal.Grid1.TextMatrix(1, 0), "101 ");
  EXPECT_EQ(portal.Grid1.TextMatrix(1, 1), " 1 Ng, Ada");
  driver->Tick("mnuidnoname");
  EXPECT_EQ(portal.Grid1.ColWidth(1), 0);
  EXPECT_FALSE(portal.roster.with_name.Value);
  EXPECT_TRUE(portal.roster.without_name.Value);
  EXPECT_EQ(NameMode, 68);
}

TEST_F(RollBookScreenTest, AnEntryThatIsCheckedStaysChecked) {
  FRMROLLBOOK portal;
  Open(portal);
  driver->Tick("mnunone", false);
  EXPECT_TRUE(portal.mnunone.Value);
  driver->Press("mnuexit");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(RollBookScreenTest, ChangesNothing) {
  const Class before = Current();
  FRMROLLBOOK portal;
  Open(portal);
  driver->Tick("mnutype");
  driver->CloseWindow();
  EXPECT_EQ(Current().Students, before.Students);
  EXPECT_EQ(Current().Instruments, before.Instruments);
  EXPECT_EQ(Current().Changed, kFalse);
}

}  // namespace
}  // namespace tallyroll
