// SPDX-License-Identifier: GPL-3.0-or-later
// The classes that are open, for comparing them.
#pragma once

#include <string>
#include <vector>

#include "store/program_state.h"

namespace tallyroll {

bool IsOpen(int slot);
// The slots of the classes that are open.
std::vector<int> OpenSlots();

// The file name of each class; where two are equal, the folder too. A class that was never saved
// has the name of its window.
std::vector<std::string> ClassNames(const std::vector<int>& slots);

// Puts another class in work for as long as it lives.
class InClass {
 public:
  explicit InClass(int slot) : before_(CurrentClass) { CurrentClass = static_cast<i16>(slot); }
  ~InClass() { CurrentClass = before_; }
  InClass(const InClass&) = delete;
  InClass& operator=(const InClass&) = delete;

 private:
  i16 before_;
};

}  // namespace tallyroll
