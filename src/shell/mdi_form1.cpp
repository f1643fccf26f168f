// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mdi_form1.h"

#include "platform/class_window.h"
#include "shell/frame_menu.h"
#include "shell/recent_list.h"
#include "shell/shell_state.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr int kOpenRecent = 9;
constexpr int kOpenByDialog = 20;
constexpr int kImportText = 501;

}  // namespace

MDIForm1::MDIForm1() : menu(MakeFrameMenu(*this)) {
  ShowRecentFiles(menu, true);
}

void MDIForm1::ClickMenu(std::string_view name) {
  if (!menu.Reachable(name)) return;
  EndStatus();
  if (const auto& click = menu[name].click) click();
}

// A window that got no class goes at once, and the one that was in front is in work again.
void MDIForm1::OpenClassWindow(int pending_action) {
  const auto before = static_cast<std::size_t>(CurrentClass);
  PendingAction = pending_action;
  ClassWindows[0] = std::make_unique<Form1>();
  Form1& window = *ClassWindows[0];
  window.Load();
  if (!window.Tag.empty()) {
    ShowRecentFiles(window.menu, false);
    Screen->ShowWindow(window);
    return;
  }
  ClassWindows[0].reset();
  if (ClassWindows[before]) ClassWindows[before]->Activate();
}

void MDIForm1::NewClass(int pending_action) {
  OpenClassWindow(pending_action);
}

void MDIForm1::mnuOpen_Click() {
  OpenClassWindow(kOpenByDialog);
}

void MDIForm1::mnuLoadText_Click() {
  OpenClassWindow(kImportText);
}

void MDIForm1::OpenRecent(std::string_view path) {
  RecentPick = path;
  OpenClassWindow(kOpenRecent);
}

void MDIForm1::mnuFileList_Click(int index) {
  OpenRecent(RecentFiles[static_cast<std::size_t>(index)]);
}

void MDIForm1::ShowStatus(std::string_view text) {
  StatusText = text;
  ++MessagesTold;
}

void MDIForm1::RebuildRecentMenu() {
  ShowRecentFiles(menu, true);
  for (const auto& window : ClassWindows)
    if (window) ShowRecentFiles(window->menu, false);
}

void MDIForm1::KeepWork(bool all) {
  for (std::size_t slot = 1; slot < ClassWindows.size(); ++slot) {
    Form1* const window = ClassWindows[slot].get();
    if (!window || window->Tag.empty() || !(all || window->WorkWaits)) continue;
    window->WorkWaits = false;
    if (const std::string told = window->Work.Keep(Classes[slot]); !told.empty())
      window->ShowStatus(told);
  }
}

bool MDIForm1::CloseWindow(Form1& window) {
  const auto before = static_cast<std::size_t>(CurrentClass);
  const int told_before = window.MessagesTold;
  if (!window.QueryUnload()) return false;
  // What its last save told outlives the window.
  const std::string told = window.MessagesTold != told_before ? window.StatusText : "";
  Screen->DestroyWindow(window);
  for (auto& each : ClassWindows)
    if (each.get() == &window) each.reset();
  // Whatever window closed, the class that was in work stays in work.
  if (ClassWindows[before]) CurrentClass = static_cast<i16>(before);
  RebuildRecentMenu();
  if (!told.empty()) ClassWindow().ShowStatus(told);
  return true;
}

void MDIForm1::mnucloseall_Click() {
  for (int slot = 1; slot < MaxClassSlots; ++slot) {
    const auto& window = ClassWindows[static_cast<std::size_t>(slot)];
    if (window && Classes[static_cast<std::size_t>(slot)].SlotState == 10) CloseWindow(*window);
  }
}

bool MDIForm1::QueryUnload() {
  for (const auto& window : ClassWindows)
    if (window && !CloseWindow(*window)) return false;
  return true;
}

void MDIForm1::Unload() {
  SaveProgramSettings();
}

void MDIForm1::mnuExit_Click() {
  if (!QueryUnload()) return;
  Unload();
  Screen->CloseFrame();
}

}  // namespace tallyroll
