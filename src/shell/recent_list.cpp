// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/recent_list.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "store/program_state.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLongestShown = 60;  // characters of a path that are shown whole
constexpr std::string_view kSlashes = "/\\";

// A path that the code page cannot hold is compared byte for byte, but for the letters of ASCII.
std::string ComparisonKey(std::string_view path) {
  path = Trim(path);
  if (const auto text = CodePageFromUtf8(path)) return UpperCase(*text);
  std::string key(path);
  std::transform(key.begin(), key.end(), key.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return key;
}

std::size_t NameStart(std::string_view path) {
  const std::size_t slash = path.find_last_of(kSlashes);
  return slash == std::string_view::npos ? 0 : slash + 1;
}

// Its first part, " ... ", and the last folder with the name.
std::string Shorten(const std::string& path) {
  if (path.size() <= kLongestShown) return path;
  const std::size_t first_end = path.find_first_of(kSlashes, 1);
  const std::size_t name = path.find_last_of(kSlashes);
  if (first_end == std::string::npos || name <= first_end) return path;
  const std::size_t folder = path.find_last_of(kSlashes, name - 1);
  if (folder <= first_end) return path;
  return path.substr(0, first_end) + " ... " + path.substr(folder);
}

std::string WithoutMnemonics(const std::string& text) {
  std::string plain;
  for (const char c : text) plain += c == '&' ? "&&" : std::string(1, c);
  return plain;
}

bool IsOpen(std::string_view path) {
  return std::any_of(Classes.begin() + 1, Classes.begin() + MaxClassSlots,
                     [&](const Class& c) { return SameFile(c.FileName, path); });
}

}  // namespace

bool SameFile(std::string_view a, std::string_view b) {
  return ComparisonKey(a) == ComparisonKey(b);
}

std::string FileNameOf(std::string_view path) {
  return std::string(path.substr(NameStart(path)));
}

std::string FolderOf(std::string_view path) {
  const std::size_t start = NameStart(path);
  return std::string(path.substr(0, start > 1 ? start - 1 : start));
}

void AddRecentFile(std::string_view path) {
  auto place = std::find_if(RecentFiles.begin(), RecentFiles.end(),
                            [&](const std::string& recent) { return SameFile(recent, path); });
  if (place == RecentFiles.end()) --place;
  std::rotate(RecentFiles.begin(), place, place + 1);
  RecentFiles.front() = path;
}

void RemoveRecentFile(std::string_view path) {
  const auto place =
      std::find_if(RecentFiles.begin(), RecentFiles.end(),
                   [&](const std::string& recent) { return SameFile(recent, path); });
  if (place == RecentFiles.end()) return;
  std::rotate(place, place + 1, RecentFiles.end());
  RecentFiles.back().clear();
}

std::string RecentMenuText(int index) {
  const std::string path = PathForDisplay(RecentFiles[static_cast<std::size_t>(index)]);
  return "&" + PlainNumberText(index + 1) + ". " + WithoutMnemonics(Shorten(path));
}

void ShowRecentFiles(Menu& menu, bool leave_out_open) {
  for (int i = 0; i < static_cast<int>(RecentFiles.size()); ++i) {
    MenuEntry& entry = menu["mnuFileList" + PlainNumberText(i)];
    const std::string& path = RecentFiles[static_cast<std::size_t>(i)];
    entry.visible = !path.empty() && !(leave_out_open && IsOpen(path));
    entry.caption = entry.visible ? RecentMenuText(i) : "";
  }
}

}  // namespace tallyroll
