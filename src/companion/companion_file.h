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

// A companion, opened, whole, of today's layout and of this class; or why there is none.
struct Companion {
  std::unique_ptr<Database> database;  // null when there is none
  Fault fault;                         // empty where there is only nothing kept yet
  bool of_another_class = false;       // there is one, but it is not this class's

  explicit operator bool() const { return database != nullptr; }
};

// To read: a class beside which nothing was ever kept has none, and no fault. Where the folder may
// not be written, what is kept is read all the same.
Companion OpenCompanion(const std::string& class_path);
// To write: makes the file when it is missing.
Companion MakeCompanion(const std::string& class_path);

// The same while the teacher goes on working, for who was handed the class's mark.
struct ClassMark;
Companion MakeCompanionBehind(const std::string& class_path, const ClassMark& mark);

// Also that of another class: for those who move companions about.
Companion OpenCompanionOfAnyClass(const std::string& class_path);

// Whether it knows a class file of just these bytes.
bool KnowsFile(const Companion& companion, const std::string& class_path);
// From now on the companion knows the class by its file as it is on the disk. Answers why it could
// not be written down.
Fault KnowClass(Companion& companion, const std::string& class_path);

}  // namespace tallyroll
