// SPDX-License-Identifier: GPL-3.0-or-later
// frmclassinfo: the Class Information Portal.
#pragma once

#include "platform/portal.h"

namespace tallyroll {

inline constexpr int kLongestDescription = 30;

// The calendar opens at the date of the text, and at today where that is none.
void FollowText(DTPicker& picker, const TextBox& text);

struct frmclassinfo : Portal {
  frmclassinfo();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  TextBox description, school, room, teacher, timed;
  TextBox tempstart, tempend;   // the dates of the term as text
  DTPicker termstart, termend;  // pick a date into that text
  CommandButton exit, cancel;

  bool Dirty = false;  // something was edited

  void termstart_Change();
  void termend_Change();
  void exit_Click();
  void cancel_Click();
};

}  // namespace tallyroll
