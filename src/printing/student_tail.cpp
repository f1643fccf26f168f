// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/student_tail.h"

#include <algorithm>

#include "base/text.h"
#include "printing/report_choice.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kLastLines = 4;
constexpr double kSmallFont = 9;

double SignatureColumn(const PrintTarget& target) {
  return (target.FontSize < kSmallFont ? 37 : 33) * Job.CharUnit / 2;
}

void PrintTail(ReportPass& pass) {
  PrintTarget& target = pass.target;
  target.Print();
  if (Choice.attendance1) PrintAttendanceRows(target);
  if (Choice.comment1) WrapComments(target);
  target.Print();
  if (ReportWithAverages()) PrintAverages(target);
  if (Choice.parentsig) PrintParentSignature(target, SignatureColumn(target));
}

int TailLines(const PrintTarget& target) {
  int lines = kLastLines + LinesOfComment(target);
  if (Choice.attendance1) lines += 2 * std::max<int>(Current().NumSummaries, 1);
  if (ReportWithAverages()) lines += 2;
  return lines;
}

}  // namespace

int LinesOfComment(const PrintTarget& target) {
  if (!Choice.comment1) return 1;
  const auto length = static_cast<double>(TrimRight(StudentInReport().comments).size());
  const double in_line = target.ScaleWidth / std::max(Job.CharUnit, 1.0);
  return static_cast<int>((length + 50) / in_line + 1);
}

Section StudentTailSection(ReportPass& pass) {
  return {.rows = 1,
          .print = [&pass](int) { PrintTail(pass); },
          .lines = [&pass](int) { return TailLines(pass.target); }};
}

void WriteStudentTail(TextReport& text) {
  text.Line("    ");
  if (Choice.attendance1) WriteAttendanceRows(text);
  if (Choice.comment1) WriteComments(text);
  if (ReportWithAverages()) WriteAverages(text);
  if (Choice.parentsig) WriteParentSignature(text);
}

}  // namespace tallyroll
