// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/frmroundoff.h"

#include "averages/rounding.h"
#include "base/text.h"
#include "tests/averages/portal_class.h"

namespace tallyroll {
namespace {

constexpr int kMin = 2;
const std::string kLoseChange =
    "You've changed current Rounding Value(s). If you load a Rounding Value, you'll lose that "
    "change. Continue?";
const std::string kSaveValues =
    "You've entered current Rounding Value(s). Do you wish to save those values? ";
const std::string kAllFull =
    "All Rounding Values Save options currently contain Data. Select one to overwrite with the "
    "newly entered data.";

class FrmRoundOffTest : public AveragePortalTest {
 protected:
  FrmRoundOffTest() {
    Current().Method = 0;
    Current().RoundMode = 0;
    Enrol("Ng", {});
  }
  static void FillScale(std::size_t scale, float each) { Current().RoundTable[scale].fill(each); }
  void TypeMinimum(int row, std::string_view text) { TypeCell("grdgrade", row, kMin, text); }
  std::string_view Minimum(int row) const { return portal.grdgrade.TextMatrix(row, kMin); }
  std::string GradeOf(const char* average) {
    CurrentStudent = 1;
    ExactAverage = Money(average);
    FinalGrade grade;
    EXPECT_FALSE(RoundedGrade(grade));
    return std::string(TrimRight(grade.Text()));
  }

