// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/menu.h"

#include <cassert>
#include <utility>

namespace tallyroll {

MenuEntry& Menu::Add(MenuEntry entry) {
  return entries_.emplace_back(std::move(entry));
}

MenuEntry& Menu::operator[](std::string_view name) {
  for (MenuEntry& entry : entries_)
    if (!entry.name.empty() && entry.name == name) return entry;
  assert(false && "no menu entry of that name");
  return entries_.front();
}

const MenuEntry* Menu::Find(std::string_view name) const {
  for (const MenuEntry& entry : entries_)
    if (!entry.name.empty() && entry.name == name) return &entry;
  return nullptr;
}

bool Menu::Reachable(std::string_view name) const {
  const MenuEntry* entry = Find(name);
  if (!entry || !entry->enabled || !entry->visible) return false;
  int level = entry->level;
  for (const MenuEntry* above = entry; above != entries_.data() && level > 0;) {
    --above;
    if (above->level >= level) continue;
    if (!above->enabled || !above->visible) return false;
    level = above->level;
  }
  return true;
}

}  // namespace tallyroll
