// SPDX-License-Identifier: GPL-3.0-or-later
// What another school system says by single marks of a class. A class file has no place for it, so
// its companion file keeps it.
#pragma once

#include <string>
#include <vector>

namespace tallyroll {

// In the class file's code page.
struct MarkComment {
  std::string student;  // the student's ID
  std::string grade;    // the title
  std::string mark;     // that was commented; the comment is not about another one
  std::string comment;

  friend bool operator==(const MarkComment&, const MarkComment&) = default;
};

// What is kept for a system, and why nothing can be; no fault where nothing was kept yet.
struct KeptMarkComments {
  std::vector<MarkComment> comments;
  std::string fault;
};
KeptMarkComments MarkComments(const std::string& class_path, const std::string& system);

// Keeps these, in the place of what was kept for the same student and grade; the others stay.
// Answers why it could not be done; empty when it was.
std::string KeepMarkComments(const std::string& class_path, const std::string& system,
                             const std::vector<MarkComment>& comments);

}  // namespace tallyroll