  frmroundoff portal;
};

TEST_F(FrmRoundOffTest, ShowsTheScaleInForce) {
  Current().FinalGradeForm = 3;
  Open(portal);
  EXPECT_EQ(portal.Caption, "Rounding Modification Portal");
  EXPECT_EQ(Headings(portal.grdgrade), (Texts{"Letter", "Number", " Min. Value"}));
  EXPECT_EQ(driver->Text("valueframe"), "Value - Def.");
  EXPECT_EQ(portal.grdgrade.TextMatrix(1, 0), "A+ ");
  EXPECT_EQ(portal.grdgrade.TextMatrix(1, 1), "100");
  EXPECT_EQ(Minimum(1), "99.5");
  EXPECT_EQ(portal.grdgrade.TextMatrix(13, 0), "D- ");
  EXPECT_EQ(Minimum(13), "58.5");
  EXPECT_EQ(portal.grdgrade.Style(1, 1), CellStyle::kShaded);
  EXPECT_EQ(portal.grdgrade.Style(1, 0), CellStyle::kPlain);
  EXPECT_NE(driver->Text("mesage").find("then enter '101' next to that grade.)"),
            std::string::npos);
}

TEST_F(FrmRoundOffTest, AnUnsetModeFollowsTheMethod) {
  for (const auto& [method, mode] :
       std::vector<std::pair<i16, i16>>{{0, 0}, {1, 0}, {2, 1}, {3, 1}}) {
    Current().Method = method;
    Current().RoundMode = 2;
    frmroundoff fresh;
    fresh.Load();
    EXPECT_EQ(Current().RoundMode, mode) << method;
  }
}

TEST_F(FrmRoundOffTest, NumbersLeaveTheFirstLetterBlank) {
  Open(portal);
  EXPECT_EQ(portal.grdgrade.TextMatrix(1, 0), "    ");
  EXPECT_EQ(portal.grdgrade.Style(1, 0), CellStyle::kShaded);
  driver->Tick("finalletter");
  EXPECT_EQ(Current().FinalGradeForm, 3);
  EXPECT_EQ(portal.grdgrade.TextMatrix(1, 0), "A+ ");
  driver->Tick("finalnumber");
  EXPECT_EQ(Current().FinalGradeForm, 0);
}

TEST_F(FrmRoundOffTest, EmptySetsSaySoAndTheCurrentOneIsGrey) {
  FillScale(2, 50);
  Current().RoundScale = 2;
  Open(portal);
  EXPECT_EQ(driver->Text("valueframe"), "Value - 2");
  EXPECT_EQ(driver->Text("usescale1"), "&1 (empty)");
  EXPECT_EQ(driver->Text("savescale1"), "1 (empty)");
  EXPECT_EQ(driver->Text("usescale2"), "&2");
  EXPECT_FALSE(driver->Enabled("usescale2"));
  EXPECT_TRUE(driver->Enabled("usescale0"));
}

TEST_F(FrmRoundOffTest, SkipRoundingUsesTheLetterValues) {
  Open(portal);
  driver->Press("skip");
  EXPECT_EQ(Current().RoundMode, 1);
  EXPECT_EQ(Current().RoundScale, 4);
  EXPECT_EQ(Minimum(1), "100");
  EXPECT_EQ(Minimum(2), "99");
  EXPECT_FALSE(driver->Enabled("skip"));
  EXPECT_TRUE(driver->Enabled("noskip"));
  EXPECT_FALSE(driver->Enabled("usescale0"));
  EXPECT_FALSE(driver->Enabled("savescale1"));
  EXPECT_EQ(portal.grdgrade.Style(3, kMin), CellStyle::kShaded);
  EXPECT_EQ(portal.grdgrade.TextMatrix(1, 0), "A+ ");
  EXPECT_EQ(Current().AverageWork1, 2);
  EXPECT_EQ(Current().AverageWork2, 0);
  EXPECT_EQ(Current().Changed, kTrue);
  TypeMinimum(1, "5");
  EXPECT_EQ(Minimum(1), "100");
}

TEST_F(FrmRoundOffTest, SkipRoundingKeepsWorkThatIsToBeSaved) {
  Current().Method = 3;
  Current().AverageWork1 = 1;
  Open(portal);
  driver->Press("skip");
  EXPECT_EQ(Current().AverageWork1, 1);
  EXPECT_EQ(Current().AverageWork2, 2);
}

TEST_F(FrmRoundOffTest, UnderTypesSkipRoundingNotesTheTypesAlone) {
  Current().Method = 1;
  Open(portal);
  driver->Press("skip");
  EXPECT_EQ(Current().AverageWork1, 0);
  EXPECT_EQ(Current().AverageWork2, 2);
}

TEST_F(FrmRoundOffTest, EnableRoundingGoesBackToTheScaleBefore) {
  FillScale(1, 70);
  Current().RoundScale = 1;
  Open(portal);
  driver->Press("skip");
  driver->Press("noskip");
  EXPECT_EQ(Current().RoundMode, 0);
  EXPECT_EQ(Current().RoundScale, 1);
  EXPECT_EQ(Minimum(1), "70");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmRoundOffTest, AMinimumOf101PassesTheRowOver) {
  Open(portal);
  TypeMinimum(5, "101");
  driver->Press("savescale1");
  EXPECT_EQ(Current().RoundScale, 1);
  EXPECT_EQ(Current().RoundTable[1][4], 101);
  EXPECT_EQ(Current().RoundTable[1][0], 99.5F);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(driver->Text("usescale1"), "&1");
  EXPECT_EQ(GradeOf("88"), " 85 (B/SAT/3.0)");
}

TEST_F(FrmRoundOffTest, KeysAreUpperCasedAndTheFirstReplaces) {
  Open(portal);
  TypeMinimum(2, "9e");
  EXPECT_EQ(Minimum(2), "9E");
  driver->TypeKeys("grdgrade", "\b");
  EXPECT_EQ(Minimum(2), "9");
}

TEST_F(FrmRoundOffTest, AMinimumThatIsNoNumberIsReadAsZero) {
  Open(portal);
  TypeMinimum(1, "x");
  driver->Press("savescale1");
  EXPECT_EQ(Current().RoundTable[1][0], 0);
  EXPECT_EQ(GradeOf("41"), " 100 (A+/EX/4.0)");
}

TEST_F(FrmRoundOffTest, ZeroInTheSecondRowEmptiesTheSet) {
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

TEST_F(FrmRoundOffTest, OverwritingMayBeCancelled) {
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

TEST_F(FrmRoundOffTest, LoadingASetAsksAboutAChange) {
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

TEST_F(FrmRoundOffTest, TheDefaultScaleIsMadeAfresh) {
  FillScale(0, 1);
  FillScale(1, 70);
  Current().RoundScale = 1;
  Open(portal);
  driver->Press("usescale0");
  EXPECT_EQ(Minimum(1), "99.5");
  EXPECT_EQ(Current().RoundScale, 0);
}

TEST_F(FrmRoundOffTest, AChangeNotSavedIsATemporaryScale) {
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

TEST_F(FrmRoundOffTest, AChangeIsSavedInTheFirstEmptySet) {
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

TEST_F(FrmRoundOffTest, RefusingTheSetStaysAndForgetsTheQuestion) {
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

TEST_F(FrmRoundOffTest, WithAllSetsFullTheTeacherHasToChoose) {
  for (const std::size_t s : {1, 2, 3}) FillScale(s, 70);
  Open(portal);
  TypeMinimum(1, "98");
  screen.ExpectBox(kSaveValues, BoxAnswer::kYes);
  screen.ExpectBox(kAllFull);
  driver->Press("skip");
  EXPECT_EQ(Current().RoundMode, 0);
  EXPECT_EQ(Minimum(1), "98");
}

TEST_F(FrmRoundOffTest, CopyAndPasteCarryTheMinimums) {
  Open(portal);
  EXPECT_FALSE(driver->Enabled("readclip"));
  driver->Press("writeclip");
  EXPECT_EQ(screen.clipboard,
            "12z\r99.5\r97\r92.5\r89\r86.5\r82.5\r78.5\r76.5\r72.5\r68.5\r66.5\r62.5\r58.5\r");
  screen.clipboard = "12z\r50\r40\r";
  driver->Press("readclip");
  EXPECT_EQ(Minimum(1), "50");
  EXPECT_EQ(Minimum(2), "40");
  screen.ExpectBox(kLoseChange, BoxAnswer::kCancel);
  driver->Press("readclip");
  screen.clipboard = "4z\rY\r";
  screen.ExpectBox(kLoseChange, BoxAnswer::kOk);
  screen.ExpectBox(kWrongClipboard);
  driver->Press("readclip");
  EXPECT_EQ(Minimum(1), "50");
}

TEST_F(FrmRoundOffTest, PasteIsReadyOnlyUnderEnableRounding) {
  screen.clipboard = "12z\r50\r";
  Open(portal);
  EXPECT_TRUE(driver->Enabled("readclip"));
  driver->Press("skip");
  EXPECT_FALSE(driver->Enabled("readclip"));
}

TEST_F(FrmRoundOffTest, FromTheSummaryOnlyContinueLeadsBack) {
  DefaultMethod = 5;
  Open(portal);
  EXPECT_FALSE(driver->Visible("framescreen"));
  EXPECT_FALSE(driver->Visible("framecancel"));
  EXPECT_TRUE(driver->Visible("frameprint"));
  TypeMinimum(1, "98");
  screen.ExpectBox(kSaveValues, BoxAnswer::kNo);
  driver->Press("continueprint");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(portal.Next(), "");
}

TEST_F(FrmRoundOffTest, PrinterGoesOnToThePrinterPortal) {
  Open(portal);
  EXPECT_FALSE(driver->Visible("frameprint"));
  driver->Press("contprinter");
  EXPECT_EQ(portal.Next(), "frmprintall");
}

}  // namespace
}  // namespace tallyroll
