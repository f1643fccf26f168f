// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/frmmargins.h"

#include "store/settings.h"
#include "tests/printing/print_portal_test.h"

namespace tallyroll {
namespace {

const std::string kOutOfRange = "Margin out of program range - resetting to .5";

class FrmMarginsTest : public PrintPortalTest {
 protected:
  FrmMarginsTest() { Open(portal); }
  // What stands in the box after a key.
  void Enter(const std::string& text) {
    portal.sides[0].inches.Text = text;
    portal.inches_Change(portal.sides[0]);
  }
  frmmargins portal;
};

TEST_F(FrmMarginsTest, ShowsTheMarginsInInches) {
  MarginTop = "-500";
  MarginBottom = "-1250";
  MarginLeft = "-200";
  MarginRight = "-755";
  frmmargins fresh;
  Open(fresh);
  EXPECT_EQ(fresh.Caption, "Printer Margins Portal");
  EXPECT_EQ(driver->Text("Frame1"), "Margins [inches]");
  EXPECT_EQ(driver->Text("topmarg"), "0.5");
  EXPECT_EQ(driver->Text("topmargin"), "50");
  EXPECT_EQ(driver->Text("bottommarg"), "1.25");
  EXPECT_EQ(driver->Text("bottommargin"), "125");
  EXPECT_EQ(driver->Text("leftmarg"), "0.2");
  EXPECT_EQ(driver->Text("leftmargin"), "20");
  EXPECT_EQ(driver->Text("rightmarg"), "0.75");  // 75.5 hundredths are cut
  EXPECT_EQ(driver->Text("rightmargin"), "75");
  driver.reset();
}

TEST_F(FrmMarginsTest, TheHundredthsAreNotShownBesideTheInches) {
  for (const char* box : {"topmargin", "bottommargin", "leftmargin", "rightmargin"})
    EXPECT_FALSE(driver->Visible(box)) << box;
}

TEST_F(FrmMarginsTest, OkStoresThousandthsWithTheSignTurned) {
  Enter(".75");
  driver->Press("bottommore");
  driver->Press("OKButton");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(MarginTop, "-750");
  EXPECT_EQ(MarginBottom, "-510");
  EXPECT_EQ(MarginLeft, "-500");
  EXPECT_EQ(MarginRight, "-500");
}

TEST_F(FrmMarginsTest, CancelKeepsTheMargins) {
  Enter(".75");
  driver->Press("CancelButton");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(MarginTop, "-500");
}

TEST_F(FrmMarginsTest, HundredthsFollowTheInches) {
  Enter(".35");
  EXPECT_EQ(driver->Text("topmargin"), "35");
}

TEST_F(FrmMarginsTest, APointAloneGetsItsNought) {
  Enter(".");
  EXPECT_EQ(driver->Text("topmarg"), "0.");
}

TEST_F(FrmMarginsTest, TheTextIsComparedAsText) {
  for (const char* text : {".2", "0.1", "0", "1", "1.5", ".99", "0.05"}) {
    Enter(text);
    EXPECT_EQ(driver->Text("topmarg"), text);
  }
}

TEST_F(FrmMarginsTest, TextBeyondTheRangeGoesBackToAHalf) {
  for (const char* text : {"2", ".1", ".19", "1.51", "1.6", "x", ""}) {
    screen.ExpectBox(kOutOfRange);
    Enter(text);
    EXPECT_EQ(driver->Text("topmarg"), ".5") << text;
    EXPECT_EQ(driver->Text("topmargin"), "50") << text;
  }
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
}

TEST_F(FrmMarginsTest, TypingGoesCharacterByCharacter) {
  screen.ExpectBox(kOutOfRange);  // the emptied box
  driver->Type("leftmarg", "");
  EXPECT_EQ(driver->Text("leftmarg"), ".5");
  driver->Press("OKButton");
  EXPECT_EQ(MarginLeft, "-500");
}

TEST_F(FrmMarginsTest, StepsGoFromFifthOfAnInchToOneAndAHalf) {
  for (int i = 0; i < 40; ++i) driver->Press("topless");
  EXPECT_EQ(driver->Text("topmarg"), "0.2");
  for (int i = 0; i < 140; ++i) driver->Press("topmore");
  EXPECT_EQ(driver->Text("topmarg"), "1.5");
  EXPECT_EQ(driver->Text("topmargin"), "150");
}

TEST_F(FrmMarginsTest, ANumberBeyondTheRangeIsNotStored) {
  Enter("09");
  screen.ExpectBox(kOutOfRange);
  driver->Press("OKButton");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Text("topmarg"), ".5");
  EXPECT_EQ(driver->Focused(), "topmarg");
  EXPECT_EQ(MarginTop, "-500");
}

TEST_F(FrmMarginsTest, ADamagedSettingShowsSomeNumber) {
  MarginTop = "-1e300";
  frmmargins fresh;
  Open(fresh);
  EXPECT_EQ(driver->Text("topmargin"), "100000");
  driver.reset();
}

}  // namespace
}  // namespace tallyroll
