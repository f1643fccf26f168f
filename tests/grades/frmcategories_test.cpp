// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmcategories.h"

#include "grades/frmMarks.h"
#include "tests/grades/grade_portal_test.h"

namespace tallyroll {
namespace {

const std::string kSelectFirst =
    "You must first select a Modifiable Grade Type Category to change.";
const std::string kSelectNext = "Please select a Modifiable Grade Type Category to change.";
const std::string kEnterBoth = "You must enter a description and code for the type.";
const std::string kCodeTaken =
    "You can't use a letter code already assigned to a another category.";
const std::string kResetQuestion =
    "This will reset ALL values to the original defaults. You will lose ANY changes you have made. "
    "Continue?";
const std::string kChanged = "Data has been changed. Are you sure you want to CANCEL?";

constexpr int kM1 = 0;  // lines of listcat
constexpr int kM2 = 1;

class FrmcategoriesTest : public GradePortalTest {
 protected:
  void OpenPortal() { Open(portal); }
  void Name(int line, std::string_view description, std::string_view code) {
    driver->Choose("listcat", line);
    driver->Type("catdesc", description);
    driver->Type("catcode", code);
  }
  static std::string& Category(std::size_t j) { return Current().Categories.at(j); }
  static std::string CodeOfType(std::size_t t) {
    TypeCodes codes;
    MakeTypeCodes(codes);
    return std::string(codes[t].view());
  }

  frmcategories portal;
};

TEST_F(FrmcategoriesTest, TheListsHoldTheFixedAndTheModifiableTypes) {
  Category(1) = "Band~BD";
  OpenPortal();
  EXPECT_EQ(portal.Caption, "Modify Grade Type Categories Portal");
  ASSERT_EQ(portal.listbasic.List.size(), 13u);
  EXPECT_EQ(portal.listbasic.List.front(), "A    -  Averaged Grade");
  EXPECT_EQ(portal.listbasic.List.back(), "X    -  Extra Credit");
  ASSERT_EQ(portal.listcat.List.size(), 12u);
  EXPECT_EQ(portal.listcat.List.front(), "BD    -  Band");
  EXPECT_EQ(portal.listcat.List.back(), "S9  -  Subject 9");
  EXPECT_EQ(driver->Focused(), "listcat");
}

TEST_F(FrmcategoriesTest, AChoiceShowsWhatTheTypeIsNow) {
  OpenPortal();
  driver->Choose("listcat", 3);
  EXPECT_EQ(driver->Text("olddesc"), "Subject 1");
  EXPECT_EQ(driver->Text("oldcode"), "S1");
  EXPECT_EQ(driver->Focused(), "catdesc");
  EXPECT_FALSE(driver->Enabled("listcat"));
}

TEST_F(FrmcategoriesTest, ReturnTakesTheTypeThatKeysCameTo) {
  OpenPortal();
  portal.listcat.ListIndex = 1;
  portal.listcat_Change();
  EXPECT_EQ(driver->Text("oldcode"), "M2");
  EXPECT_EQ(driver->Focused(), "listcat");
  driver->PressKey("listcat", Key::kEnter);
  EXPECT_EQ(driver->Focused(), "catdesc");
}

TEST_F(FrmcategoriesTest, WithNothingChosenTheBoxesAskForAChoice) {
  OpenPortal();
  for (const char* box : {"catdesc", "catcode"}) {
    screen.ExpectBox(kSelectFirst);
    driver->Focus(box);
    EXPECT_EQ(driver->Text("catdesc"), "");
    EXPECT_EQ(driver->Focused(), "listcat");
  }
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the teacher");
}

TEST_F(FrmcategoriesTest, TheBoxesTakeNoMoreThanTheirLabelsSay) {
  OpenPortal();
  EXPECT_EQ(portal.catdesc.MaxLength, 15);
  EXPECT_EQ(portal.catcode.MaxLength, 2);
}

TEST_F(FrmcategoriesTest, ExitAppliesTheChange) {
  OpenPortal();
  Name(kM1, "Band", "bd");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Category(1), "Band~BD");
  EXPECT_EQ(CodeOfType(14), "BD");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmcategoriesTest, TheGradesOfTheTypeGetTheNewCode) {
  Enrol("Li", "Bo", "2");
  Give("One", "1", "M1", {"1"});
  Give("Two", "2", "M2", {"2"});
  Give("Three", "3", "m1", {"3"});
  OpenPortal();
  Name(kM1, "Band", "BD");
  driver->Press("exit");
  EXPECT_EQ(Grade(1).typecode, "BD");
  EXPECT_EQ(Grade(2).typecode, "M2");
  EXPECT_EQ(Grade(3).typecode, "m1");
}

TEST_F(FrmcategoriesTest, ACodeOfOneCharacterIsNotPadded) {
  Enrol("Li", "Bo", "2");
  Give("One", "1", "M1", {"1"});
  OpenPortal();
  Name(kM1, "Band", "B");
  driver->Press("exit");
  EXPECT_EQ(Category(1), "Band~B");
  EXPECT_EQ(Grade(1).typecode, "B");
}

TEST_F(FrmcategoriesTest, AGradeEnteredWithACodeOfOneCharacterFollowsTheNextChange) {
  Enrol("Li", "Bo", "2");
  Category(1) = "Band~B";
  Give("One", "1", "B ", {"1"});  // as the Enter Grades Portal writes it
  OpenPortal();
  Name(kM1, "Band", "BD");
  driver->Press("exit");
  EXPECT_EQ(Grade(1).typecode, "BD");
}

TEST_F(FrmcategoriesTest, AMissingDescriptionOrCodeIsRefused) {
  OpenPortal();
  Name(kM1, "Band", " ");
  screen.ExpectBox(kEnterBoth);
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher.");
  EXPECT_EQ(driver->Focused(), "catcode");
  driver->Type("catcode", "BD");
  driver->Type("catdesc", "");
  screen.ExpectBox(kEnterBoth);
  driver->Press("another");
  EXPECT_EQ(driver->Focused(), "catdesc");
  EXPECT_EQ(Category(1), "");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmcategoriesTest, ACodeOfAFixedTypeIsRefusedWhateverItsCase) {
  OpenPortal();
  for (const char* code : {"HW", "hw", "Hw", "q"}) {
    if (driver->Enabled("listcat")) driver->Choose("listcat", kM1);
    driver->Type("catdesc", "Band");
    driver->Type("catcode", code);
    screen.ExpectBox(kCodeTaken);
    driver->Press("exit");
    EXPECT_FALSE(portal.Unloaded());
    EXPECT_EQ(driver->Focused(), "catcode");
  }
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(Category(1), "");
}

TEST_F(FrmcategoriesTest, ACodeOfAnotherModifiedTypeIsRefusedWhateverItsCase) {
  Category(1) = "Band~BD";
  OpenPortal();
  Name(kM2, "Bands", "bd");
  screen.ExpectBox(kCodeTaken);
  driver->Press("another");
  EXPECT_EQ(Category(2), "");
}

TEST_F(FrmcategoriesTest, ATypeMayKeepItsOwnCode) {
  Category(1) = "Band~BD";
  OpenPortal();
  Name(kM1, "Orchestra", "BD");
  driver->Press("exit");
  EXPECT_EQ(Category(1), "Orchestra~BD");
}

TEST_F(FrmcategoriesTest, ATildeWouldTearDescriptionAndCodeApart) {
  OpenPortal();
  Name(kM1, "A~B", "BD");
  screen.ExpectBox("You can't use the character ~ in a description or code.");
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Category(1), "");
}

