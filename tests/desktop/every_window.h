// SPDX-License-Identifier: GPL-3.0-or-later
// Shows every Portal of the list, one after another, of a class with something in each.
#pragma once

#include <functional>
#include <string>

#include "tests/desktop/class_dialogs.h"

namespace tallyroll {

class EveryWindow : public ClassDialogs {
 protected:
  EveryWindow();

  // Calls `look` with each Portal's name and its window, which is shown as it opens. A Portal that
  // opens in several modes comes once for each: "frmdGrade-121".
  void ForEach(const std::function<void(const std::string&, PortalDialog&)>& look);
  // Where the forms are read from; empty: from the program.
  QString forms_folder;
  // How many windows the last walk came to.
  int walked = 0;

 private:
  void ShowOne(std::string_view name, int mode,
               const std::function<void(const std::string&, PortalDialog&)>& look);
};

}  // namespace tallyroll
