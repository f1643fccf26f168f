// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo, as a command of the class window sees them.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

// While a command runs. What it did to any open class becomes a step of that class under the
// command's name. The window that ran it may be gone by then.
class StepOfCommand {
 public:
  explicit StepOfCommand(std::string_view name);
  ~StepOfCommand();
  StepOfCommand(const StepOfCommand&) = delete;
  StepOfCommand& operator=(const StepOfCommand&) = delete;

 private:
  std::string name_;
};

// What the steps of a menu entry are called; its caption where nothing better is known.
std::string NameOfCommand(std::string_view entry, std::string_view caption);

}  // namespace tallyroll