TEST_F(FrmcategoriesTest, AnotherAppliesAndAsksForTheNextType) {
  OpenPortal();
  Name(kM1, "Band", "BD");
  screen.ExpectBox(kSelectNext);
  driver->Press("another");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the teacher");
  EXPECT_EQ(Category(1), "Band~BD");
  EXPECT_EQ(portal.listcat.List.front(), "BD    -  Band");
  EXPECT_TRUE(driver->Enabled("listcat"));
  EXPECT_EQ(portal.listcat.ListIndex, -1);
  for (const char* box : {"olddesc", "oldcode", "catdesc", "catcode"})
    EXPECT_EQ(driver->Text(box), "") << box;
  EXPECT_FALSE(portal.Pending);
  EXPECT_EQ(Current().Changed, kTrue);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmcategoriesTest, AnotherWithNothingTypedLetsTheChoiceGo) {
  OpenPortal();
  driver->Choose("listcat", kM1);
  screen.ExpectBox(kSelectNext);
  driver->Press("another");
  EXPECT_TRUE(driver->Enabled("listcat"));
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmcategoriesTest, ExitWithNothingTypedChangesNothing) {
  OpenPortal();
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmcategoriesTest, ClosingWithAChangePendingAsks) {
  OpenPortal();
  Name(kM1, "Band", "BD");
  screen.ExpectBox(kChanged, BoxAnswer::kNo);
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).title, "CANCEL");
  screen.ExpectBox(kChanged, BoxAnswer::kYes);
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Category(1), "");
}

