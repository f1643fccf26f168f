// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/open_classes.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"

namespace tallyroll {
namespace {

constexpr i16 kTaken = 10;

// As on the class's window.
std::string CaptionOf(std::string_view path) {
  const std::string_view name = path.substr(path.find_last_of("/\\") + 1);
  return name == path ? std::string(path) : UpperCase(name);
}

std::string_view FolderIn(std::string_view path) {
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
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
  std::vector<std::string> paths, names;
  for (const int slot : slots) {
    const std::string& path = Classes[static_cast<std::size_t>(slot)].FileName;
    paths.push_back(path.empty() ? "NewClass " + PlainNumberText(slot) : PathForDisplay(path));
  }
  for (const std::string& path : paths) {
    const auto alike = std::count_if(paths.begin(), paths.end(), [&](const std::string& other) {
      return CaptionOf(other) == CaptionOf(path);
    });
    std::string name = CaptionOf(path);
    if (alike > 1) name += " (" + std::string(FolderIn(path)) + ")";
    names.push_back(std::move(name));
  }
  return names;
}

}  // namespace tallyroll
