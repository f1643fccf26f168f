// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/frmstatistic.h"

#include <gtest/gtest.h>

#include "tests/analysis/analysis_test.h"

namespace tallyroll {
namespace {

class FrmstatisticTest : public AnalysisTest {
 protected:
  void ExpectAll(const std::vector<std::pair<const char*, const char*>>& shown) {
    for (const auto& [name, text] : shown) EXPECT_EQ(driver->Text(name), text) << name;
  }
};

TEST_F(FrmstatisticTest, ShowsTheFiguresOfTheGradeThatIsPicked) {
  GradeWith({"80", "90", "NEW"});
  frmstatistic portal;
  Open(portal);
  EXPECT_EQ(portal.lsttitles.List, Texts({"Quiz 1"}));
  EXPECT_EQ(CurrentStudent, 0);
  driver->Choose("lsttitles", 0);
  EXPECT_EQ(CurrentStudent, 1);
  ExpectAll({{"Title", "Quiz 1"},
             {"code", "Q1"},
             {"present", " 2"},
             {"absent", " 1"},
             {"passed", " 2"},
             {"perpassed", " 100 %"},
             {"failed", " 0"},
             {"perfailed", " 0 %"},
             {"lowest", " 80"},
             {"highest", " 90"},
             {"std", " 5"},
             {"average", " 85"},
             {"lpassv", "65"},
             {"middle", "Median 85, middle half 82.5 to 87.5"}});
  EXPECT_EQ(portal.distribution.chart.sets[0].values,
            (std::vector<double>{0, 0, 0, 0, 0, 1, 0, 1, 0}));
}

TEST_F(FrmstatisticTest, AGradeNobodyWasPresentForKeepsTheFiguresBefore) {
  GradeWith({"80", "90"});
  AddGrade("Nobody", "T ").code = "NOB";
  Current().Instruments[2].lowpass = "50";
  for (std::size_t i = 1; i <= 2; ++i) {
    ReDimPreserve(Current().Students[i].Marks, 2);
    Current().Students[i].Marks[2] = "ABS";
  }
  frmstatistic portal;
  Open(portal);
  driver->Choose("lsttitles", 0);
  driver->Choose("lsttitles", 1);
  ExpectAll({{"Title", "Nobody"},
             {"code", "NOB"},
             {"lpassv", "50"},
             {"average", " 85"},
             {"present", " 2"},
             {"std", " 5"}});
  EXPECT_EQ(portal.lsttitles.ListIndex, -1);
  EXPECT_EQ(CurrentStudent, 0);
  screen.ExpectBox("You must choose a Testing Instrument");
  driver->Press("continue");
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  EXPECT_FALSE(portal.Unloaded());
  driver->Choose("lsttitles", 0);
  driver->Press("continue");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(CurrentStudent, 1);
}

TEST_F(FrmstatisticTest, OfEqualTitlesTheFirstIsMeant) {
  GradeWith({"80"});
  AddGrade("Quiz 1  ", "T ");
  ReDimPreserve(Current().Students[1].Marks, 2);
  Current().Students[1].Marks[2] = "90";
  frmstatistic portal;
  Open(portal);
  driver->Choose("lsttitles", 1);
  EXPECT_EQ(CurrentStudent, 1);
  EXPECT_EQ(driver->Text("average"), " 80");
}

TEST_F(FrmstatisticTest, CancelAndTheCloseBoxChooseNothing) {
  GradeWith({"80"});
  for (const bool by_box : {false, true}) {
    frmstatistic portal;
    Open(portal);
    driver->Choose("lsttitles", 0);
    if (by_box)
      driver->CloseWindow();
    else
      driver->Press("cancel");
    EXPECT_TRUE(portal.Unloaded());
    EXPECT_EQ(CurrentStudent, 0);
  }
}

TEST_F(FrmstatisticTest, ComparingTakesTwoClassesWithGrades) {
  OpenSlot(1, "/a/ONE.TYR");
  GradeWith({"80"});
  frmstatistic portal;
  Open(portal);
  screen.ExpectBox("You must first open at least two class files with data for comparison.");
  const auto expect_information = [&] {
    EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kInformation);
    EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
    EXPECT_EQ(screen.boxes.back().buttons, BoxButtons::kOk);
  };
  driver->Press("compare");
  expect_information();
  OpenSlot(2, "/a/TWO.TYR");
  screen.ExpectBox("You must first open at least two class files with data for comparison.");
  CurrentClass = 1;
  driver->Press("compare");
  OpenSlot(3, "/a/THREE.TYR");
  GradeWith({"80"});
  CurrentClass = 1;
  screen.ExpectBox(
      "If any class is open without grades you must first enter grades for that class.");
  driver->Press("compare");
  expect_information();
  Classes[2].SlotState = 0;
  screen.ExpectPortal("frmcompare", [](PortalDriver& work) { work.Press("exit"); });
  driver->Choose("lsttitles", 0);
  driver->Press("compare");
  EXPECT_EQ(CurrentStudent, 1);
}

}  // namespace
}  // namespace tallyroll
