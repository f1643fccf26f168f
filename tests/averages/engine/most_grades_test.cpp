// SPDX-License-Identifier: GPL-3.0-or-later
// A class that holds as many grades as it can count takes no other one.
#include "averages/portals/frmgradesave.h"
#include "grades/frmMarks.h"
#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

const std::string kNoMore = "You may only have 32767 grades in a class.";

class MostGradesTest : public AveragePortalTest {
 protected:
  MostGradesTest() {
    Class& c = Current();
    Enrol("Ng", {"96"});
    AddGrade("Quiz 1", "Q ");
    c.NumInstruments = 32767;
    ReDimPreserve(c.Instruments, c.NumInstruments);
    ReDimPreserve(c.Students[1].Marks, c.NumInstruments, ShortText("90"));
  }
  void ExpectUnchanged(const Portal& portal) {
    EXPECT_FALSE(portal.Unloaded());
    EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
    EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kCritical);
    EXPECT_EQ(Current().NumInstruments, 32767);
    EXPECT_EQ(Current().Instruments.size(), 32768U);
    EXPECT_EQ(Current().Students[1].Marks.size(), 32768U);
    EXPECT_EQ(Current().Changed, kFalse);
    EXPECT_EQ(window.saved, 0);
  }
};

TEST_F(MostGradesTest, TheSaveGradePortalSaysSo) {
  frmgradesave portal;
  Open(portal);
  driver->Type("title", "Term 1");
  driver->Type("code", "T1");
  Current().Students[1].Marks[0] = "-";
  screen.ExpectBox(kNoMore);
  driver->Press("save");
  ExpectUnchanged(portal);
  EXPECT_EQ(Current().Students[1].Marks[0], "-");
}

TEST_F(MostGradesTest, EnteringAGradeSaysSoAndKeepsWhatWasTyped) {
  frmMarks portal;
  Open(portal);
  driver->Type("title", "Rivers");
  driver->Type("code", "RIV");
  driver->Choose("ttypelist", 9);
  TypeCell("Grid1", 1, portal.Grid1.Cols() - 1, "88");
  for (const char* button : {"exit", "another"}) {
    screen.ExpectBox(kNoMore);
    driver->Press(button);
    ExpectUnchanged(portal);
    EXPECT_EQ(driver->Text("title"), "Rivers");
    EXPECT_EQ(portal.Grid1.TextMatrix(1, portal.Grid1.Cols() - 1), "88");
  }
}

}  // namespace
}  // namespace tallyroll
