// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/grade_collector.h"

#include "base/number_text.h"
#include "base/text.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLongestMark = 5;

}  // namespace

void CountLine(int student, GradeFile& file) {
  ++(student > 0 ? file.matched : file.skipped);
  if (student > 0) file.found[static_cast<std::size_t>(student)] = true;
}

bool GradeCollector::Title(std::size_t column, const GradePiece& piece) {
  return Take("title", column, piece, At(column).title);
}

bool GradeCollector::Code(std::size_t column, const GradePiece& piece) {
  return Take("code", column, piece, At(column).code);
}

void GradeCollector::Mark(std::size_t column, int student, const GradePiece& piece) {
  std::string& mark = At(column).marks[static_cast<std::size_t>(student)];
  if (Take("grade", column, piece, mark) && mark.size() > kLongestMark) ++file_.cut;
}

bool GradeCollector::Take(std::string_view what, std::size_t column, const GradePiece& piece,
                          std::string& into) {
  if (source_.Holds(piece.raw)) {
    into = Trim(piece.text);
    return true;
  }
  file_.lacking.push_back("Line " + PlainNumberText(piece.line) + ", " + std::string(what) + " " +
                          PlainNumberText(static_cast<std::int64_t>(column) + 1) + ": " +
                          source_.Shown(piece.raw));
  return false;
}

GradeColumn& GradeCollector::At(std::size_t column) {
  while (file_.columns.size() <= column) {
    file_.columns.emplace_back();
    file_.columns.back().marks.resize(static_cast<std::size_t>(Current().NumStudents) + 1);
  }
  return file_.columns[column];
}

}  // namespace tallyroll
