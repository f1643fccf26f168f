// SPDX-License-Identifier: GPL-3.0-or-later
// What the grade file of another school system holds, whatever its format: one table of rows of
// grade, student, mark and comment. Text is in the class file's code page.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/currency.h"

namespace tallyroll {

struct ForeignGrade {
  std::string title;
  std::string shown;  // the title where a class file lacks characters of it; else empty
  std::string key;    // the other system's own identifier; empty where it gives none
  std::optional<Currency> maximum;
  std::string category;
  std::string date;       // "2026-09-01"; empty where there is none
  bool fraction = false;  // marks are parts of 1
  int column = 0;         // of the file, from 1; 0 where it has lines for grades
  int line = 1;
};

struct ForeignStudent {
  std::string key;  // the other system's own identifier
  std::string id;   // the school's
  std::string login;
  std::string email;
  std::string lastname, firstname;
  int line = 0;
};

// A cell in which something stands. A number is written plainly, "EXC" is excused; a letter and a
// special mark stand as they are.
struct ForeignMark {
  int student = 0;  // index into the table's students
  int grade = 0;    // and grades
  std::string text;
  std::string comment;
  int line = 0;
  int column = 0;  // of the file, from 1
};

// What cannot be used.
struct ForeignFault {
  int line = 0;
  int column = 0;    // 0 is the whole line
  std::string cell;  // as it stands in the file
  std::string reason;
};

struct ForeignTable {
  std::string refusal;  // why nothing can be used, as the end of a sentence
  std::string course;   // the other system's identifier of the course
  std::string section;  // what the class is called
  std::string school;
  std::string today;  // "2026-09-01", for what needs a date and has none
  std::vector<ForeignGrade> grades;
  std::vector<ForeignStudent> students;
  std::vector<ForeignMark> marks;
  std::vector<ForeignFault> faults;
  std::vector<std::string> notes;  // what the file has and a class has no place for
};

// "C5" as spreadsheets name a cell; "line 5" for a whole line.
std::string CellName(int line, int column);

}  // namespace tallyroll
