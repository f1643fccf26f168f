// SPDX-License-Identifier: GPL-3.0-or-later
// Saving a class, and the question before it is closed.
#include "base/code_page.h"
#include "base/text.h"
#include "companion/change_history.h"
#include "companion/class_snapshots.h"
#include "companion/companion_at_save.h"
#include "insight/history_at_save.h"
#include "shell/recent_list.h"
#include "shell/shell_state.h"
#include "store/class_defaults.h"
#include "store/class_file.h"

namespace tallyroll {
namespace {

constexpr int kClosingRefused = -20;
constexpr int kSaveHelp = 120;
constexpr std::string_view kNewClassCaption = "NewClass ";

bool HasClassExtension(std::string_view path) {
  return path.size() >= 4 && UpperCase(path.substr(path.size() - 4)) == ".TYR";
}

FileDialogRequest SaveRequest(const std::string& title) {
  FileDialogRequest request;
  request.save = true;
  request.title = title;
  request.folder = LastFolder;
  request.filename = Current().FileName;
  request.filter = "Data Files (*.tyr)|*.TYR";
  request.default_extension = "TYR";
  request.overwrite_prompt = true;
  request.help_context = kSaveHelp;
  return request;
}

// Two windows of one file would overwrite each other's marks.
bool IsOpenElsewhere(std::string_view path) {
  for (int slot = 1; slot < MaxClassSlots; ++slot) {
    const Class& other = Classes[static_cast<std::size_t>(slot)];
    if (slot != CurrentClass && SameFile(other.FileName, path)) return true;
  }
  return false;
}

}  // namespace

std::string Form1::setsave() {
  SaveCancelled = false;
  for (;;) {
    const auto path = Platform().FileDialog(SaveRequest(save_title_));
    if (!path || path->empty()) {
      SaveCancelled = true;
      return "";
    }
    if (!HasClassExtension(*path))
      ShowMessage("The file extension must be .TYR", BoxIcon::kCritical);
    else if (IsOpenElsewhere(*path))
      ShowMessage(" The file is already open ");
    else
      return *path;
  }
}

bool Form1::Save() {
  const std::string from = CurrentClassFile().path;
  CompanionAtSave companion(from, Current().FileName);
  const HistoryAtSave history(from);
  WriteClassFile();
  if (FileErrorCode != 0) return false;
  // Before anything that writes to the companion: from here on it knows the class by its new bytes.
  std::string told = companion.Saved();
  told += history.Saved(Current().FileName);
  if (!told.empty()) ShowStatus(StatusText + told);
  Current().Changed = kFalse;
  Work.Drop(Current().FileName, from);
  SavedInCommand = true;
  AddRecentFile(Current().FileName);
  FrameForm->RebuildRecentMenu();
  return true;
}

// Once, when the class gets a password and its companion file shows marks already.
void Form1::AskToKeepMarks() {
  const std::string& path = Current().FileName;
  if (MayKeepMarks(path) || !KeepsMarks(path)) return;
  const bool keep =
      Ask("The history and the snapshots of this class are kept in its companion file, where they "
          "can be read without the password. Keep them?",
          BoxButtons::kYesNo, BoxIcon::kQuestion) == BoxAnswer::kYes;
  const std::string fault = keep ? AgreeToHistory(path, true) : ForgetMarks(path);
  if (!fault.empty())
    ShowMessage("The companion file could not be changed: " + fault + ".", BoxIcon::kExclamation);
}

void Form1::saveas() {
  const std::string path = setsave();
  if (SaveCancelled) {
    FileErrorCode = 0;
    if (!Current().FileName.empty())
      Caption = UpperCase(FileNameOf(PathForDisplay(Current().FileName)));
    else if (!Caption.starts_with(kNewClassCaption))
      Caption = std::string(kNewClassCaption) + Caption;
    return;
  }
  Current().FileName = path;
  Caption = UpperCase(FileNameOf(PathForDisplay(path)));
  LastFolder = FolderOf(path);
  Save();
}

// A class on its first save may replace a file of the same name; as "ty7" it makes the writer keep
// a copy of that file.
void Form1::mnusaveas_Click() {
  if (Current().FileName.empty() && Current().NumStudents > 0) Current().Magic = "ty7";
  save_title_ = "Save As";
  saveas();
}

void Form1::mnusave_Click() {
  if (Current().FileName.empty() && Current().NumStudents > 0) {
    saveas();
    EnableClassMenus(true);
  } else {
    Save();
  }
}

void Form1::AskToSave() {
  if (Current().Changed == kFalse) return;
  Screen->BringToFront(*this);
  SaveAnswer = Ask(Caption + " Data has been changed. Save File?  ", BoxButtons::kYesNoCancel,
                   BoxIcon::kQuestion);
  if (SaveAnswer != BoxAnswer::kYes) return;
  if (Current().FileName.empty())
    saveas();
  else
    Save();
}

// Only a save of this closing counts: an earlier one that failed has been told, and the class that
// it failed for is Changed.
bool Form1::QueryUnload() {
  if (Tag.empty()) return true;
  CurrentClass = static_cast<i16>(Slot());
  SaveCancelled = false;
  SaveAnswer = BoxAnswer::kOk;
  FileErrorCode = 0;
  AskToSave();
  OpenState = 0;
  const bool not_saved = SaveAnswer == BoxAnswer::kYes && SaveCancelled;
  if (SaveAnswer == BoxAnswer::kCancel || FileErrorCode != 0 || not_saved) {
    Screen->BringToFront(*this);
    if (FileErrorCode != 0) ShowStatus("The class stays open, because it was not saved.");
    OpenState = kClosingRefused;
    SaveAnswer = BoxAnswer::kCancel;
    FileErrorCode = 0;
    return false;
  }
  EnableClassMenus(false);
  Work.Drop(Current().FileName);
  ResetClassSlot();
  Current().SlotState = 0;
  return true;
}

}  // namespace tallyroll
