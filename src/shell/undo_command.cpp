// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/undo_command.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "shell/shell_state.h"

namespace tallyroll {
namespace {

// A change that no command is known for.
constexpr std::string_view kOtherChange = "Change";

struct CommandName {
  std::string_view entry, name;
};

constexpr std::array kCommandNames = {
    CommandName{"mnuAdd", "Add Student"},
    CommandName{"mmucomment", "Add Comment"},
    CommandName{"mnuEdit", "Edit Student"},
    CommandName{"mnuDelete", "Delete Student"},
    CommandName{"mnuMarks", "Enter Grades"},
    CommandName{"mnuAttend", "Daily Attendance"},
    CommandName{"mnuattsumm", "Summary Attendance"},
    CommandName{"mnuTransfergrade", "Transfer Grade"},
    CommandName{"mnuEMarksT", "Edit Grades by Title"},
    CommandName{"mnuEMarksS", "Edit Grades by Student"},
    CommandName{"mnucat", "Grade Types"},
    CommandName{"mnuLetter", "Letter Values"},
    CommandName{"mnureorder", "Order of Grades"},
    CommandName{"mnuedaily", "Edit Daily Attendance"},
    CommandName{"mnuEAttend", "Edit Summary Attendance"},
    CommandName{"mnuDAttend", "Delete Summary Attendance"},
    CommandName{"mnuDMarks", "Delete Grades"},
    CommandName{"mnuindweights", "Weights of Items"},
    CommandName{"mnupercent", "Weights by Type"},
    CommandName{"mnupoints", "Points"},
    CommandName{"mnuPointsType", "Points and Types"},
    CommandName{"mnuoptions", "Weights and Rounding"},
    CommandName{"mnuprtgrade", "Weights and Rounding"},
    CommandName{"mnuVScreen", "All Information"},
    CommandName{"mnuimportnames", "Import Students"},
    CommandName{"mnugradesid", "Import Grades"},
    CommandName{"mnugradesname", "Import Grades"},
    CommandName{"mnuSchoolSystems", "School Systems"},
    CommandName{"mnupassenter", "Enter Password"},
    CommandName{"mnupasschange", "Change Password"},
    CommandName{"mnupassdelete", "Delete Password"},
};

template <typename Do>
void ForEachClass(Do&& act) {
  for (std::size_t slot = 1; slot < ClassWindows.size(); ++slot)
    if (ClassWindows[slot] && !ClassWindows[slot]->Tag.empty())
      act(*ClassWindows[slot], Classes[slot]);
}

// In a menu an ampersand marks a letter, so one of a title is written twice.
std::string ForMenu(std::string_view text) {
  std::string caption;
  for (const char c : text) caption += c == '&' ? std::string("&&") : std::string(1, c);
  return caption;
}

void ShowEntry(Menu& menu, std::string_view entry, std::string_view word, std::string_view step) {
  menu[entry].caption = std::string(word) + (step.empty() ? "" : " " + ForMenu(step));
  menu.Enable(entry, !step.empty());
}

void NoteInEveryClass(std::string_view name) {
  ForEachClass([&](Form1& window, const Class& c) {
    if (!window.Steps.HasBegun()) window.Steps.Begin(c);
    if (window.Steps.Note(name, c)) window.WorkWaits = true;
    if (window.SavedInCommand && c.Changed == kFalse) window.Steps.NoteSaved();
    window.SavedInCommand = false;
    window.ShowSteps();
  });
}

}  // namespace

StepOfCommand::StepOfCommand(std::string_view name) : name_(name) {
  NoteInEveryClass(kOtherChange);
}

StepOfCommand::~StepOfCommand() {
  NoteInEveryClass(name_);
}

std::string NameOfCommand(std::string_view entry, std::string_view caption) {
  const auto known =
      std::find_if(kCommandNames.begin(), kCommandNames.end(),
                   [&](const CommandName& command) { return command.entry == entry; });
  if (known != kCommandNames.end()) return std::string(known->name);
  std::string name(Trim(caption));
  name.erase(std::remove(name.begin(), name.end(), '&'), name.end());
  return name;
}

void Form1::ShowSteps() {
  ShowEntry(menu, "mnuundo", "&Undo", Steps.ToUndo());
  ShowEntry(menu, "mnuredo", "&Redo", Steps.ToRedo());
}

// The class is another one now; the cells that came back are marked until the next command.
void Form1::ShowStepTaken(std::string_view told, std::string_view step) {
  const Grid before = Grid1;
  WorkWaits = true;
  EnableClassMenus(true);
  if (Current().Method > 3) {
    menu.Enable("mnuoptions", false);
    menu.Enable("mnuprtgrade", false);
  }
  showform3();
  for (int row = Grid1.FixedRows; row < Grid1.Rows(); ++row) {
    for (int col = Grid1.FixedCols; col < Grid1.Cols(); ++col) {
      const bool there = row < before.Rows() && col < before.Cols();
      if (Grid1.TextMatrix(row, col) == (there ? before.TextMatrix(row, col) : std::string_view()))
        continue;
      if (came_back_.empty()) {
        Grid1.Row = row;
        Grid1.Col = col;
      }
      came_back_.emplace_back(row, col);
      Grid1.SetStyle(row, col, CellStyle::kInWork);
    }
  }
  ShowSteps();
  ShowStatus(std::string(told) + std::string(step) + ".");
}

void Form1::EndMarks() {
  for (const auto& [row, col] : came_back_)
    if (row < Grid1.Rows() && col < Grid1.Cols()) Grid1.SetStyle(row, col, CellStyle::kPlain);
  came_back_.clear();
}

void Form1::mnuundo_Click() {
  const std::string step(Steps.ToUndo());
  if (Steps.Undo(Current())) ShowStepTaken("Undone: ", step);
}

void Form1::mnuredo_Click() {
  const std::string step(Steps.ToRedo());
  if (Steps.Redo(Current())) ShowStepTaken("Done again: ", step);
}

}  // namespace tallyroll
