// SPDX-License-Identifier: GPL-3.0-or-later
// What taking a file of another system would do to the class in work, a line each. The list is made
// here and nowhere else: it is shown, ticked, and carried out as it stands.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/short_text.h"
#include "exchange/formats/foreign_table.h"
#include "exchange/formats/formats.h"
#include "exchange/match_students.h"

namespace tallyroll {

enum class ChangeKind {
  kNewGrade,        // the class gets a grade
  kNewMark,         // where none stood: "NEW" or nothing
  kChangedMark,     // another one stood
  kMaximum,         // the file has another maximum score
  kUnknownStudent,  // a line about nobody of the class
  kDuplicate,       // a student or a grade stands twice
  kUnusable,        // a cell that means nothing here
  kSame,            // the mark is there already
};
inline constexpr std::array kChangeKinds = {ChangeKind::kNewGrade,       ChangeKind::kNewMark,
                                            ChangeKind::kChangedMark,    ChangeKind::kMaximum,
                                            ChangeKind::kUnknownStudent, ChangeKind::kDuplicate,
                                            ChangeKind::kUnusable,       ChangeKind::kSame};

// "new grade", "unknown student".
std::string_view ChangeKindText(ChangeKind kind);
// Whether it keeps the file from being taken until it is mended, chosen or left out.
bool Blocks(ChangeKind kind);

struct Change {
  ChangeKind kind = ChangeKind::kSame;
  int line = 0;     // of the file
  int column = 0;   // 0 is the whole line
  int grade = -1;   // index into the table's grades
  int row = -1;     // index into the table's students
  int student = 0;  // of the class
  ShortText before, after;
  std::string comment;  // that stands by the mark
  std::string reason;   // of what cannot be used, or what is to be known of the rest
  std::vector<StudentGuess> guesses;
  bool ticked = false;
};

// Who is meant by a line about nobody: by the table's student, a student of the class.
using StudentsByRow = std::map<int, int>;

struct ExchangePreview {
  std::string refusal;  // why nothing can be taken, as the end of a sentence
  ForeignTable table;
  std::vector<int> grade_of;    // by the table's grades: the class's; 0 is a new one, -1 none
  std::vector<int> student_of;  // by the table's students: the class's; 0 is nobody
  std::vector<Change> changes;  // grades first, then by the lines of the file

  int Count(ChangeKind kind) const;
  bool Blocked() const;
};

// Of the class in work. The identifiers of the system that its companion keeps are used.
ExchangePreview PreviewOf(ExchangeFormat format, ForeignTable table,
                          const StudentsByRow& chosen = {});
// Nothing but a refusal where the teacher cancelled it.
ExchangePreview PreviewOfFile(ExchangeFormat format, std::string_view bytes,
                              const StudentsByRow& chosen = {});

// What a line of the list says, in words.
std::string GradeTitleOf(const ExchangePreview& preview, const Change& change);
std::string StudentNameOf(const ExchangePreview& preview, const Change& change);

}  // namespace tallyroll
