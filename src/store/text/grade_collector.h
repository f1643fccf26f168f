// SPDX-License-Identifier: GPL-3.0-or-later
// Collects the grades of a text file in columns.
#pragma once

#include <string_view>

#include "store/text/grade_file.h"
#include "store/text/source_text.h"

namespace tallyroll {

// A line of the file that names this student, or none.
void CountLine(int student, GradeFile& file);

// A text of the file: its line, its place there, and what it comes to.
struct GradePiece {
  int line = 0;
  std::string_view raw;
  std::string_view text;
};

// A text with a character that a class file lacks is left out and listed, not changed.
class GradeCollector {
 public:
  GradeCollector(const SourceText& source, GradeFile& file) : source_(source), file_(file) {}

  // Columns count from 0. False when the text is left out.
  bool Title(std::size_t column, const GradePiece& piece);
  bool Code(std::size_t column, const GradePiece& piece);
  void Mark(std::size_t column, int student, const GradePiece& piece);

 private:
  bool Take(std::string_view what, std::size_t column, const GradePiece& piece, std::string& into);
  GradeColumn& At(std::size_t column);

  const SourceText& source_;
  GradeFile& file_;
};

}  // namespace tallyroll
