// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of companion files when a class is opened and saved. What is kept beside a file
// belongs to the class that was in it, and never to another one that is saved over it.
#pragma once

#include <string>

#include "companion/database.h"

namespace tallyroll {

// Stands around one save of the class in work: made before the file is written, told afterwards
// that it was.
class CompanionAtSave {
 public:
  // The file that the class was read from or saved to last, empty for a class that has none; and
  // the one it is saved to now.
  CompanionAtSave(std::string from, std::string to);

  // The companion knows the class by its new bytes. Under a new name a copy goes along; what stood
  // there for another class is put aside first. Answers what the teacher should know; usually
  // nothing.
  std::string Saved();

 private:
  void PutAside();
  void TakeAlong();
  void TellFault(const Fault& fault);

  std::string from_, to_;
  bool ours_ = false;     // what stands beside `from` is of this class
  bool strange_ = false;  // it is of another class
  bool off_ = false;
  std::string told_;
};

// For a class that was just opened: what the status bar tells of its companion file, usually
// nothing. "The companion file MATH.tyx is off: it is damaged." That of a class file which was
// renamed meanwhile gets the new name, too.
std::string TakeUpCompanion(const std::string& class_path);

}  // namespace tallyroll
