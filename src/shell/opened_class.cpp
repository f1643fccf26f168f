// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/opened_class.h"

#include "attendance/calendar.h"
#include "store/class_defaults.h"
#include "store/class_file.h"

namespace tallyroll {

// The conversion of an older file leaves the range summaries to be counted.
bool OpenClass(std::string_view path) {
  ResetClassSlot();
  Current().FileName = path;
  ReadClassFile();
  if (Current().FileName.empty()) return false;
  if (Current().Magic != "ty8") RecalculateRangeSummaries();
  return true;
}

}  // namespace tallyroll
