// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/frmpassword.h"

#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/password.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kLongestPassword = 10;

constexpr std::string_view kIncorrectPassword = "Password incorrect - please re-enter.";

// A class has a password to change and to delete, or one to enter.
void EnablePasswordEntries(bool has_password) {
  ClassWindow().EnableEntry("mnupassenter", !has_password);
  ClassWindow().EnableEntry("mnupasschange", has_password);
  ClassWindow().EnableEntry("mnupassdelete", has_password);
}

}  // namespace

frmpassword::frmpassword() : Portal("frmpassword") {
  Caption = "Password Window";
  HelpContext = 270;
  okbt.Caption = "&OK";
  cancelbt.Caption = "&Cancel";
  for (TextBox& box : textcontrol) box.MaxLength = kLongestPassword;
}

void frmpassword::Declare(ControlTable& table) {
  table.Add("framecontrol", framecontrol);
  table.Add("textcontrol0", textcontrol[0]);
  table.Add("textcontrol1", textcontrol[1]);
  table.Add("textcontrol2", textcontrol[2]);
  table.Add("textcontrol3", textcontrol[3]);
  table.Add("textcontrol4", textcontrol[4]);
  table.Add("okbt", okbt).Click([this] { okbt_Click(); });
  table.Add("cancelbt", cancelbt).Click([this] { cancelbt_Click(); });
}

void frmpassword::Load() {
  if (OpenState < kNewPassword || OpenState > kDeletePassword) return Unload();
  GoTo(OpenState);
}

TextBox& frmpassword::Entry() {
  return textcontrol[static_cast<std::size_t>(framecontrol.Current)];
}

void frmpassword::GoTo(int mode) {
  OpenState = mode;
  framecontrol.Current = mode - kNewPassword;
  Entry().Text.clear();
  SetFocusAndSelect(Entry());
}

void frmpassword::okbt_Click() {
  switch (OpenState) {
    case kNewPassword:
      return AcceptNew();
    case kConfirmPassword:
      return Confirm();
    case kChangePassword:
      if (IsOldPassword(kIncorrectPassword)) GoTo(kNewPassword);
      return;
    case kEnterPassword:
      if (!IsOldPassword("Password incorrect. Please re-enter.")) return;
      OpenState = kPasswordAccepted;
      return Unload();
    case kDeletePassword:
      if (IsOldPassword(kIncorrectPassword)) Delete();
      return;
    default:
      return;
  }
}

bool frmpassword::IsOldPassword(std::string_view complaint) {
  if (PasswordMatches(Entry().Text, Current().Password)) return true;
  ShowMessage(complaint);
  SetFocusAndSelect(Entry());
  return false;
}

void frmpassword::AcceptNew() {
  if (!Entry().Text.empty()) return GoTo(kConfirmPassword);
  ShowMessage("Enter a Password or 'Cancel' for no password");
  SetFocus(Entry());
}

void frmpassword::Confirm() {
  if (Entry().Text != textcontrol[0].Text) {
    ShowMessage("Passwords do not match. Re-enter");
    return GoTo(kNewPassword);
  }
  Class& c = Current();
  c.Password = ScramblePassword(Entry().Text);
  c.PasswordSet = 1;
  c.Changed = kTrue;
  EnablePasswordEntries(true);
  OpenState = kPasswordChanged;
  Unload();
}

void frmpassword::Delete() {
  Class& c = Current();
  c.Password.clear();
  c.PasswordSet = 0;
  c.Changed = kTrue;  // should the save that follows fail, closing asks again
  ShowMessage("Your password has been deleted", BoxIcon::kNone, "Note to the teacher");
  EnablePasswordEntries(false);
  OpenState = kPasswordChanged;
  Unload();
}

void frmpassword::cancelbt_Click() {
  if (Ask("Are you sure you want to cancel?", BoxButtons::kYesNo, BoxIcon::kQuestion) ==
      BoxAnswer::kYes)
    Unload();
}

}  // namespace tallyroll
