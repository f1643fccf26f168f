// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/student_rows.h"

#include <algorithm>
#include <functional>
#include <string>

#include "base/text.h"
#include "grades/marks.h"
#include "printing/page/paper_line.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr double kColumn = 4;   // in CharUnits
constexpr int kTextColumn = 6;  // in characters: a mark has five
constexpr int kTextInRow = 13;  // within 80 characters
using TextOfGrade = std::function<std::string(int)>;

std::string CodeOf(int grade) {
  return std::string(Trim(GradeInReport(grade).code));
}

std::string MarkInReport(int grade) {
  return std::string(Trim(MarkOf(StudentInReport(), grade)));
}

}  // namespace

void FindStudentRows() {
  const double column = kColumn * Job.CharUnit;
  const int count = GradeCount(Current());
  int in_row = 0;
  while (Job.PageTextWidth - column * in_row >= column) ++in_row;
  in_row = std::max(in_row, 1);
  for (int first = 1; first <= count; first += in_row) {
    Job.WrapFirst.push_back(first);
    Job.WrapLast.push_back(std::min(first + in_row - 1, count));
  }
}

namespace {

void PrintCells(PrintTarget& target, int first, int last, const TextOfGrade& text) {
  PaperLine line(target);
  for (int i = first; i <= last; ++i) line.Put(kColumn * Job.CharUnit * (i - first), text(i));
  line.End();
}

void WriteLine(TextReport& text, int first, int last, const TextOfGrade& part) {
  for (int i = first; i <= last; ++i) {
    text.Tab(1 + kTextColumn * (i - first));
    text.Put(part(i));
  }
  text.End();
}

}  // namespace

void PrintStudentRows(PrintTarget& target, int rows) {
  PrintLine(target, StudentLabel());
  for (std::size_t row = 1; row <= static_cast<std::size_t>(rows); ++row) {
    PrintCells(target, Job.WrapFirst[row], Job.WrapLast[row], CodeOf);
    PrintCells(target, Job.WrapFirst[row], Job.WrapLast[row], MarkInReport);
    Job.BlockLines += 2;
  }
}

void WriteStudentRows(TextReport& text) {
  text.Line(StudentLabel());
  const int count = GradeCount(Current());
  for (int first = 1; first <= count; first += kTextInRow) {
    const int last = std::min(first + kTextInRow - 1, count);
    WriteLine(text, first, last, CodeOf);
    WriteLine(text, first, last, MarkInReport);
  }
}

}  // namespace tallyroll
