// SPDX-License-Identifier: GPL-3.0-or-later
// The averages before and after a change that is not taken yet.
#include "averages/portals/frmchange.h"

#include "averages/portals/change_preview.h"
#include "averages/portals/frmpoints.h"
#include "averages/portals/frmroundoff.h"
#include "averages/portals/frmweights.h"
#include "tests/averages/portals/portal_class.h"
#include "tests/support/random_class.h"

namespace tallyroll {
namespace {

class FrmChangeTest : public AveragePortalTest {
 protected:
  FrmChangeTest() {
    AddGrade("Quiz 1", "Q ");
    AddGrade("Test 1", "T ");
    Enrol("Ng", {"80", "80"});
    Enrol("Orr", {"96", "60"});
    Class& c = Current();
    c.Method = 0;
    c.RoundMode = 0;
    c.Weights = {Currency(), Money("50"), Money("50")};
  }
  // What the preview shows: a row as "Orr, Ada 78 ...".
  void ExpectPreview(const std::string& found, const Texts& rows) {
    screen.ExpectPortal("frmchange", [=](PortalDriver& work) {
      EXPECT_EQ(work.Text("found"), found);
      const Grid& grid = dynamic_cast<frmchange&>(work.portal()).Grid1;
      Texts shown;
      for (int row = 1; row < grid.Rows(); ++row) {
        std::string text;
        for (int col = 0; col < grid.Cols(); ++col)
          text += (col > 0 ? " | " : "") + std::string(grid.TextMatrix(row, col));
        // The row that is set off by its colour says so.
        const bool changes = grid.TextMatrix(row, 2) != grid.TextMatrix(row, 4);
        EXPECT_EQ(NoteOf(grid.Notes, row, 4).words, changes ? "the final grade changes" : "");
        shown.push_back(text);
      }
      EXPECT_EQ(shown, rows);
      work.Press("exit");
    });
  }
};

// 0.75 x 96 + 0.25 x 60 = 87 beside the 78 of even weights; 80 stays 80.
TEST_F(FrmChangeTest, WeightsOfItemsShowWhatTheyWouldDo) {
  frmweights weights;
  Open(weights);
  TypeCell("grdgrade", 1, 3, "75");
  TypeCell("grdgrade", 2, 3, "25");
  const Class before = Current();
  ExpectPreview("1 final grade and 1 average would change. Nothing is taken yet.",
                {"Orr, Ada | 78 | 78 (C+/SAT/2.5) | 87 | 88 (B+/SAT/3.5) | 9",
                 "Ng, Ada | 80 | 80 (B-/SAT/3.0) | 80 | 80 (B-/SAT/3.0) | 0"});
  driver->Press("previewchange");
  EXPECT_TRUE(SameOnDisk(Current(), before));
  EXPECT_EQ(Current().Weights, before.Weights);
  EXPECT_FALSE(weights.Unloaded());
}

TEST_F(FrmChangeTest, WeightsThatAreNotAHundredAreRefused) {
  frmweights weights;
  Open(weights);
  TypeCell("grdgrade", 1, 3, "75");
  screen.ExpectBox(kMustBeHundred);
  driver->Press("previewchange");
}

// Without the test 96 of 100; before, 156 of 200.
TEST_F(FrmChangeTest, PointsShowWhatTheyWouldDo) {
  Current().Method = 2;
  Current().InstrumentUse = {Currency(), Money("1"), Money("1")};
  DefaultMethod = 2;
  frmpoints points;
  Open(points);
  TypeCell("grdgrade", 2, 3, "n");
  ExpectPreview("1 final grade and 1 average would change. Nothing is taken yet.",
                {"Orr, Ada | 78 | 78 (C+/SAT/2.5) | 96 | 95 (A/EX/4.0) | 18",
                 "Ng, Ada | 80 | 80 (B-/SAT/3.0) | 80 | 80 (B-/SAT/3.0) | 0"});
  driver->Press("previewchange");
  EXPECT_EQ(Current().InstrumentUse[2], Money("1"));
}

// A minimum of 77 for a B- lifts the 78.
TEST_F(FrmChangeTest, MinimumsShowWhatTheyWouldDo) {
  frmroundoff rounding;
  Open(rounding);
  TypeCell("grdgrade", 7, 2, "77");
  ExpectPreview("1 final grade and 1 average would change. Nothing is taken yet.",
                {"Orr, Ada | 78 | 78 (C+/SAT/2.5) | 78 | 80 (B-/SAT/3.0) | 0",
                 "Ng, Ada | 80 | 80 (B-/SAT/3.0) | 80 | 80 (B-/SAT/3.0) | 0"});
  driver->Press("previewchange");
  EXPECT_EQ(Current().RoundScale, 0);
}

TEST_F(FrmChangeTest, AClassWithoutAMethodHasNoAveragesYet) {
  Current().Method = 5;
  frmweights weights;
  Open(weights);
  driver->Press("equal");
  ExpectPreview("2 final grades and 2 averages would change. Nothing is taken yet.",
                {"Ng, Ada | - | - | 80 | 80 (B-/SAT/3.0) | -",
                 "Orr, Ada | - | - | 78 | 78 (C+/SAT/2.5) | -"});
  driver->Press("previewchange");
  EXPECT_EQ(Current().Method, 5);
}

}  // namespace
}  // namespace tallyroll
