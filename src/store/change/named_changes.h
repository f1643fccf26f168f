// SPDX-License-Identifier: GPL-3.0-or-later
// The difference of two states of a class in the words of a teacher: whose mark, which field, what
// it was and what it is.
#pragma once

#include <string>
#include <vector>

#include "store/records.h"

namespace tallyroll {

// Texts are trimmed, in the class file's code page.
struct NamedChange {
  std::string student;  // ID; empty where no student is concerned
  std::string name;     // of the student
  std::string grade;    // title; empty where no grade is concerned
  std::string code;     // of the grade
  std::string field;    // the record's own name for it, or kMarkField
  std::string before;
  std::string after;

  friend bool operator==(const NamedChange&, const NamedChange&) = default;
};

inline constexpr const char* kMarkField = "mark";
// The whole record: `before` is empty for one that was added, `after` for one that was deleted.
inline constexpr const char* kStudentField = "student";
inline constexpr const char* kGradeField = "grade";

// In the order of the students and grades as they stand after. Students are the same by ID, or by
// name where an ID is missing or stands twice; grades by title and code, or else by their place.
std::vector<NamedChange> ChangesBetween(const Class& before, const Class& after);

}  // namespace tallyroll
