// SPDX-License-Identifier: GPL-3.0-or-later
// The file beside a class file that holds what the class file has no place for. The class is
// complete without it: a companion that is missing, damaged or out of reach costs nothing of it.
#pragma once

#include <optional>
#include <string>

#include "companion/database.h"

namespace tallyroll {

// "/classes/MATH.tyx" of "/classes/MATH.TYR".
std::string CompanionPath(const std::string& class_path);

// A companion, opened, whole and of today's layout; or why there is none.
struct Companion {
  std::unique_ptr<Database> database;  // null when there is none
  Fault fault;                         // empty where there is only nothing kept yet

  explicit operator bool() const { return database != nullptr; }
};

// To read: a class beside which nothing was ever kept has none, and no fault.
Companion OpenCompanion(const std::string& class_path);
// To write: makes the file when it is missing.
Companion MakeCompanion(const std::string& class_path);

}  // namespace tallyroll
