// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/frmfind.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "platform/surroundings.h"

namespace tallyroll {

FindFirst FindStarts = FindFirst::kStudents;
std::function<void()> ChosenFind;

namespace {

// Nobody reads further; another letter brings the line up.
constexpr std::size_t kMostLines = 200;
constexpr int kPageOfLines = 8;

// One that cannot be had now tells why where it would tell its place.
std::string LineOf(const FindEntry& entry) {
  return entry.text + "\t" + (entry.reason.empty() ? entry.place : entry.reason) + "\t" + entry.key;
}

std::string FoundText(std::size_t count) {
  if (count == 0) return "Nothing of that name";
  if (count == 1) return "1 found";
  return PlainNumberText(static_cast<int>(count)) + " found";
}

}  // namespace

void RunFind(FindFirst first) {
  FindStarts = first;
  ChosenFind = nullptr;
  ShowPortal("frmfind");
  if (const std::function<void()> run = std::exchange(ChosenFind, nullptr)) run();
}

void RunFindAmong(std::function<std::vector<FindEntry>()> entries) {
  const auto usual = std::exchange(MakeFindEntries, std::move(entries));
  RunFind(FindFirst::kStudents);
  MakeFindEntries = usual;
}

frmfind::frmfind() : Portal("frmfind") {
  Caption = "Find";
  HelpContext = 215;
  go.Caption = "&Go";
  exit.Caption = "E&xit";
}

void frmfind::Declare(ControlTable& table) {
  table.Add("typed", typed).Change([this] { typed_Change(); }).KeyDown([this](Key key) {
    return typed_KeyDown(key);
  });
  table.Add("found", found).Change([this] { found_Change(); }).DblClick([this] { go_Click(); });
  table.Add("note", note);
  table.Add("go", go).Click([this] { go_Click(); });
  table.Add("exit", exit).Click([this] { exit_Click(); });
}

void frmfind::Load() {
  Caption = FindStarts == FindFirst::kCommands ? "Command" : "Find";
  if (MakeFindEntries) entries_ = MakeFindEntries();
  FillList();
  SetFocus(typed);
}

void frmfind::FillList() {
  shown_ = Find(typed.Text, entries_, FindStarts);
  const std::size_t count = shown_.size();
  shown_.resize(std::min(count, kMostLines));
  found.List.clear();
  for (const std::size_t i : shown_) found.List.push_back(LineOf(entries_[i]));
  found.ListIndex = shown_.empty() ? -1 : 0;
  found_Change();
  if (Chosen() == nullptr || Chosen()->reason.empty()) note.Caption = FoundText(count);
}

void frmfind::typed_Change() {
  FillList();
}

// The list is walked from the text, so that the hands stay where they type.
bool frmfind::typed_KeyDown(Key key) {
  const int last = static_cast<int>(shown_.size()) - 1;
  int line = found.ListIndex;
  switch (key) {
    case Key::kUp:
      --line;
      break;
    case Key::kDown:
      ++line;
      break;
    case Key::kPageUp:
      line -= kPageOfLines;
      break;
    case Key::kPageDown:
      line += kPageOfLines;
      break;
    default:
      return false;
  }
  if (last < 0) return true;
  found.ListIndex = std::clamp(line, 0, last);
  found_Change();
  return true;
}

const FindEntry* frmfind::Chosen() const {
  if (found.ListIndex < 0 || found.ListIndex >= static_cast<int>(shown_.size())) return nullptr;
  return &entries_[shown_[static_cast<std::size_t>(found.ListIndex)]];
}

void frmfind::found_Change() {
  const FindEntry* const chosen = Chosen();
  go.Enabled = chosen != nullptr;
  if (chosen == nullptr) return;
  note.Caption = chosen->reason.empty() ? chosen->place : chosen->reason;
}

void frmfind::go_Click() {
  const FindEntry* const chosen = Chosen();
  if (chosen == nullptr || !chosen->reason.empty()) {
    Platform().Beep();
    SetFocus(typed);
    return;
  }
  RememberFind(*chosen);
  ChosenFind = chosen->run;
  Unload();
}

}  // namespace tallyroll
