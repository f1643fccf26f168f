// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmletter.h"

#include "base/number_text.h"
#include "grades/marks.h"
#include "tests/grades/grade_portal_test.h"

namespace tallyroll {
namespace {

const std::string kLettersResetQuestion =
    "This will reset ALL values to the original defaults. You will lose ANY changes you have made. "
    "Continue?";
const std::string kLettersChanged = "Data has been changed. Are you sure you want to CANCEL?";
const std::string kLetterSetting = "TALLYRLG8/startup/LetterString";

class FrmletterTest : public GradePortalTest {
 protected:
  void OpenPortal() { Open(portal); }
  std::string Cell(int letter) const { return std::string(portal.grdletter.TextMatrix(letter, 1)); }
  void TypeValue(int letter, std::string_view value) {
    driver->PickCell("grdletter", letter, 1);
    driver->TypeKeys("grdletter", value);
  }
  static Currency& Value(std::size_t letter) { return Current().LetterValues.at(letter); }
  static std::string ValueText(std::size_t letter) { return PlainNumberText(Value(letter)); }

  frmletter portal;
};

TEST_F(FrmletterTest, ShowsThe13LettersAndTheirValues) {
  OpenPortal();
  EXPECT_EQ(portal.Caption, "Letter Values Portal");
  EXPECT_EQ(driver->Text("header"),
            "At this portal, you can set numeric values for the letter grades you enter as a mark "
            "(e.g., as a grade on a book report).");
  EXPECT_EQ(portal.grdletter.Rows(), 14);
  EXPECT_EQ(portal.grdletter.TextMatrix(0, 0), "Letter");
  EXPECT_EQ(portal.grdletter.TextMatrix(0, 1), "Value");
  EXPECT_EQ(portal.grdletter.TextMatrix(1, 0), "A+");
  EXPECT_EQ(Cell(1), "99");
  EXPECT_EQ(portal.grdletter.TextMatrix(13, 0), "F");
  EXPECT_EQ(Cell(13), "55");
}

TEST_F(FrmletterTest, AClassNeverSetLoadsTheDefaults) {
  Current().LetterValues.fill(Currency());
  OpenPortal();
  EXPECT_EQ(Cell(1), "99");
  EXPECT_FALSE(driver->Enabled("default"));
  EXPECT_EQ(ValueText(0), "100");
}

TEST_F(FrmletterTest, ValuesForAllNewClassesStartTicked) {
  Value(0) = Currency::FromWhole(343);
  OpenPortal();
  EXPECT_TRUE(portal.allclass.Value);
  EXPECT_TRUE(driver->Enabled("default"));
}

TEST_F(FrmletterTest, OtherwiseTheBoxStartsUnticked) {
  Value(0) = Currency::FromWhole(243);
  OpenPortal();
  EXPECT_FALSE(portal.allclass.Value);
}

TEST_F(FrmletterTest, TheFirstRowIsTheValueOfAPlus) {
  OpenPortal();
  TypeValue(1, "97");
  driver->Press("EXIT");
  EXPECT_EQ(GradeValue("A+"), Currency::FromWhole(97));
  EXPECT_EQ(GradeValue("A"), Currency::FromWhole(95));
}

TEST_F(FrmletterTest, KeysAreNeitherUpperCasedNorCut) {
  OpenPortal();
  TypeValue(2, "91.1234e0");
  EXPECT_EQ(Cell(2), "91.1234e0");
  TypeValue(2, "9\b\b8");
  EXPECT_EQ(Cell(2), "8");
}

TEST_F(FrmletterTest, TheFirstKeyEnablesTheDefaultsAndMarksTheValuesEdited) {
  Current().LetterValues.fill(Currency());
  OpenPortal();
  TypeValue(1, "9");
  EXPECT_TRUE(driver->Enabled("default"));
  EXPECT_EQ(ValueText(0), "297");
}

TEST_F(FrmletterTest, ExitKeepsTheValuesForThisClass) {
  screen.settings[kLetterSetting] = "old";
  OpenPortal();
  TypeValue(13, "50.5");
  driver->Press("EXIT");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(ValueText(13), "50.5");
  EXPECT_EQ(ValueText(12), "60");
  EXPECT_EQ(ValueText(0), "243");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(screen.settings[kLetterSetting], "");
}

TEST_F(FrmletterTest, ExitForAllNewClassesWritesTheSetting) {
  OpenPortal();
  driver->Tick("allclass");
  driver->Press("EXIT");
  EXPECT_EQ(ValueText(0), "343");
  EXPECT_EQ(screen.settings[kLetterSetting], "343'99'95'90'88'85'80'78'75'70'68'65'60'55'");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmletterTest, ExitWithoutAnEditChangesNoValue) {
  OpenPortal();
  driver->Press("EXIT");
  EXPECT_EQ(ValueText(0), "243");
  EXPECT_EQ(ValueText(1), "99");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmletterTest, AValueThatIsNoNumberIsRefused) {
  screen.settings[kLetterSetting] = "old";
  for (const char* text : {"b", "9x", "\b"}) {
    frmletter one;
    one.Load();
    PortalDriver hand(one);
    hand.PickCell("grdletter", 1, 1);
    hand.TypeKeys("grdletter", "98");
    hand.PickCell("grdletter", 3, 1);
    hand.TypeKeys("grdletter", text);
    screen.ExpectBox("The value of each letter must be a number.");
    hand.Press("EXIT");
    EXPECT_FALSE(one.Unloaded());
    EXPECT_EQ(hand.Focused(), "grdletter");
    EXPECT_EQ(one.grdletter.Row, 3);
    EXPECT_EQ(ValueText(1), "99");
    EXPECT_EQ(ValueText(3), "90");
    EXPECT_EQ(screen.settings[kLetterSetting], "old");
  }
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmletterTest, AValueBeyondWhatAClassHoldsIsRefused) {
  OpenPortal();
  TypeValue(1, "999999999999999");
  screen.ExpectBox("The value of each letter must be a number.");
  driver->Press("EXIT");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(ValueText(1), "99");
}

TEST_F(FrmletterTest, DefaultsAskFirst) {
  Value(1) = Currency::FromWhole(97);
  OpenPortal();
  screen.ExpectBox(kLettersResetQuestion, BoxAnswer::kNo);
  driver->Press("default");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher.");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kCritical);
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kYesNo);
  EXPECT_EQ(Cell(1), "97");
  EXPECT_TRUE(driver->Enabled("default"));
}

TEST_F(FrmletterTest, DefaultsBringBackTheProgramsValues) {
  Value(0) = Currency::FromWhole(343);
  Value(1) = Currency::FromWhole(97);
  OpenPortal();
  screen.ExpectBox(kLettersResetQuestion, BoxAnswer::kYes);
  driver->Press("default");
  EXPECT_EQ(Cell(1), "99");
  EXPECT_FALSE(driver->Enabled("default"));
  EXPECT_FALSE(portal.allclass.Value);
  EXPECT_EQ(ValueText(0), "100");
  driver->Press("EXIT");
  EXPECT_EQ(ValueText(1), "99");
  EXPECT_EQ(ValueText(0), "243");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmletterTest, CancelAfterAnEditAsksAndDiscards) {
  Value(0) = Currency::FromWhole(243);
  OpenPortal();
  TypeValue(1, "1");
  screen.ExpectBox(kLettersChanged, BoxAnswer::kNo);
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).title, "CANCEL");
  screen.ExpectBox(kLettersChanged, BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(ValueText(1), "99");
  EXPECT_EQ(ValueText(0), "243");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmletterTest, CancelDiscardsTheDefaultsToo) {
  Value(0) = Currency::FromWhole(243);
  Value(1) = Currency::FromWhole(97);
  OpenPortal();
  screen.ExpectBox(kLettersResetQuestion, BoxAnswer::kYes);
  driver->Press("default");
  screen.ExpectBox(kLettersChanged, BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_EQ(ValueText(1), "97");
  EXPECT_EQ(ValueText(0), "243");
}

TEST_F(FrmletterTest, CancelWithoutAnEditCloses) {
  OpenPortal();
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmletterTest, BackspaceTakesTheLastCharacter) {
  OpenPortal();
  TypeValue(2, "91\b");
  EXPECT_EQ(Cell(2), "9");
  TypeValue(2, "\b");  // as first key it empties the cell
  EXPECT_EQ(Cell(2), "");
  TypeValue(2, "\b88");
  driver->Press("EXIT");
  EXPECT_EQ(ValueText(2), "88");
}

TEST_F(FrmletterTest, ValuesForAllNewClassesMayHaveDecimals) {
  OpenPortal();
  TypeValue(3, "89.5");
  TypeValue(13, "0.25");
  driver->Tick("allclass");
  driver->Press("EXIT");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(ValueText(0), "343");
  EXPECT_EQ(ValueText(3), "89.5");
  EXPECT_EQ(screen.settings[kLetterSetting], "343'99'95'89.5'88'85'80'78'75'70'68'65'60'0.25'");
}

}  // namespace
}  // namespace tallyroll
