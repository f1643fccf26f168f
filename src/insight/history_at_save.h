// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "store/safe_file.h"

namespace tallyroll {

// Stands around one save of the class in work: made before the file is written, told afterwards
// that it was. What differs between the file that was and the file that is goes into the history,
// and the class itself into the snapshots, so no Portal knows of either.
class HistoryAtSave {
 public:
  // The file that the class was read from or saved to last; empty for a class that has none.
  explicit HistoryAtSave(const std::string& from);
  // Answers what the teacher should know; usually nothing.
  std::string Saved(const std::string& to) const;

 private:
  std::string Keep(const std::string& to) const;
  bool IsAnother(const std::string& after) const;

  FileContents before_;
};

// Whether the class in work may show marks in its companion file: always without a password, with
// one when the teacher agreed.
bool MayKeepMarks(const std::string& class_path);

}  // namespace tallyroll
