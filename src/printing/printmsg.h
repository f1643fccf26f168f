// SPDX-License-Identifier: GPL-3.0-or-later
// printmsg: asks for the title of a printout before a run; while it runs, tells how far it has come
// and lets the teacher cancel it.
#pragma once

#include <string>

#include "platform/portal.h"

namespace tallyroll {

// The title that a printout gets where the teacher gives it no other: the name of the class file.
std::string OfferedTitle();

struct printmsg : Portal {
  printmsg();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override;

  Frame message;  // the title
  Label prompt;
  TextBox Text1;
  CommandButton continue_, exit;
  Frame printing;  // the run
  Label working, pages;
  ProgressBar progress;
  CommandButton cancel;

  void continue_Click();
  void exit_Click();
  void cancel_Click();

  // The page in work; 0 as long as pages are being found, and 0 of all where they aren't known.
  void ShowPage(int page, int all);
};

}  // namespace tallyroll
