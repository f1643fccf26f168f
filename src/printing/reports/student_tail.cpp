// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/student_tail.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "printing/page/paper_line.h"
#include "printing/page/report_choice.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kLastLines = 4;  // for the signature, whether there is one or not
constexpr int kAverageLines = 2;

void PrintClose(PrintTarget& target) {
  target.Print();
  if (ReportWithAverages()) PrintAverages(target);
  if (Choice.parentsig) PrintParentSignature(target);
}

int LinesOfClose() {
  return 1 + (ReportWithAverages() ? kAverageLines : 0) + kLastLines;
}

int LinesAheadOfComment() {
  return 1 + (Choice.attendance1 ? LinesOfAttendance() : 0);
}

}  // namespace

int LinesOfComment(const PrintTarget& target) {
  if (!Choice.comment1) return 1;
  const auto length = static_cast<double>(TrimRight(StudentInReport().comments).size());
  const double in_line = target.ScaleWidth / std::max(Job.CharUnit, 1.0);
  return static_cast<int>((length + 50) / in_line + 1);
}

Section StudentTailSection(ReportPass& pass) {
  std::vector<std::string> comment;
  if (Choice.comment1) comment = WrappedComment(pass.target);
  const auto lines = static_cast<int>(comment.size());
  const int rows = std::max(lines, 1);
  return {.rows = rows,
          .print =
              [&target = pass.target, comment = std::move(comment), rows](int row) {
                if (row == 1) {
                  target.Print();
                  if (Choice.attendance1) PrintAttendanceRows(target);
                }
                if (!comment.empty()) PrintLine(target, comment[static_cast<std::size_t>(row) - 1]);
                if (row == rows) PrintClose(target);
              },
          .lines =
              [lines, rows](int row) {
                if (row == 1) return LinesAheadOfComment() + lines + LinesOfClose();
                return 1 + (row == rows ? LinesOfClose() : 0);
              }};
}

void WriteStudentTail(TextReport& text) {
  text.Line("    ");
  if (Choice.attendance1) WriteAttendanceRows(text);
  if (Choice.comment1) WriteComments(text);
  if (ReportWithAverages()) WriteAverages(text);
  if (Choice.parentsig) WriteParentSignature(text);
}

}  // namespace tallyroll
