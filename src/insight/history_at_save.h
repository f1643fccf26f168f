// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "store/records.h"

namespace tallyroll {

// Stands around one save of the class in work: made before the file is written, told afterwards
// that it was. What differs between the file that was and the file that is goes into the history,
// so no Portal knows of it.
class HistoryAtSave {
 public:
  // The file that the class was read from or saved to last; empty for a class that has none.
  explicit HistoryAtSave(const std::string& from);
  // Answers what the teacher should know; usually nothing.
  std::string Saved(const std::string& to) const;

 private:
  std::optional<Class> before_;
};

}  // namespace tallyroll