TEST_F(FrmcategoriesTest, DefaultsAskFirst) {
  Category(1) = "Band~BD";
  OpenPortal();
  screen.ExpectBox(kResetQuestion, BoxAnswer::kNo);
  driver->Press("defaults");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher.");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kCritical);
  EXPECT_EQ(Category(1), "Band~BD");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmcategoriesTest, DefaultsBringBackTheTypesAndTheirGrades) {
  Enrol("Li", "Bo", "2");
  Category(1) = "Band~BD";
  Give("One", "1", "BD", {"1"});
  Give("None", "0", "", {"1"});
  OpenPortal();
  Name(kM2, "Choir", "CH");
  screen.ExpectBox(kResetQuestion, BoxAnswer::kYes);
  driver->Press("defaults");
  EXPECT_EQ(Category(1), "M1  -  Miscellaneous");
  EXPECT_EQ(Category(13), "       (None)      ");
  EXPECT_EQ(CodeOfType(14), "M1");
  EXPECT_EQ(CodeOfType(26), "  ");
  EXPECT_EQ(Grade(1).typecode, "M1");
  EXPECT_EQ(Grade(2).typecode, "");
  EXPECT_EQ(portal.listcat.List.front(), "M1  -  Miscellaneous");
  EXPECT_EQ(driver->Text("catdesc"), "");
  EXPECT_FALSE(portal.Pending);
  EXPECT_TRUE(driver->Enabled("listcat"));
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmcategoriesTest, DefaultsOnDefaultsChangeNothing) {
  for (std::size_t t = 14; t <= 26; ++t) Category(t - 13) = DefaultTypeLabel(t);
  OpenPortal();
  screen.ExpectBox(kResetQuestion, BoxAnswer::kYes);
  driver->Press("defaults");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmcategoriesTest, AfterDefaultsATypeOfOneCharacterLosesItsGrades) {
  Enrol("Li", "Bo", "2");
  Category(1) = "Band~B";
  Give("One", "1", "B", {"1"});
  OpenPortal();
  screen.ExpectBox(kResetQuestion, BoxAnswer::kYes);
  driver->Press("defaults");
  EXPECT_EQ(Grade(1).typecode, "B");
  EXPECT_EQ(CodeOfType(14), "M1");
}

TEST_F(FrmcategoriesTest, AChangedTypeIsOfferedWhenGradesAreEntered) {
  OpenPortal();
  Name(kM1, "Band", "BD");
  driver->Press("exit");
  frmMarks marks;
  marks.Load();
  EXPECT_EQ(marks.ttypelist.List.at(13), "BD    -  Band");
}

TEST_F(FrmcategoriesTest, ATildeIsToldOfLast) {
  OpenPortal();
  Name(kM1, "A~B", " ");
  screen.ExpectBox(kEnterBoth);
  driver->Press("exit");
  driver->Type("catcode", "HW");
  screen.ExpectBox(kCodeTaken);
  driver->Press("exit");
  driver->Type("catcode", "BD");
  screen.ExpectBox("You can't use the character ~ in a description or code.");
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Focused(), "catdesc");
}

TEST_F(FrmcategoriesTest, DefaultsKeepTheGradesOfTwoTypesApart) {
  Enrol("Li", "Bo", "2");
  Give("One", "1", "M1", {"1"});
  Give("Two", "2", "M2", {"2"});
  OpenPortal();
  Name(kM1, "Band", "XX");
  screen.ExpectBox(kSelectNext);
  driver->Press("another");
  Name(kM2, "Choir", "M1");  // the code that the first type has left
  screen.ExpectBox(kSelectNext);
  driver->Press("another");
  EXPECT_EQ(Grade(1).typecode, "XX");
  EXPECT_EQ(Grade(2).typecode, "M1");
  screen.ExpectBox(kResetQuestion, BoxAnswer::kYes);
  driver->Press("defaults");
  EXPECT_EQ(Grade(1).typecode, "M1");
  EXPECT_EQ(Grade(2).typecode, "M2");
}

TEST_F(FrmcategoriesTest, CancelWithAChangePendingAsks) {
  OpenPortal();
  Name(kM1, "Band", "BD");
  screen.ExpectBox(kChanged, BoxAnswer::kNo);
  driver->Press("cancel");
  EXPECT_FALSE(portal.Unloaded());
  ExpectLastBox("CANCEL", BoxIcon::kQuestion, BoxButtons::kYesNo);
  EXPECT_EQ(driver->Text("catdesc"), "Band");
  screen.ExpectBox(kChanged, BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Category(1), "");
  EXPECT_EQ(Current().Changed, kFalse);
}

}  // namespace
}  // namespace tallyroll
