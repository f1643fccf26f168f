// SPDX-License-Identifier: GPL-3.0-or-later
// The class as it is worked on and not yet saved, kept in its companion file in case the program or
// the computer stops.
#pragma once

#include <string>

namespace tallyroll {

struct WorkingCopy {
  std::string time;    // when it was kept, "2026-09-01 10:15:00"; empty where there is none
  std::string bytes;   // as its class file would be
  bool newer = false;  // than the class file
};

// Keeps the copy behind the teacher's back, in the place of the one before. FaultBehind tells why
// it could not be done.
void KeepWorkingCopy(const std::string& class_path, const std::string& time, std::string bytes);

// None where none can be read.
WorkingCopy WorkingCopyOf(const std::string& class_path);
// Answers why it could not be done; empty when it was.
std::string DropWorkingCopy(const std::string& class_path);

}  // namespace tallyroll
