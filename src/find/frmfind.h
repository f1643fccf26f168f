// SPDX-License-Identifier: GPL-3.0-or-later
// frmfind: one small window over students, grades, commands, help and classes. It only chooses;
// what was chosen runs when the window is gone, as if it had been picked from its menu.
#pragma once

#include <functional>
#include <vector>

#include "find/find_entries.h"
#include "platform/portal.h"

namespace tallyroll {

// Set by the command that opens the window.
extern FindFirst FindStarts;
// What was chosen, until the command that opened the window takes it; null for nothing.
extern std::function<void()> ChosenFind;

// Opens the window and does what was chosen in it.
void RunFind(FindFirst first);
// The same over these entries alone.
void RunFindAmong(std::function<std::vector<FindEntry>()> entries);

struct frmfind : Portal {
  frmfind();
  void Declare(ControlTable& table) override;
  void Load() override;

  TextBox typed;
  ListBox found;  // text, place and key of each
  Label note;     // how many there are, or why the chosen one cannot be had now
  CommandButton go, exit;

  void typed_Change();
  bool typed_KeyDown(Key key);
  void found_Change();
  void go_Click();
  void exit_Click() { Unload(); }

 private:
  void FillList();
  const FindEntry* Chosen() const;

  std::vector<FindEntry> entries_;
  std::vector<std::size_t> shown_;  // the entry of each line
};

}  // namespace tallyroll
