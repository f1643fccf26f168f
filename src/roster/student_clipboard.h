// SPDX-License-Identifier: GPL-3.0-or-later
// A student as text on the clipboard ("3z"): how a student changes class.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/records.h"

namespace tallyroll {

// What the clipboard holds of a student: the fields, and the lists of the class it came from.
struct StudentText {
  Student fields;  // its lists are those below
  std::vector<std::string> marks;
  std::vector<std::string> days;
  struct Summary {
    std::string absent, late, detail;
  };
  std::vector<Summary> summaries;
};

// Every line is closed by a carriage return. Without `all` the lists hold what a new student has.
std::string StudentOnClipboard(const Student& student, bool all);

bool HoldsStudent(std::string_view clipboard);
// Nothing when lines are missing, counts are none or too large, or a text is longer than a class
// file can hold. Any of the usual line ends closes a line.
std::optional<StudentText> ReadStudent(std::string_view clipboard);

// Puts the lists into a new student of the current class, item by item as far as both reach.
void TakeLists(const StudentText& text, Student& student);

}  // namespace tallyroll
