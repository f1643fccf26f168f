// SPDX-License-Identifier: GPL-3.0-or-later
// By what a companion file knows its class again: the bytes of the class file at the last save, and
// who was in the class then.
#pragma once

#include <string>

namespace tallyroll {

struct ClassMark {
  std::string file;      // of the bytes; empty where there is no file
  std::string students;  // of each student in turn, kStudentMark digits; names are not kept
};

inline constexpr std::size_t kStudentMark = 16;

// Of the class file on the disk, and of the class that is open under that name, if there is one.
ClassMark MarkOf(const std::string& class_path);

// A file may be written by another program, or come back from a copy, and be the same class: at
// least half of the students of the larger class are in both.
bool IsSameClass(const ClassMark& kept, const ClassMark& now);

}  // namespace tallyroll
