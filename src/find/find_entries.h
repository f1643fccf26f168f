// SPDX-License-Identifier: GPL-3.0-or-later
// What Find searches: the students and grades of the class in front, every command, the pages of
// the help, the classes that are open and those opened lately.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

enum class FindKind { kStudent, kGrade, kCommand, kHelp, kClass };

struct FindEntry {
  FindKind kind = FindKind::kCommand;
  std::string name = {};    // by which it is remembered: the menu entry's, never its words
  std::string text = {};    // what is shown and searched first
  std::string place = {};   // where it stands: "Records > Enter Records"
  std::string key = {};     // "Ctrl+G", or the page of a report; empty for none
  std::string reason = {};  // why it cannot be chosen now; empty when it can
  std::function<void()> run = {};
};

// The shell makes the list afresh each time that Find opens.
extern std::function<std::vector<FindEntry>()> MakeFindEntries;

// What stands above when nothing is typed yet, and wins between equals.
enum class FindFirst { kStudents, kCommands };

// Indexes of the entries that answer, best first. With nothing typed: what was used last, then
// everything of the kind that stands first.
std::vector<std::size_t> Find(std::string_view typed, const std::vector<FindEntry>& entries,
                              FindFirst first);

// The eight commands and help pages used last, most recent first, kept between runs. Students,
// grades and classes are not: their names have no business in the settings.
std::vector<std::string> RecentFinds();
void RememberFind(const FindEntry& entry);

}  // namespace tallyroll
