// SPDX-License-Identifier: GPL-3.0-or-later
// A table that a Portal wants printed as it stands.
#pragma once

#include <string>
#include <vector>

namespace tallyroll {

struct PrintedTable {
  std::string title;
  int first_column = 7;                  // where the first column stands, 1 being the left edge
  std::vector<std::string> head;         // of each column
  std::vector<std::string> second_head;  // the line below; may be empty
  std::vector<std::vector<std::string>> rows;
};

// Prints it, handed over by the shell: Portals that set weights know nothing of printing.
using TablePrinter = void (*)(const PrintedTable& table);
extern TablePrinter PrintTable;

}  // namespace tallyroll
