// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/class_toolbar.h"

#include "shell/shell_state.h"

namespace tallyroll {

std::vector<ToolButton> MakeClassToolbar(Form1& window) {
  const auto entry = [&window](std::string_view name) {
    return [&window, name] {
      const std::function<void()> click = window.menu[name].click;  // Exit destroys the window
      click();
    };
  };
  return {
      {"New", "New Class by the Wizard", entry("mnuwizard")},
      {"Open", "Open a Class", entry("mnuOpen")},
      {"Save", "Save this Class", entry("mnusave")},
      {},
      {"Student", "Add Students", entry("mnuAdd")},
      {"Roster", "Edit Students", entry("mnuEdit")},
      {"Grades", "Enter Grades", entry("mnuMarks")},
      {"Cgrades", "Edit Grades", entry("mnuEMarksT")},
      {"Attendance", "Enter Daily Attendance", entry("mnuAttend")},
      {"Eatt", "Edit Daily Attendance", entry("mnuedaily")},
      {"View", "All Information on a Student", entry("mnuVScreen")},
      {"Print", "Print", [&window] { Screen->PopUpMenu(window, "mnuPrint"); }},
      {"Average", "Make Up Grades", [&window] { window.mnuAverage_Click(); }},
      {"Graph", "Statistics and Graph", entry("mnuStatistic")},
      {"Exit", "Leave Tallyroll", entry("mnuExit")},
      {"Help", "Help", entry("CommandsItem")},
  };
}

}  // namespace tallyroll
