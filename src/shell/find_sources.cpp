// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/find_sources.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "shell/disabled_reason.h"
#include "shell/recent_list.h"
#include "shell/shell_state.h"
#include "store/settings.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::string_view kBetweenPlaces = " > ";

// The window of the class in front; null while none is open.
Form1* FindWindow() {
  Form1* const window = ClassWindows[static_cast<std::size_t>(CurrentClass)].get();
  return window != nullptr && !window->Tag.empty() ? window : nullptr;
}

// A caption without its mnemonic and the points of one that asks more.
std::string PlainCaption(std::string_view caption) {
  std::string plain;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    plain += caption[i];
  }
  while (plain.ends_with('.') || plain.ends_with(' ')) plain.pop_back();
  return std::string(Trim(plain));
}

std::string JoinedPlaces(const std::vector<std::string>& above) {
  std::string joined;
  for (const std::string& one : above) {
    if (!joined.empty()) joined += kBetweenPlaces;
    joined += one;
  }
  return joined;
}

bool IsListedElsewhere(const std::string& name) {
  return name.starts_with("mnuFileList") || name.starts_with("mnuWindowList") ||
         name == "mnuFind" || name == "mnuCommand";
}

template <typename Click>
void AddCommands(const Menu& menu, const Click& click, std::vector<FindEntry>& entries) {
  std::vector<std::string> above;
  for (const MenuEntry& entry : menu.entries()) {
    above.resize(std::min(above.size(), static_cast<std::size_t>(entry.level)));
    if (entry.click && entry.visible && !IsListedElsewhere(entry.name)) {
      entries.push_back({.kind = FindKind::kCommand,
                         .name = entry.name,
                         .text = PlainCaption(entry.caption),
                         .place = JoinedPlaces(above),
                         .key = entry.shortcut,
                         .reason = DisabledReason(menu, entry.name),
                         .run = [click, name = entry.name] { click(name); }});
    }
    above.push_back(PlainCaption(entry.caption));
  }
}

void MoveCell(int slot, int row, int col) {
  Form1* const window = ClassWindows[static_cast<std::size_t>(slot)].get();
  if (window == nullptr) return;
  if (row > 0 && row < window->Grid1.Rows()) window->Grid1.Row = row;
  if (col > 0 && col < window->Grid1.Cols()) window->Grid1.Col = col;
}

// Students stand from row 2 on, grades from column 2 on.
void AddClassInFront(std::vector<FindEntry>& entries) {
  const Class& c = Current();
  const int slot = CurrentClass;
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    entries.push_back({.kind = FindKind::kStudent,
                       .text = PlainName(student),
                       .place = "Student, ID " + std::string(Trim(student.id)),
                       .run = [slot, i] { MoveCell(slot, i + 1, 0); }});
  }
  for (int j = 1; j <= c.NumInstruments; ++j) {
    const Instrument& grade = c.Instruments[static_cast<std::size_t>(j)];
    entries.push_back({.kind = FindKind::kGrade,
                       .text = std::string(Trim(grade.title)),
                       .place = "Grade " + std::string(Trim(grade.code)),
                       .run = [slot, j] { MoveCell(slot, 0, j + 1); }});
  }
}

void AddOpenClasses(std::vector<FindEntry>& entries) {
  for (std::size_t slot = 1; slot < ClassWindows.size(); ++slot) {
    const Form1* const window = ClassWindows[slot].get();
    if (window == nullptr || window->Tag.empty()) continue;
    entries.push_back(
        {.kind = FindKind::kClass, .text = window->Caption, .place = "Open class", .run = [slot] {
           if (ClassWindows[slot]) Screen->BringToFront(*ClassWindows[slot]);
         }});
  }
}

bool IsOpenClass(const std::string& path) {
  return std::ranges::any_of(Classes, [&](const Class& c) { return SameFile(c.FileName, path); });
}

void AddRecentClasses(std::vector<FindEntry>& entries) {
  for (const std::string& path : RecentFiles) {
    if (path.empty() || IsOpenClass(path)) continue;
    entries.push_back({.kind = FindKind::kClass,
                       .text = PathForDisplay(FileNameOf(path)),
                       .place = PathForDisplay(FolderOf(path)),
                       .run = [path] { FrameForm->OpenRecent(path); }});
  }
}

void AddHelp(std::vector<FindEntry>& entries) {
  for (HelpTopic& topic : Screen->HelpTopics())
    entries.push_back({.kind = FindKind::kHelp,
                       .name = "help" + PlainNumberText(topic.context),
                       .text = std::move(topic.title),
                       .place = "Help",
                       .run = [context = topic.context] { Platform().ShowHelp(context); }});
}

}  // namespace

std::vector<FindEntry> ProgramFindEntries() {
  std::vector<FindEntry> entries;
  if (const Form1* const window = FindWindow()) {
    AddClassInFront(entries);
    const int slot = CurrentClass;
    const auto click = [slot](const std::string& name) {
      if (Form1* const still = ClassWindows[static_cast<std::size_t>(slot)].get())
        still->ClickMenu(name);
    };
    AddCommands(window->menu, click, entries);
  } else if (FrameForm) {
    AddCommands(
        FrameForm->menu, [](const std::string& name) { FrameForm->ClickMenu(name); }, entries);
  }
  AddOpenClasses(entries);
  AddRecentClasses(entries);
  AddHelp(entries);
  return entries;
}

}  // namespace tallyroll
