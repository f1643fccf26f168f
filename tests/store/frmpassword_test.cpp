// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/frmpassword.h"

#include <fstream>
#include <iterator>
#include <map>
#include <optional>

#include "platform/class_window.h"
#include "store/class_defaults.h"
#include "store/class_file.h"
#include "store/password.h"
#include "store/program_state.h"
#include "tests/support/portal_test.h"
#include "tests/support/source_dir.h"

namespace tallyroll {
namespace {

struct WatchedEntries : ClassWindowCalls {
  void EnableEntry(std::string_view entry, bool on) override { entries[std::string(entry)] = on; }
  std::map<std::string, bool> entries;
};

class FrmPasswordTest : public PortalTest {
 protected:
  FrmPasswordTest() { SetClassWindow(&window); }
  ~FrmPasswordTest() override {
    if (!driver) return;
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }

  void Open(int mode, std::string_view password = "") {
    OpenState = mode;
    if (!password.empty()) {
      Current().Password = ScramblePassword(password);
      Current().PasswordSet = 1;
    }
    portal.Load();
    driver.emplace(portal);
  }
  void Enter(std::string_view box, std::string_view text) {
    driver->Type(box, text);
    driver->Press("okbt");
  }

  WatchedEntries window;
  frmpassword portal;
  std::optional<PortalDriver> driver;
};

TEST_F(FrmPasswordTest, ANewPasswordIsEnteredTwiceAndStoredScrambled) {
  Open(17);
  EXPECT_EQ(portal.framecontrol.Current, 0);
  Enter("textcontrol0", "Apple");
  EXPECT_EQ(portal.framecontrol.Current, 1);
  EXPECT_EQ(OpenState, 18);
  EXPECT_EQ(Current().PasswordSet, 0);
  Enter("textcontrol1", "Apple");
  // "A" 65, "p" 112, "l" 108, "e" 101, each with the bits of 74 turned over: 11, 58, 38, 47.
  EXPECT_EQ(Current().Password, "\x0B::&/");
  EXPECT_EQ(Current().PasswordSet, 1);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(OpenState, 50);
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmPasswordTest, ANewPasswordSwitchesTheMenuEntries) {
  Open(17);
  Enter("textcontrol0", "Apple");
  EXPECT_TRUE(window.entries.empty());
  Enter("textcontrol1", "Apple");
  const std::map<std::string, bool> expected = {
      {"mnupassenter", false}, {"mnupasschange", true}, {"mnupassdelete", true}};
  EXPECT_EQ(window.entries, expected);
}

TEST_F(FrmPasswordTest, AnEmptyNewPasswordIsRefused) {
  Open(17);
  screen.ExpectBox("Enter a Password or 'Cancel' for no password");
  driver->Press("okbt");
  EXPECT_EQ(OpenState, 17);
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Focused(), "textcontrol0");
}

TEST_F(FrmPasswordTest, TwoDifferentEntriesGoBackToTheFirst) {
  Open(17);
  Enter("textcontrol0", "Apple");
  screen.ExpectBox("Passwords do not match. Re-enter");
  Enter("textcontrol1", "apple");
  EXPECT_EQ(OpenState, 17);
  EXPECT_EQ(portal.framecontrol.Current, 0);
  EXPECT_EQ(driver->Text("textcontrol0"), "");
  EXPECT_EQ(Current().PasswordSet, 0);
  EXPECT_EQ(Current().Changed, kFalse);
  Enter("textcontrol0", "Pear");
  EXPECT_EQ(driver->Text("textcontrol1"), "");
  Enter("textcontrol1", "Pear");
  EXPECT_TRUE(PasswordMatches("Pear", Current().Password));
}

TEST_F(FrmPasswordTest, APasswordTakesTenCharacters) {
  Open(17);
  Enter("textcontrol0", "0123456789");
  Enter("textcontrol1", "0123456789");
  EXPECT_TRUE(PasswordMatches("0123456789", Current().Password));
  for (const TextBox& box : portal.textcontrol) EXPECT_EQ(box.MaxLength, 10);
}

TEST_F(FrmPasswordTest, ChangingAsksForTheOldPasswordFirst) {
  Open(19, "Apple");
  EXPECT_EQ(portal.framecontrol.Current, 2);
  screen.ExpectBox("Password incorrect - please re-enter.");
  Enter("textcontrol2", "Plum");
  EXPECT_EQ(OpenState, 19);
  EXPECT_EQ(driver->Focused(), "textcontrol2");
  EXPECT_EQ(portal.textcontrol[2].SelLength, 4);
  Enter("textcontrol2", "Apple");
  EXPECT_EQ(OpenState, 17);
  EXPECT_EQ(portal.framecontrol.Current, 0);
}

TEST_F(FrmPasswordTest, AChangedPasswordReplacesTheOld) {
  Open(19, "Apple");
  Enter("textcontrol2", "Apple");
  Enter("textcontrol0", "Pear");
  Enter("textcontrol1", "Pear");
  EXPECT_TRUE(PasswordMatches("Pear", Current().Password));
  EXPECT_FALSE(PasswordMatches("Apple", Current().Password));
  EXPECT_EQ(OpenState, 50);
}

TEST_F(FrmPasswordTest, NothingEnteredIsNoOldPassword) {
  Open(19, "Apple");
  screen.ExpectBox("Password incorrect - please re-enter.");
  driver->Press("okbt");
  EXPECT_EQ(OpenState, 19);
}

TEST_F(FrmPasswordTest, AStoredPasswordMayBePadded) {
  Open(19, "Apple");
  Current().Password += "     ";
  Enter("textcontrol2", "Apple");
  EXPECT_EQ(OpenState, 17);
}

TEST_F(FrmPasswordTest, CancellingAfterTheFirstEntryStoresNothing) {
  Open(17);
  Enter("textcontrol0", "Apple");
  screen.ExpectBox("Are you sure you want to cancel?", BoxAnswer::kYes);
  driver->Press("cancelbt");
  EXPECT_EQ(OpenState, 18);
  EXPECT_EQ(Current().PasswordSet, 0);
  EXPECT_EQ(Current().Password, "");
}

TEST_F(FrmPasswordTest, DeletingNeedsTheOldPassword) {
  Open(21, "Apple");
  EXPECT_EQ(portal.framecontrol.Current, 4);
  screen.ExpectBox("Password incorrect - please re-enter.");
  Enter("textcontrol4", "APPLE");
  EXPECT_EQ(Current().PasswordSet, 1);
  EXPECT_EQ(OpenState, 21);
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmPasswordTest, DeletingTakesThePasswordAway) {
  Open(21, "Apple");
  screen.ExpectBox("Your password has been deleted");
  Enter("textcontrol4", "Apple");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the teacher");
  EXPECT_EQ(Current().Password, "");
  EXPECT_EQ(Current().PasswordSet, 0);
  EXPECT_EQ(OpenState, 50);
  EXPECT_TRUE(portal.Unloaded());
  const std::map<std::string, bool> expected = {
      {"mnupassenter", true}, {"mnupasschange", false}, {"mnupassdelete", false}};
  EXPECT_EQ(window.entries, expected);
}

// No Portal is expected at the second opening, so a question would be a complaint.
TEST_F(FrmPasswordTest, AfterDeletingAndASaveTheFileOpensWithoutAQuestion) {
  Current().FileName = Path("math.TYR");
  Current().Magic = "ty8";
  Open(21, "Apple");
  screen.ExpectBox("Your password has been deleted");
  Enter("textcontrol4", "Apple");
  WriteClassFile();
  ResetClassSlot();
  Current().FileName = Path("math.TYR");
  ReadClassFile();
  EXPECT_EQ(Current().FileName, Path("math.TYR"));
  EXPECT_EQ(OpenState, 10);
}

TEST_F(FrmPasswordTest, TheRightPasswordLetsAnOpeningGoOn) {
  Open(20, "Apple");
  EXPECT_EQ(portal.framecontrol.Current, 3);
  Enter("textcontrol3", "Apple");
  EXPECT_EQ(OpenState, 15);
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmPasswordTest, APasswordInTheWrongCaseIsRefused) {
  Open(20, "Apple");
  screen.ExpectBox("Password incorrect. Please re-enter.");
  Enter("textcontrol3", "aPPLE");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(OpenState, 20);
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmPasswordTest, AnEmptyEntryNeverEqualsAnEmptyStoredPassword) {
  Current().PasswordSet = 1;
  Open(20);
  screen.ExpectBox("Password incorrect. Please re-enter.");
  driver->Press("okbt");
  EXPECT_EQ(OpenState, 20);
}

TEST_F(FrmPasswordTest, CancellingLeavesOpenStateAsItIs) {
  Open(20, "Apple");
  screen.ExpectBox("Are you sure you want to cancel?", BoxAnswer::kYes);
  driver->Press("cancelbt");
  EXPECT_EQ(OpenState, 20);
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kYesNo);
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
}

