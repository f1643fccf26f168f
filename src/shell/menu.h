// SPDX-License-Identifier: GPL-3.0-or-later
// A menu bar as data: entries in order, each with its depth. A screen draws it, tests press it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

struct MenuEntry {
  std::string name = {};      // "mnuOpen"; empty for a separator
  std::string caption = {};   // "&Open..."
  int level = 0;              // 0 stands in the bar, 1 in its menu, 2 and more in submenus
  std::string shortcut = {};  // "Ctrl+O"; empty for none
  std::string status = {};    // what the status bar tells while the entry is highlighted
  std::function<void()> click = {};
  bool enabled = true;
  bool checked = false;
  bool visible = true;
};

class Menu {
 public:
  MenuEntry& Add(MenuEntry entry);
  // The entry of that name, which must exist.
  MenuEntry& operator[](std::string_view name);
  const MenuEntry* Find(std::string_view name) const;
  // It is shown and enabled, and so is every menu it stands in.
  bool Reachable(std::string_view name) const;
  void Enable(std::string_view name, bool on) { (*this)[name].enabled = on; }
  void Check(std::string_view name, bool on) { (*this)[name].checked = on; }

  const std::vector<MenuEntry>& entries() const { return entries_; }

 private:
  std::vector<MenuEntry> entries_;
};

}  // namespace tallyroll
