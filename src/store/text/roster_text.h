// SPDX-License-Identifier: GPL-3.0-or-later
// The students that a text file holds.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/csv_columns.h"
#include "store/records.h"

namespace tallyroll {

// "Ng, Ada" or "Ng Ada" into the two names of a student. The first name takes what the two may
// have together; an empty one becomes "-".
void SplitStudentName(std::string_view name, Student& student);

// A field of a student stands on one line.
std::string OnOneLine(std::string_view text);

struct TextRoster {
  std::string refusal;            // why nothing can be taken, as the end of a sentence
  std::vector<Student> students;  // the eleven fields of each
  // Values that the code page cannot hold, a line each; their fields stay empty.
  std::vector<std::string> lacking;
};

// Lines in which nothing stands are passed over. `columns` serves comma-separated values alone;
// without any the titles of the file tell.
TextRoster ReadRosterText(std::string_view bytes, i16 mode, const CsvColumns& columns = {});

}  // namespace tallyroll
