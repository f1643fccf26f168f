// SPDX-License-Identifier: GPL-3.0-or-later
// How the Rounding Modification Portal loads and saves its sets of values.
#include "tests/averages/portals/roundoff_test.h"

namespace tallyroll {
namespace {

class FrmRoundOffSetsTest : public FrmRoundOffTest {};

TEST_F(FrmRoundOffSetsTest, ZeroInTheSecondRowEmptiesTheSet) {
  FillScale(1, 70);
  Open(portal);
  TypeMinimum(2, "0");
  screen.ExpectBox(
      "You've already saved Rounding Values as 1. Do you wish to overwrite them with the current "
      "Values?",
      BoxAnswer::kOk);
  driver->Press("savescale1");
  driver->Press("usescale0");
  screen.ExpectBox(
      "Rounding Values 1 is currently empty.  To create new values, change the current Min. Values "
      "and Save Rounding Values as 1.");
  driver->Press("usescale1");
  EXPECT_EQ(Current().RoundScale, 0);
}

TEST_F(FrmRoundOffSetsTest, TheScaleThatSkipRoundingReplacedOutlivesThePortal) {
  FillScale(2, 70);
  Current().RoundScale = 2;
  Open(portal);
  driver->Press("skip");
  driver->Press("continue");
  EXPECT_EQ(Current().RoundScale, 4);
  // Another class has its own.
  CurrentClass = 2;
  Current().Method = 0;
  Current().RoundMode = 1;
  frmroundoff other;
  Open(other);
  driver->Press("noskip");
  EXPECT_EQ(Current().RoundScale, 0);
  CurrentClass = 1;
  frmroundoff again;
  Open(again);
  driver->Press("noskip");
  EXPECT_EQ(Current().RoundScale, 2);
  EXPECT_EQ(again.grdgrade.TextMatrix(1, kMin), "70");
  // What has the slot next knows nothing of it.
  driver->Press("skip");
  ResetClassSlot();
  EXPECT_EQ(SkippedScale[1], 0);
}

TEST_F(FrmRoundOffSetsTest, OverwritingMayBeCancelled) {
  FillScale(3, 70);
  Open(portal);
  TypeMinimum(1, "98");
  screen.ExpectBox(
      "You've already saved Rounding Values as 3. Do you wish to overwrite them with the current "
      "Values?",
      BoxAnswer::kCancel);
  driver->Press("savescale3");
  EXPECT_EQ(Current().RoundTable[3][0], 70);
  EXPECT_EQ(Current().RoundScale, 0);
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kOkCancel);
}

TEST_F(FrmRoundOffSetsTest, LoadingASetAsksAboutAChange) {
  FillScale(1, 70);
  Open(portal);
  TypeMinimum(1, "98");
  screen.ExpectBox(kLoseChange, BoxAnswer::kCancel);
  driver->Press("usescale1");
  EXPECT_EQ(Minimum(1), "98");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the teacher.");
  screen.ExpectBox(kLoseChange, BoxAnswer::kOk);
  driver->Press("usescale1");
  EXPECT_EQ(Minimum(1), "70");
  EXPECT_EQ(Current().RoundScale, 1);
  EXPECT_EQ(driver->Text("valueframe"), "Value - 1");
}

TEST_F(FrmRoundOffSetsTest, TheDefaultScaleIsMadeAfresh) {
  FillScale(0, 1);
  FillScale(1, 70);
  Current().RoundScale = 1;
  Open(portal);
  driver->Press("usescale0");
  EXPECT_EQ(Minimum(1), "99.5");
  EXPECT_EQ(Current().RoundScale, 0);
}

TEST_F(FrmRoundOffSetsTest, AChangeNotSavedIsATemporaryScale) {
  Open(portal);
  TypeMinimum(1, "98");
  screen.ExpectBox(kSaveValues, BoxAnswer::kNo);
  driver->Press("continue");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher.");
  EXPECT_EQ(Current().RoundScale, 4);
  EXPECT_EQ(Current().RoundTable[4][0], 98);
  EXPECT_EQ(portal.Next(), "frmscrnavg");
  EXPECT_EQ(window.enabled, (Texts{"mnuoptions", "mnuprtgrade"}));
}

TEST_F(FrmRoundOffSetsTest, AChangeIsSavedInTheFirstEmptySet) {
  FillScale(1, 70);
  Open(portal);
  TypeMinimum(1, "98");
  screen.ExpectBox(kSaveValues, BoxAnswer::kYes);
  screen.ExpectBox("Save your current Rounding Values as 2?", BoxAnswer::kYes);
  driver->Press("continue");
  EXPECT_EQ(Current().RoundScale, 2);
  EXPECT_EQ(Current().RoundTable[2][0], 98);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmRoundOffSetsTest, RefusingTheSetStaysAndForgetsTheQuestion) {
  Open(portal);
  TypeMinimum(1, "98");
  screen.ExpectBox(kSaveValues, BoxAnswer::kYes);
  screen.ExpectBox("Save your current Rounding Values as 1?", BoxAnswer::kNo);
  driver->Press("continue");
  EXPECT_FALSE(portal.Unloaded());
  driver->Press("continue");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().RoundScale, 0);
}

TEST_F(FrmRoundOffSetsTest, WithAllSetsFullTheTeacherHasToChoose) {
  for (const std::size_t s : {1, 2, 3}) FillScale(s, 70);
  Open(portal);
  TypeMinimum(1, "98");
  screen.ExpectBox(kSaveValues, BoxAnswer::kYes);
  screen.ExpectBox(kAllFull);
  driver->Press("skip");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher.");
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kYesNo);
  EXPECT_EQ(screen.boxes.at(1).title, "Note to the Teacher");
  EXPECT_EQ(screen.boxes.at(1).icon, BoxIcon::kNone);
  EXPECT_EQ(Current().RoundMode, 0);
  EXPECT_EQ(Minimum(1), "98");
}

TEST_F(FrmRoundOffSetsTest, AfterALoadThereIsNothingToSave) {
  FillScale(1, 70);
  Open(portal);
  TypeMinimum(1, "98");
  screen.ExpectBox(kLoseChange, BoxAnswer::kOk);
  driver->Press("usescale1");
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kOkCancel);
  driver->Press("continue");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().RoundScale, 1);
}

TEST_F(FrmRoundOffSetsTest, TheMarkOfAnEmptySetGoesWithItsSave) {
  FillScale(1, 70);
  Current().RoundTable[1][2] = 0;
  Open(portal);
  // At opening the third row decides, though the second says that the set may be used.
  EXPECT_EQ(driver->Text("usescale1"), "&1 (empty)");
  driver->Press("usescale1");
  EXPECT_EQ(driver->Text("usescale1"), "&1 (empty)");
  TypeMinimum(3, "0");
  driver->Press("savescale2");
  EXPECT_EQ(Current().RoundTable[2][2], 0);
  EXPECT_EQ(driver->Text("usescale2"), "&2");
  EXPECT_EQ(driver->Text("savescale2"), "2");
  EXPECT_EQ(driver->Text("usescale3"), "&3 (empty)");
  frmroundoff again;
  Open(again);
  EXPECT_EQ(driver->Text("usescale2"), "&2 (empty)");
}

}  // namespace
}  // namespace tallyroll
