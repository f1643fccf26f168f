// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/grades/frmMarks_test.h"

namespace tallyroll {
namespace {

TEST_F(FrmMarksTest, AMaximumScoreOf50PassesAt32Point5) {
  OpenMarks();
  driver->Type("mvalue", "50");
  EXPECT_EQ(driver->Text("lowpass"), "32.5");
}

TEST_F(FrmMarksTest, TheLowestPassMayBeTypedOver) {
  OpenMarks();
  TypeHeader();
  driver->Type("lowpass", "C-");
  TypeMarks();
  driver->Press("exit");
  EXPECT_EQ(Grade(1).lowpass, "C-");
}

TEST_F(FrmMarksTest, ADecimalPointInTheMaximumScoreIsRefused) {
  OpenMarks();
  screen.ExpectBox("Maximum Score must be a whole number");
  driver->Type("mvalue", "12.");
  EXPECT_EQ(driver->Text("mvalue"), "12");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the teacher.");
}

TEST_F(FrmMarksTest, MaximumAndLowestPassAreSelectedWhenEntered) {
  OpenMarks();
  driver->Focus("mvalue");
  EXPECT_EQ(portal.mvalue.SelLength, 3);
  driver->Focus("lowpass");
  EXPECT_EQ(portal.lowpass.SelLength, 2);
}

TEST_F(FrmMarksTest, AMaximumScoreOf0IsRefused) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "0");
  TypeMarks();
  for (const char* button : {"another", "exit"}) {
    screen.ExpectBox(kScoreMustBeAbove0);
    driver->Press(button);
    EXPECT_FALSE(portal.Unloaded());
    EXPECT_EQ(driver->Focused(), "mvalue");
  }
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(Current().NumInstruments, 0);
}

// Its leading number alone would be stored: 1, 10 and 1.
TEST_F(FrmMarksTest, AMaximumScoreWithMoreThanANumberIsRefused) {
  OpenMarks();
  TypeHeader();
  TypeMarks();
  for (const char* text : {"1,000", "10O", "1 000"}) {
    driver->Type("mvalue", text);
    for (const char* button : {"another", "exit"}) {
      screen.ExpectBox("Maximum Score must be a whole number");
      driver->Press(button);
      EXPECT_FALSE(portal.Unloaded());
      EXPECT_EQ(driver->Focused(), "mvalue");
    }
  }
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the teacher.");
  EXPECT_EQ(Current().NumInstruments, 0);
  driver->Type("mvalue", " 1000 ");
  driver->Press("exit");
  EXPECT_EQ(Grade(1).mvalue, 1000);
}

TEST_F(FrmMarksTest, ExitTellsOfTheMaximumScoreBeforeWhatIsMissing) {
  OpenMarks();
  driver->Type("mvalue", "0");
  screen.ExpectBox(kScoreMustBeAbove0);
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmMarksTest, AnotherTellsOfWhatIsMissingBeforeTheMaximumScore) {
  OpenMarks();
  driver->Type("mvalue", "0");
  screen.ExpectBox(kReminder);
  driver->Press("another");
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmMarksTest, ANegativeMaximumScorePasses) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "-5");
  TypeMarks();
  driver->Press("exit");
  EXPECT_EQ(Grade(1).mvalue, -5);
}

TEST_F(FrmMarksTest, AMaximumScoreBeyond16BitsIsRefused) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "32768");
  TypeMarks();
  screen.ExpectBox("The value for Maximum Score must not be greater than 32767");
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Focused(), "mvalue");
  driver->Type("mvalue", "32767");
  driver->Press("exit");
  EXPECT_EQ(Grade(1).mvalue, 32767);
}

TEST_F(FrmMarksTest, AMaximumScoreThatRoundsTo0IsRefused) {
  screen.clipboard = "7z\rRivers\rRIV\r0.4\r30\r9/10/2026\rN\rHW  - Homework\r";
  OpenMarks();
  driver->Press("paste");
  TypeMarks();
  screen.ExpectBox(kScoreMustBeAbove0);
  driver->Press("exit");
  EXPECT_EQ(Current().NumInstruments, 0);
}

TEST_F(FrmMarksTest, AnyKeyFlipsWhetherTheGradeMayBeDropped) {
  OpenMarks();
  driver->TypeKeys("dropyn", "n");
  EXPECT_EQ(driver->Text("dropyn"), "Y");
  driver->TypeKeys("dropyn", "\b");
  EXPECT_EQ(driver->Text("dropyn"), "N");
  driver->PressKey("dropyn", Key::kDelete);
  EXPECT_EQ(driver->Text("dropyn"), "Y");
}

TEST_F(FrmMarksTest, OneOfTheTwoLettersStandsWhateverIsCutOut) {
  OpenMarks();
  driver->Type("dropyn", "");
  EXPECT_EQ(driver->Text("dropyn"), "N");
}

TEST_F(FrmMarksTest, ACodeHasThreeCharacters) {
  OpenMarks();
  EXPECT_EQ(portal.code.MaxLength, 3);
}

TEST_F(FrmMarksTest, ATitleIsNoLongerThanAFileHolds) {
  OpenMarks();
  EXPECT_EQ(portal.title.MaxLength, 65535);
  EXPECT_EQ(portal.lowpass.MaxLength, 65535);
}

TEST_F(FrmMarksTest, AMaximumScoreBelow16BitsIsRefused) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "-40000");
  TypeMarks();
  screen.ExpectBox("The value for Maximum Score must not be less than -32768");
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  ExpectLastBox("Note to the Teacher", BoxIcon::kNone);
  EXPECT_EQ(driver->Focused(), "mvalue");
  driver->Type("mvalue", "-32768");
  driver->Press("exit");
  EXPECT_EQ(Grade(1).mvalue, -32768);
}

}  // namespace
}  // namespace tallyroll
