// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/averages/portals/roundoff_test.h"

#include <limits>

namespace tallyroll {
namespace {

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
}

TEST_F(FrmRoundOffTest, ExplainsItselfInFull) {
  Open(portal);
  EXPECT_EQ(
      driver->Text("mesage"),
      "Tallyroll provides an 'AVERAGE ROUNDING OPTION' for schools using standardized "
      "number grades (e.g., grades in multiples of '5') or letter grades. "
      "If you do not use this option, click on Skip Rounding; the grade will be the weighted "
      "average to the nearest whole number (or your letter grade equivalent). A teacher grading "
      "with points who wants to use the average rounding option should click on Enable Rounding."
      "\n\n"
      "You can use Tallyroll's Default Rounding Values, or you can make up to 3 sets of your own "
      "values and save them; the program will later automatically use your last selected values."
      "\n\n"
      "When making up your new Minimum Values, note: If your school uses standard number grades, "
      "but does not use one or more of the grades listed, then enter '101' for each item not used. "
      "(For example, if your school doesn't use a grade of '88' [B+], then enter '101' next to "
      "that grade.)");
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
  EXPECT_EQ(NoteOf(portal.grdgrade.Notes, 1, 0).words, "not in force");
  EXPECT_EQ(NoteOf(portal.grdgrade.Notes, 1, 1).words, "");
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

TEST_F(FrmRoundOffTest, OpenedUnderSkipRoundingItEnablesTheDefaultScale) {
  Current().RoundMode = 1;
  Current().RoundScale = 4;
  Open(portal);
  EXPECT_EQ(driver->Text("valueframe"), "Value - 4");
  EXPECT_EQ(Minimum(1), "100");
  EXPECT_TRUE(driver->Enabled("noskip"));
  EXPECT_FALSE(driver->Enabled("skip"));
  driver->Press("noskip");
  EXPECT_EQ(Current().RoundMode, 0);
  EXPECT_EQ(Current().RoundScale, 0);
  EXPECT_EQ(driver->Text("valueframe"), "Value - Def.");
  EXPECT_EQ(Minimum(1), "99.5");
  EXPECT_TRUE(driver->Enabled("skip"));
  driver->Press("continue");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmRoundOffTest, EnableRoundingBackToTheTemporaryScaleIsAChange) {
  FillScale(4, 70);
  Current().RoundScale = 4;
  Open(portal);
  EXPECT_EQ(Minimum(1), "70");
  driver->Press("skip");
  driver->Press("noskip");
  EXPECT_EQ(Current().RoundScale, 4);
  EXPECT_EQ(Minimum(2), "99");  // the letter values took its place
  screen.ExpectBox(kSaveValues, BoxAnswer::kNo);
  driver->Press("continue");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmRoundOffTest, TheFrameNamesTheSetInForce) {
  for (i16 scale = 1; scale <= 3; ++scale) {
    FillScale(static_cast<std::size_t>(scale), 70);
    Current().RoundScale = scale;
    frmroundoff each;
    Open(each);
    EXPECT_EQ(driver->Text("valueframe"), "Value - " + PlainNumberText(scale));
  }
}

TEST_F(FrmRoundOffTest, AMinimumBeyondASingleIsTheGreatestOne) {
  Open(portal);
  TypeMinimum(1, "1E39");
  TypeMinimum(2, "-1E39");
  TypeMinimum(3, "1E400");
  driver->Press("savescale1");
  constexpr float kGreatest = std::numeric_limits<float>::max();
  EXPECT_EQ(Current().RoundTable[1][0], kGreatest);
  EXPECT_EQ(Current().RoundTable[1][1], -kGreatest);
  EXPECT_EQ(Current().RoundTable[1][2], kGreatest);
  EXPECT_EQ(GradeOf("100"), " 99 (A+/EX/4.0)");
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
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kNone);
}

TEST_F(FrmRoundOffTest, PasteIsReadyOnlyUnderEnableRounding) {
  screen.clipboard = "12z\r50\r";
  Open(portal);
  EXPECT_TRUE(driver->Enabled("readclip"));
  driver->Press("skip");
  EXPECT_FALSE(driver->Enabled("readclip"));
}

TEST_F(FrmRoundOffTest, CopyUnderSkipRoundingReadiesAPasteThatDoesNoHarm) {
  Open(portal);
  driver->Press("skip");
  driver->Press("writeclip");
  EXPECT_TRUE(driver->Enabled("readclip"));
  driver->Tick("finalletter");
  EXPECT_TRUE(driver->Enabled("readclip"));
  screen.clipboard = "12z\r50\r40\r";
  screen.ExpectBox("Click on Enable Rounding before you paste Min. Values from the clipboard.");
  driver->Press("readclip");
  EXPECT_EQ(Minimum(1), "100");
  EXPECT_EQ(Current().RoundTable[4][0], 100);
  driver->Press("continue");
  EXPECT_TRUE(portal.Unloaded());
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
