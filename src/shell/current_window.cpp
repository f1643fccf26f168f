// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/current_window.h"

#include <string>
#include <vector>

#include "analysis/open_classes.h"
#include "base/number_text.h"
#include "shell/shell_state.h"

namespace tallyroll {
namespace {

Form1* Window() {
  return ClassWindows[static_cast<std::size_t>(CurrentClass)].get();
}

class Forwarder : public ClassWindowCalls {
 public:
  void showform3() override {
    if (Form1* window = Window()) window->showform3();
  }
  void mnusave() override {
    if (Form1* window = Window()) window->mnusave_Click();
  }
  void EnableClassMenus(bool on) override {
    if (Form1* window = Window()) window->EnableClassMenus(on);
  }
  void EnableEntry(std::string_view entry, bool on) override {
    if (Form1* window = Window()) window->menu.Enable(entry, on);
  }
  void ShowStatus(std::string_view text) override {
    if (Form1* window = Window())
      window->ShowStatus(text);
    else if (FrameForm)
      FrameForm->ShowStatus(text);
  }
};

Forwarder forwarder;

constexpr int kListedWindows = 5;

// A slot is taken while its class is still being read; without a window it is not listed.
std::vector<int> SlotsWithWindow() {
  std::vector<int> slots;
  for (const int slot : OpenSlots()) {
    const Form1* const window = ClassWindows[static_cast<std::size_t>(slot)].get();
    if (window != nullptr && !window->Tag.empty()) slots.push_back(slot);
  }
  return slots;
}

std::string ListCaption(int place, const std::string& name) {
  std::string caption = "&" + PlainNumberText(place + 1) + ". ";
  for (const char c : name) caption += c == '&' ? "&&" : std::string(1, c);
  return caption;
}

}  // namespace

ClassWindowCalls& CurrentWindow() {
  return forwarder;
}

void ListOpenWindows() {
  const std::vector<int> slots = SlotsWithWindow();
  const std::vector<std::string> names = ClassNames(slots);
  for (const int own : slots) {
    Menu& menu = ClassWindows[static_cast<std::size_t>(own)]->menu;
    for (int place = 0; place < kListedWindows; ++place) {
      const auto i = static_cast<std::size_t>(place);
      MenuEntry& entry = menu["mnuWindowList" + PlainNumberText(place)];
      entry.visible = i < slots.size();
      if (!entry.visible) continue;
      entry.caption = ListCaption(place, names[i]);
      entry.checked = slots[i] == own;
    }
  }
}

void BringListedWindow(int place) {
  const std::vector<int> slots = SlotsWithWindow();
  const auto i = static_cast<std::size_t>(place);
  if (i < slots.size()) Screen->BringToFront(*ClassWindows[static_cast<std::size_t>(slots[i])]);
}

}  // namespace tallyroll
