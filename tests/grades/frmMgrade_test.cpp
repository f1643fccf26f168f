// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmMgrade.h"

#include "tests/grades/grade_portal_test.h"

namespace tallyroll {
namespace {

class FrmMgradeTest : public GradePortalTest {
 protected:
  FrmMgradeTest() {
    Enrol("Li", "Bo", "2").comments = "often late";
    Enrol("Ng", "Ada", "1");
    Give(" Rivers", "RIV ", "Q", {"CUT", "81"});
    Give("Lakes", "LAK", "Q", {"EXC", "82"});
    Give("Hills", "HIL", "Q", {" NEW ", "83"});
    Give("Seas", "SEA", "Q", {"ABS", "84"});
    Give("Isles", "ISL", "Q", {"NON", "85"});
    Give("Capes", "CAP", "Q", {"70", "86"});
  }
  void OpenPortal() { Open(portal); }
  std::vector<std::string> Row(int row) const {
    std::vector<std::string> cells;
    for (int col = 0; col < portal.grdgrade.Cols(); ++col)
      cells.emplace_back(portal.grdgrade.TextMatrix(row, col));
    return cells;
  }

  frmMgrade portal;
};

TEST_F(FrmMgradeTest, ListsWhatTheStudentHasNotGot) {
  OpenPortal();
  EXPECT_EQ(portal.Caption, "Missing Grades Portal");
  ASSERT_EQ(portal.grdgrade.Rows(), 5);
  using Cells = std::vector<std::string>;
  EXPECT_EQ(Row(1), (Cells{"Rivers", "RIV", "9/1/2026", "CUT"}));
  EXPECT_EQ(Row(2), (Cells{"Hills", "HIL", "9/1/2026", "NEW"}));
  EXPECT_EQ(Row(3), (Cells{"Seas", "SEA", "9/1/2026", "ABS"}));
  EXPECT_EQ(Row(4), (Cells{"Isles", "ISL", "9/1/2026", "NON"}));
  EXPECT_EQ(driver->Text("comments"), "often late");
}

TEST_F(FrmMgradeTest, EachLineTellsHowMuchIsMissing) {
  OpenPortal();
  EXPECT_EQ(portal.list1.Counts, (std::vector<int>{4, 0}));
}

TEST_F(FrmMgradeTest, AnExcusedGradeNeverShows) {
  OpenPortal();
  for (int row = 1; row < portal.grdgrade.Rows(); ++row) EXPECT_NE(Row(row).at(3), "EXC");
}

TEST_F(FrmMgradeTest, AStudentWithAllMarksHasAnEmptyGrid) {
  OpenPortal();
  driver->Choose("list1", 1);
  EXPECT_EQ(portal.grdgrade.Rows(), 1);
  EXPECT_EQ(driver->Text("comments"), "");
}

TEST_F(FrmMgradeTest, SmallLettersAreNoSpecialMark) {
  Current().Students[2].Marks[1] = "cut";
  OpenPortal();
  driver->Choose("list1", 1);
  EXPECT_EQ(portal.grdgrade.Rows(), 1);
}

TEST_F(FrmMgradeTest, EachNameModeHasItsLines) {
  const std::pair<i16, const char*> modes[] = {
      {68, "Li, Bo\t2"}, {73, "2 "}, {82, "2 \tLi, Bo"}, {57, "Li, Bo"}};
  for (const auto& [mode, line] : modes) {
    NameMode = mode;
    frmMgrade one;
    one.Load();
    EXPECT_EQ(one.list1.List.at(0), line);
  }
}

TEST_F(FrmMgradeTest, NextAndPreviousWalkAndStopAtTheEnds) {
  OpenPortal();
  driver->Press("mnuprevious");
  EXPECT_EQ(portal.list1.ListIndex, 0);
  driver->Press("mnunextt");
  EXPECT_EQ(portal.list1.ListIndex, 1);
  EXPECT_EQ(portal.grdgrade.Rows(), 1);
  driver->Press("mnunextt");
  EXPECT_EQ(portal.list1.ListIndex, 1);
  driver->Press("mnuprevious");
  EXPECT_EQ(portal.list1.ListIndex, 0);
  EXPECT_EQ(portal.grdgrade.Rows(), 5);
}

TEST_F(FrmMgradeTest, LookingChangesNothing) {
  OpenPortal();
  driver->Press("mnunextt");
  driver->Press("mnuexit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(window.refills, 1);
}

TEST_F(FrmMgradeTest, AKeyInTheCommentsRaisesChanged) {
  OpenPortal();
  driver->Type("comments", "x");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(Current().Students[1].comments, "often late");
}

TEST_F(FrmMgradeTest, CommentsAreWrittenWhenAnotherStudentIsShown) {
  OpenPortal();
  driver->Type("comments", "call home");
  driver->Press("mnunextt");
  EXPECT_EQ(Current().Students[1].comments, "call home");
  EXPECT_EQ(Current().Students[2].comments, "");
}

TEST_F(FrmMgradeTest, CommentsAreWrittenWhenThePortalCloses) {
  OpenPortal();
  driver->Choose("list1", 1);
  driver->Type("comments", "well done");
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Students[2].comments, "well done");
}

TEST_F(FrmMgradeTest, NextAtTheLastStudentKeepsWhatIsTyped) {
  OpenPortal();
  driver->Choose("list1", 1);
  driver->Type("comments", "well done");
  driver->Press("mnunextt");
  EXPECT_EQ(driver->Text("comments"), "well done");
  driver->Press("mnuexit");
  EXPECT_EQ(Current().Students[2].comments, "well done");
}

TEST_F(FrmMgradeTest, AClassWithoutStudentsHasNothingToShow) {
  DropStudents();
  OpenPortal();
  EXPECT_FALSE(driver->Enabled("comments"));
  driver->Press("mnunextt");
  driver->Press("mnuexit");
  EXPECT_TRUE(portal.Unloaded());
}

}  // namespace
}  // namespace tallyroll
