// SPDX-License-Identifier: GPL-3.0-or-later
// A class window that notes what a Portal asks of it.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "platform/class_window.h"
#include "store/program_state.h"

namespace tallyroll {

class NotingWindow : public ClassWindowCalls {
 public:
  void showform3() override { ++refills; }
  void mnusave() override {
    ++saved;
    Current().Changed = kFalse;
  }
  void EnableEntry(std::string_view entry, bool on) override {
    if (on) {
      enabled.emplace_back(entry);
      disabled.erase(std::string(entry));
    } else {
      disabled.insert(std::string(entry));
    }
  }
  void ShowStatus(std::string_view text) override { status = text; }

  int refills = 0;
  int saved = 0;
  std::vector<std::string> enabled;  // in the order of the calls
  std::set<std::string> disabled;
  std::string status;
};

}  // namespace tallyroll
