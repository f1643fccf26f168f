// SPDX-License-Identifier: GPL-3.0-or-later
// frmpassword: the Password Window. It enters, confirms, changes, asks for and deletes the
// password.
#pragma once

#include <array>

#include "platform/portal.h"

namespace tallyroll {

// What OpenState tells the Portal to do, and what it answers. Modes are pages in this order.
inline constexpr int kNewPassword = 17;
inline constexpr int kConfirmPassword = 18;
inline constexpr int kChangePassword = 19;
inline constexpr int kEnterPassword = 20;
inline constexpr int kDeletePassword = 21;
inline constexpr int kPasswordAccepted = 15;  // the class file may be read on
inline constexpr int kPasswordChanged = 50;   // the class is to be saved now

struct frmpassword : Portal {
  frmpassword();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancelbt_Click(); }

  Pages framecontrol;
  std::array<TextBox, 5> textcontrol;  // one a page
  CommandButton okbt;
  CommandButton cancelbt;

  void okbt_Click();
  void cancelbt_Click();

 private:
  TextBox& Entry();
  void GoTo(int mode);
  bool IsOldPassword(std::string_view complaint);
  void AcceptNew();
  void Confirm();
  void Delete();
};

}  // namespace tallyroll
