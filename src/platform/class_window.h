// SPDX-License-Identifier: GPL-3.0-or-later
// The few calls that Portals and the class store make on the class window of the class in work.
#pragma once

#include <string_view>

namespace tallyroll {

class ClassWindowCalls {
 public:
  virtual ~ClassWindowCalls() = default;
  virtual void showform3() {}  // fill the grid again
  virtual void mnusave() {}    // File, Save
  virtual void EnableClassMenus(bool /*on*/) {}
  virtual void EnableEntry(std::string_view /*entry*/, bool /*on*/) {
  }                                                      // one menu entry by its name
  virtual void ShowStatus(std::string_view /*text*/) {}  // the status bar
};

// The window of CurrentClass. Where there is none (the command line), calls do nothing.
ClassWindowCalls& ClassWindow();
void SetClassWindow(ClassWindowCalls* window);

}  // namespace tallyroll
