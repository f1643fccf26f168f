// SPDX-License-Identifier: GPL-3.0-or-later
// The identifiers by which another school system knows the students and grades of a class, kept in
// its companion file.
#pragma once

#include <string>
#include <vector>

namespace tallyroll {

// In the class file's code page.
struct ForeignId {
  std::string kind;     // "student", "grade", "course"
  std::string own;      // a student's ID, a grade's title; empty for the course
  std::string foreign;  // what the other system calls it

  friend bool operator==(const ForeignId&, const ForeignId&) = default;
};

// What is kept for a system, and why nothing can be; no fault where nothing was kept yet.
struct KeptForeignIds {
  std::vector<ForeignId> ids;
  std::string fault;
};
KeptForeignIds ForeignIds(const std::string& class_path, const std::string& system);

// Keeps these, in the place of what was kept for the same student or grade; the others stay.
// Answers why it could not be done; empty when it was.
std::string KeepForeignIds(const std::string& class_path, const std::string& system,
                           const std::vector<ForeignId>& ids);

}  // namespace tallyroll
