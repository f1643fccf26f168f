// SPDX-License-Identifier: GPL-3.0-or-later
// The full menu of a class window as one table.
#pragma once

#include <span>
#include <string_view>

#include "shell/form1.h"
#include "shell/menu.h"

namespace tallyroll {

// One line of the menu. An entry opens a Portal, or runs an action, or holds the deeper entries
// that follow it.
struct ClassMenuRow {
  int level = 0;
  std::string_view name = {};  // empty for a separator
  std::string_view caption = {};
  std::string_view status = {};
  std::string_view shortcut = {};
  std::string_view portal = {};
  int open_state = 0;  // the mode that the Portal is handed
  int method = -1;     // the method of averages that the Portal works with, -1 leaves it
  AfterPortal after = AfterPortal::kRefill;
  void (*action)(Form1& window) = nullptr;
};

std::span<const ClassMenuRow> ClassMenuRows();

Menu MakeClassMenu(Form1& window);

}  // namespace tallyroll
