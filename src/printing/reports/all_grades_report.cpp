// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 12 and 13: all grades of one student, a line each, with the average or without.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "printing/page/report_choice.h"
#include "printing/reports/grade_columns.h"
#include "printing/reports/report_writers.h"
#include "printing/reports/student_tail.h"
#include "printing/reports/type_totals_table.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kAllGradesAverageTitle = " All Grades/Average for ";
constexpr std::string_view kAllGradesTitle = " All Grades for ";
constexpr int kAllGradesRule = 80;

std::string GradeText(std::string_view text) {
  return std::string(Trim(text));
}

// ---- Which grades, in which order ----

bool IsWanted(int grade) {
  if (Choice.sort != TypeSort::kSomeTypes) return true;
  return std::find(Choice.types.begin(), Choice.types.end(), Trim(GradeInReport(grade).typecode)) !=
         Choice.types.end();
}

std::vector<int> GradesInOrder() {
  std::vector<int> grades;
  for (int i = 1; i <= GradeCount(Current()); ++i)
    if (IsWanted(i)) grades.push_back(i);
  if (Choice.sort == TypeSort::kNone) return grades;
  std::stable_sort(grades.begin(), grades.end(), [](int a, int b) {
    return Trim(GradeInReport(a).typecode) < Trim(GradeInReport(b).typecode);
  });
  return grades;
}

// ---- Columns: those of the rows stand a little beside their heads ----

constexpr std::array kAllGradesColumns = {
    GradeColumn{0, 0, 1, "TITLE", "", [](int i) { return GradeText(GradeInReport(i).title); }},
    GradeColumn{0.96, 0.96, 34, "CODE", "", [](int i) { return GradeText(GradeInReport(i).code); }},
    GradeColumn{1.1, 1.1, 40, "TP.", "",
                [](int i) { return GradeText(GradeInReport(i).typecode); }},
    GradeColumn{1.2, 1.2, 45, " DATE", "",
                [](int i) { return GradeText(GradeInReport(i).testdate); }},
    GradeColumn{1.44, 1.45, 58, "GRADE", "",
                [](int i) { return GradeText(MarkOf(StudentInReport(), i)); }},
    GradeColumn{1.61, 1.61, 66, "MAX.", "SCORE",
                [](int i) { return PlainNumberText(GradeInReport(i).mvalue); }},
};
constexpr GradeColumns kAllGradesTable{kAllGradesColumns, 1.79, 1.78, 74};

std::string AllGradesTitle() {
  return std::string(ReportWithAverages() ? kAllGradesAverageTitle : kAllGradesTitle) +
         StudentLabel();
}

Section GradesSection(PrintTarget& target, const std::vector<int>& grades) {
  const double base = GradeBase(target);
  const int comment_lines = LinesOfComment(target);
  return {.rows = static_cast<int>(grades.size()),
          .print =
              [&target, &grades, base](int row) {
                PrintGradeRow(target, kAllGradesTable, base,
                              grades[static_cast<std::size_t>(row) - 1]);
              },
          .head =
              [&target, base] {
                PrintGradeHead(target, kAllGradesTable, base);
                target.Print();
              },
          .head_lines = 3,
          .lines = [comment_lines](int) { return 1 + comment_lines; }};
}

}  // namespace

void PrintAllGrades(ReportPass& pass) {
  PrintTarget& target = pass.target;
  StudentHeader(pass, AllGradesTitle(), pass.first == 1);
  if (pass.first == 1) target.Print();
  const std::vector<int> grades = GradesInOrder();
  PrintSections(
      pass, {GradesSection(target, grades), TypeTotalsSection(target), StudentTailSection(pass)},
      true);
}

void WriteAllGrades(TextReport& text) {
  text.Row(kAllGradesRule, '=');
  text.Line(AllGradesTitle());
  text.End();
  WriteGradeHead(text, kAllGradesTable);
  for (const int grade : GradesInOrder()) WriteGradeRow(text, kAllGradesTable, grade);
  text.Line("   ");
  WriteTypeTotals(text);
  WriteStudentTail(text);
}

}  // namespace tallyroll
