// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 1 and 11: all grades of all students, with their averages or without.
#include "base/text.h"
#include "printing/code_details.h"
#include "printing/report_choice.h"
#include "printing/report_writers.h"
#include "printing/student_rows.h"
#include "printing/type_totals_table.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kFullGradesTitle = " Full Grades Printout";
constexpr std::string_view kFullAverageTitle = " Full Grades and Computed Average Printout";
constexpr int kFullTitleColumn = 20;
constexpr int kFullGradesRule = 77;

std::string_view FullGradesTitle() {
  return ReportWithAverages() ? kFullAverageTitle : kFullGradesTitle;
}

bool EndsWithDetails() {
  return ReportWithAverages() || Choice.printcode;
}

void PrintStudent(ReportPass& pass) {
  PrintTarget& target = pass.target;
  Job.BlockLines = ReportWithAverages() ? 4 : 1;
  PrintStudentRows(pass);
  if (Choice.attendance1) PrintAttendanceRows(target);
  if (Choice.comment1) WrapComments(target);
  target.Print();
  if (ReportWithAverages()) PrintAverages(target);
  Rule(target);
  target.Print();
}

void WriteStudent(TextReport& text) {
  WriteStudentRows(text);
  if (Choice.attendance1) WriteAttendanceRows(text);
  if (Choice.comment1) WriteComments(text);
  if (ReportWithAverages())
    WriteAverages(text);
  else
    text.End();
  text.Row(kFullGradesRule, '_');
  text.End();
}

}  // namespace

void PrintFullGrades(ReportPass& pass) {
  PrintTarget& target = pass.target;
  PageHeader(pass, FullGradesTitle());
  Job.BlockLines = 2;
  std::vector<Section> sections = {{.rows = Current().NumStudents,
                                    .print =
                                        [&](int row) {
                                          CurrentStudent = static_cast<i16>(row);
                                          PrintStudent(pass);
                                        },
                                    .fit =
                                        [](ReportPass& at, int row) {
                                          CurrentStudent = static_cast<i16>(row);
                                          FitBlock(at);
                                        }}};
  if (EndsWithDetails()) {
    sections.push_back(CodeDetailsSection(target));
    sections.push_back(TypeTotalsSection(target));
  }
  PrintSections(pass, sections);
}

void WriteFullGrades(TextReport& text) {
  text.Tab(kFullTitleColumn);
  text.Line(FullGradesTitle());
  text.End();
  for (CurrentStudent = 1; CurrentStudent <= Current().NumStudents; ++CurrentStudent) {
    if (Cancelled()) return;
    WriteStudent(text);
  }
  if (!EndsWithDetails()) return;
  WriteCodeDetails(text);
  text.End();
  WriteTypeTotals(text);
}

}  // namespace tallyroll
