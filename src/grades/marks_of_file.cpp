// SPDX-License-Identifier: GPL-3.0-or-later
// How the Enter Grades Portal takes the grades of a text file.
#include "base/number_text.h"
#include "base/text.h"
#include "grades/frmMarks.h"
#include "grades/marks.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/class_format.h"
#include "store/program_state.h"
#include "store/student_names.h"
#include "store/text/box_list.h"

namespace tallyroll {

// The status bar tells what of the file found its place, for a line without one is passed over.
void frmMarks::TellImport() {
  if (imported_.columns.empty()) return;
  std::string told = "Students found in the file: " + PlainNumberText(imported_.matched);
  if (imported_.skipped > 0)
    told += "; lines that match no student: " + PlainNumberText(imported_.skipped);
  if (imported_.cut > 0)
    told += "; grades cut to five characters: " + PlainNumberText(imported_.cut);
  if (imported_.columns.size() > 1)
    told += "; grades side by side: " +
            PlainNumberText(static_cast<std::int64_t>(imported_.columns.size()));
  ClassWindow().ShowStatus(told + ".");
}

void frmMarks::TellNoGrades() {
  const Class& c = Current();
  std::vector<std::string> lines;
  for (std::size_t k = 0; k < imported_.columns.size(); ++k) {
    const std::string grade = imported_.columns.size() == 1
                                  ? ""
                                  : ", grade " + PlainNumberText(static_cast<std::int64_t>(k) + 1);
    for (int i = 1; i <= c.NumStudents; ++i) {
      const auto student = static_cast<std::size_t>(i);
      const std::string_view mark = Left(imported_.columns[k].marks[student], kLongestMark);
      if (!mark.empty() && !IsGrade(mark))
        lines.push_back(PlainName(c.Students[student]) + grade + ": " + std::string(mark));
    }
  }
  if (lines.empty()) return;
  ShowMessage(
      "These marks of the file are no grades as they stand. Of each only the number that it begins "
      "with counts, otherwise 0; letters count in capitals." +
          BoxList(lines),
      BoxIcon::kInformation);
}

// Grade after grade, as they stand side by side in the file. A student whom it lacks has none yet.
void frmMarks::FillFromFile() {
  if (next_import_ == imported_.columns.end()) return;
  const GradeColumn& column = *next_import_++;
  title.Text = Left(column.title, kLongestText);
  code.Text = Left(column.code, static_cast<std::size_t>(code.MaxLength));
  for (int i = 1; i < Grid1.Rows(); ++i) {
    const auto student = static_cast<std::size_t>(i);
    SetMarkCell(i, imported_.found[student] ? Left(column.marks[student], kLongestMark) : kNewMark);
  }
  DataEntered = true;
}

}  // namespace tallyroll
