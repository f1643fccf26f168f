// SPDX-License-Identifier: GPL-3.0-or-later
// Grades from a text file: each line gives a student's key and marks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/csv_columns.h"
#include "store/records.h"

namespace tallyroll {

// OpenState: how a line names its student.
inline constexpr int kGradesById = 511;
inline constexpr int kGradesByName = 521;

CsvPurpose PurposeOf(int open_state);

struct GradeColumn {
  std::string title, code;         // empty when the file has no titles
  std::vector<std::string> marks;  // 1..NumStudents; empty for a student whom the file lacks
};

struct GradeFile {
  std::string refusal;  // why nothing can be taken, as the end of a sentence
  std::vector<GradeColumn> columns;
  std::vector<bool> found;  // 1..NumStudents: a line names the student
  int matched = 0;          // lines with a student of the class
  int skipped = 0;          // lines without
  int cut = 0;              // marks with more letters than a class holds
  bool cancelled = false;   // by the teacher: nothing is taken
  // Texts that the code page cannot hold, a line each; they are left out.
  std::vector<std::string> lacking;
};

// The marks for the students of the current class. Beside the key a line may also hold the other
// one, id or name, as exported files do. A name is "Ng, Ada" or "Ng Ada". Of several students with
// one key each gets one line. Marks stay as the file has them, letters of either case, unless the
// columns ask for capitals.
GradeFile ReadGradeText(std::string_view bytes, i16 mode, const CsvColumns& columns,
                        int open_state);

// Reads ImportFile by TextMode, with the boxes that tell why not.
GradeFile ReadGradeImport(int open_state);

}  // namespace tallyroll
