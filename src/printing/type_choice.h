// SPDX-License-Identifier: GPL-3.0-or-later
// The two lists in which a teacher sees the grade types of a class, or ticks some of them.
#pragma once

#include <string>
#include <vector>

#include "platform/controls.h"

namespace tallyroll {

struct TypeChoice {
  ListBox all;   // what "all types" are
  ListBox some;  // those that are ticked count

  // The types that have a grade. What was ticked stays ticked.
  void Fill();
  // Shows one of the lists, or none.
  void Show(bool all_types, bool some_types);
  std::vector<std::string> Ticked() const;  // trimmed type codes

 private:
  std::vector<std::string> codes_;
};

}  // namespace tallyroll
