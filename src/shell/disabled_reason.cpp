// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/disabled_reason.h"

#include <algorithm>
#include <span>

#include "shell/menu_needs.h"

namespace tallyroll {
namespace {

bool IsAmong(std::span<const std::string_view> names, std::string_view name) {
  return std::ranges::find(names, name) != names.end();
}

// The entry itself, or the menu above it that is off.
const MenuEntry* EntryThatIsOff(const Menu& menu, std::string_view name) {
  const MenuEntry* entry = menu.Find(name);
  if (entry == nullptr || !entry->enabled) return entry;
  int level = entry->level;
  for (const MenuEntry* above = entry; above != menu.entries().data() && level > 0;) {
    --above;
    if (above->level >= level) continue;
    if (!above->enabled) return above;
    level = above->level;
  }
  return nullptr;
}

}  // namespace

std::string DisabledReason(const Menu& menu, std::string_view name) {
  const MenuEntry* const off = EntryThatIsOff(menu, name);
  if (off == nullptr) return {};
  const bool grades = IsAmong(kWithGrades, off->name);
  const bool attendance = IsAmong(kWithSummaries, off->name) || IsAmong(kWithDays, off->name);
  if (grades && attendance) return "The class has no grades and no attendance yet.";
  if (grades) return "The class has no grades yet.";
  if (IsAmong(kWithDays, off->name)) return "Daily attendance has not been set up yet.";
  if (IsAmong(kWithSummaries, off->name)) return "The class has no summary attendance yet.";
  if (off->name == "mnupassenter") return "The class has a password already.";
  if (off->name == "mnupasschange" || off->name == "mnupassdelete")
    return "The class has no password.";
  if (IsAmong(kWithMethod, off->name)) return "No averages have been made up yet.";
  if (off->name == "mnuundo") return "Nothing was changed since the class was opened.";
  if (off->name == "mnuredo") return "Nothing was taken back.";
  return "The class has no students yet.";
}

}  // namespace tallyroll
