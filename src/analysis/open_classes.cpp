// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/open_classes.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"

namespace tallyroll {
namespace {

constexpr i16 kTaken = 10;

// As on the class's window: one that was never saved keeps its words, a file is in capitals.
std::string CaptionOf(int slot) {
  const std::string& path = Classes[static_cast<std::size_t>(slot)].FileName;
  if (path.empty()) return "NewClass " + PlainNumberText(slot);
  const std::string shown = PathForDisplay(path);
  return UpperCase(shown.substr(shown.find_last_of("/\\") + 1));
}

std::string FolderIn(int slot) {
  const std::string path = PathForDisplay(Classes[static_cast<std::size_t>(slot)].FileName);
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? "." : path.substr(0, slash);
}

}  // namespace

bool IsOpen(int slot) {
  return slot >= 1 && slot < MaxClassSlots &&
         Classes[static_cast<std::size_t>(slot)].SlotState == kTaken;
}

std::vector<int> OpenSlots() {
  std::vector<int> slots;
  for (int slot = 1; slot < MaxClassSlots; ++slot)
    if (IsOpen(slot)) slots.push_back(slot);
  return slots;
}

std::vector<std::string> ClassNames(const std::vector<int>& slots) {
  std::vector<std::string> names;
  for (const int slot : slots) {
    const std::string caption = CaptionOf(slot);
    const auto alike = std::count_if(slots.begin(), slots.end(),
                                     [&](int other) { return CaptionOf(other) == caption; });
    names.push_back(alike > 1 ? caption + " (" + FolderIn(slot) + ")" : caption);
  }
  return names;
}

}  // namespace tallyroll
