// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/current_window.h"

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

}  // namespace

ClassWindowCalls& CurrentWindow() {
  return forwarder;
}

}  // namespace tallyroll
