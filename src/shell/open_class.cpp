// SPDX-License-Identifier: GPL-3.0-or-later
// How a class window gets its class: a slot, and a file or a new class in it.
#include <filesystem>
#include <utility>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "companion/companion_at_save.h"
#include "companion/working_copy.h"
#include "platform/portal.h"
#include "shell/data_folder.h"
#include "shell/opened_class.h"
#include "shell/recent_list.h"
#include "shell/shell_state.h"
#include "store/change/earlier_state.h"
#include "store/class_defaults.h"
#include "store/class_file.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr int kOpening = 10;
constexpr int kOpenHelp = 110;

FileDialogRequest OpenRequest() {
  FileDialogRequest request;
  request.folder = LastFolder;
  request.filter = "Data Files (*.tyr)|*.TYR";
  request.default_extension = "TYR";
  request.file_must_exist = true;
  request.help_context = kOpenHelp;
  return request;
}

bool FileExists(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(path, ignored);
}

Class& InSlot(int slot) {
  return Classes[static_cast<std::size_t>(slot)];
}

}  // namespace

bool Form1::readyopen(std::string_view name) const {
  for (int slot = 1; slot < MaxClassSlots; ++slot)
    if (SameFile(InSlot(slot).FileName, name)) return true;
  return false;
}

void Form1::findfree() {
  SlotIndex = -1;
  for (int slot = 1; slot < MaxClassSlots && SlotIndex < 0; ++slot)
    if (InSlot(slot).SlotState == 0) SlotIndex = slot;
  if (SlotIndex < 0) return;
  InSlot(SlotIndex).SlotState = 10;
  if (ClassWindows[0].get() == this)
    std::swap(ClassWindows[0], ClassWindows[static_cast<std::size_t>(SlotIndex)]);
}

bool Form1::TakeSlot() {
  findfree();
  if (SlotIndex > 0) return true;
  ShowMessage(
      "You may only have " + PlainNumberText(MaxClassSlots - 1) + " class(es) open at a time.",
      BoxIcon::kCritical);
  return false;
}

void Form1::GiveSlotBack() {
  InSlot(SlotIndex).SlotState = 0;
  auto& window = ClassWindows[static_cast<std::size_t>(SlotIndex)];
  if (window.get() == this) std::swap(ClassWindows[0], window);
}

void Form1::OpenByDialog() {
  bool again = true;
  while (again && TakeSlot()) {
    again = false;
    OpenState = kOpening;
    PendingAction = 0;
    const auto path = EnterDataFolder() ? Platform().FileDialog(OpenRequest()) : std::nullopt;
    if (!path || path->empty()) {
      GiveSlotBack();
    } else if (readyopen(*path)) {
      GiveSlotBack();
      ShowMessage(" The file is already open ");
      again = true;
    } else {
      ReadInto(*path);
    }
  }
  OpenState = 0;
}

void Form1::OpenRecentPick() {
  if (!TakeSlot()) return;
  OpenState = kOpening;
  PendingAction = 0;
  if (!FileExists(RecentPick)) {
    ShowMessage("Tallyroll cannot open the file " + PathForDisplay(RecentPick));
    GiveSlotBack();
    RemoveRecentFile(RecentPick);
    FrameForm->RebuildRecentMenu();
  } else if (readyopen(RecentPick)) {
    GiveSlotBack();
    ShowMessage(" The file is already open ");
  } else {
    ReadInto(RecentPick);
  }
  OpenState = 0;
}

void Form1::ReadInto(std::string_view path) {
  CurrentClass = static_cast<i16>(SlotIndex);
  SweepLeftovers(std::string(path));
  if (OpenClass(path)) return ShowOpenedClass();
  GiveSlotBack();
  CurrentClass = static_cast<i16>(SlotIndex - 1);
}

void Form1::ShowOpenedClass() {
  const std::string path = Current().FileName;
  Caption = UpperCase(FileNameOf(PathForDisplay(path)));
  Tag = PlainNumberText(SlotIndex);
  AddRecentFile(path);
  FrameForm->RebuildRecentMenu();
  LastFolder = FolderOf(path);
  showform3();
  if (Current().NumStudents > 0) CheckNameMode();
  FileErrorCode = 0;
  if (Current().Magic != "ty8") {
    // Menus and grid follow the older data.
    EnableClassMenus(true);
    Activate();
  }
  if (const std::string told = TakeUpCompanion(path); !told.empty()) ShowStatus(told);
  OfferFoundWork();
}

// Never over the class file: what is kept is unsaved work, and a step that Undo takes back.
void Form1::OfferFoundWork() {
  if (!FindWork(Current())) return;
  ShowPortal("frmrecover");
  const FoundWork found = std::exchange(WorkFound, {});
  if (!found.taken) return (void)DropWorkingCopy(found.class_path);
  Steps.Begin(Current());
  if (const int error = PutState(found.bytes); error != 0) return ReportReadError(error);
  WorkWaits = Steps.Note("Recovered Work", Current());
  ShowSteps();
  EnableClassMenus(true);
  showform3();
  ShowStatus("The work that was not saved is in the class again. Save keeps it.");
}

void Form1::OpenNewClass(int pending_action) {
  if (!TakeSlot()) return;
  const i16 before = std::exchange(CurrentClass, static_cast<i16>(SlotIndex));
  StartNewClass();
  ShowPortal(pending_action == 15 ? "frmWizard" : "frmAdd");
  PendingAction = 0;
  if (Current().FileName.empty() && Current().NumStudents == 0) {
    GiveSlotBack();
    CurrentClass = before;
    return;
  }
  // Before the first save, so that the file holds the values too.
  SetNewClassDefaults();
  saveas();
  if (Current().FileName.empty()) Caption = "NewClass " + PlainNumberText(SlotIndex);
  Tag = PlainNumberText(SlotIndex);
  FrameForm->RebuildRecentMenu();
  EnableClassMenus(true);
  showform3();
  CheckNameMode();
}

}  // namespace tallyroll
