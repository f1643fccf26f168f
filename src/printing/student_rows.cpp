// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/student_rows.h"

#include <algorithm>
#include <functional>
#include <string>

#include "base/text.h"
#include "grades/marks.h"
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

// A grade stands in a row while a whole column is left at the pen.
void FindRows() {
  const double column = kColumn * Job.CharUnit;
  const int count = GradeCount(Current());
  int in_row = 0;
  while (Job.PageTextWidth - column * in_row >= column) ++in_row;
  in_row = std::max(in_row, 1);
  for (int first = 1; first <= count; first += in_row) {
    Job.WrapFirst.push_back(static_cast<i16>(first));
    Job.WrapLast.push_back(static_cast<i16>(std::min(first + in_row - 1, count)));
  }
}

void PrintLine(PrintTarget& target, int first, int last, const TextOfGrade& text) {
  for (int i = first; i <= last; ++i) {
    target.CurrentX = kColumn * Job.CharUnit * (i - first);
    target.PrintOpen(text(i));
  }
  target.Print();
}

void WriteLine(TextReport& text, int first, int last, const TextOfGrade& part) {
  for (int i = first; i <= last; ++i) {
    text.Tab(1 + kTextColumn * (i - first));
    text.Put(part(i));
  }
  text.End();
}

}  // namespace

void PrintStudentRows(ReportPass& pass) {
  if (pass.recording && Job.WrapFirst.size() == 1) FindRows();
  pass.target.Print(StudentLabel());
  for (std::size_t row = 1; row < Job.WrapFirst.size(); ++row) {
    PrintLine(pass.target, Job.WrapFirst[row], Job.WrapLast[row], CodeOf);
    PrintLine(pass.target, Job.WrapFirst[row], Job.WrapLast[row], MarkInReport);
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