TEST_F(FrmPasswordTest, CancelTakenBackStays) {
  Open(17);
  screen.ExpectBox("Are you sure you want to cancel?", BoxAnswer::kNo);
  driver->Press("cancelbt");
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmPasswordTest, ClosingTheWindowIsCancelling) {
  Open(18);
  screen.ExpectBox("Are you sure you want to cancel?", BoxAnswer::kYes);
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().PasswordSet, 0);
}

TEST_F(FrmPasswordTest, WithoutAModeItDoesNotShow) {
  Open(0);
  EXPECT_TRUE(portal.Unloaded());
}

TEST(FrmPasswordForm, SaysItsFramesAndLabelsAndShowsDots) {
  std::ifstream file(SourceDir() + "/src/desktop/forms/frmpassword.ui");
  const std::string form{std::istreambuf_iterator<char>(file), {}};
  for (const char* text :
       {"Password Window", "New Password", "Confirm Password", "Change Password", "Enter Password",
        "Delete Password", "Enter your case sensitive password  (up to 10 characters)",
        "Re-enter your password", "Please enter your old password"})
    EXPECT_NE(form.find("<string>" + std::string(text) + "</string>"), std::string::npos) << text;
  int dotted = 0;
  for (std::size_t at = 0; (at = form.find("QLineEdit::Password", at)) != std::string::npos; ++at)
    ++dotted;
  EXPECT_EQ(dotted, 5);
}

}  // namespace
}  // namespace tallyroll
