// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 17 and 18: one student's grades summed by type, with the average or without.
#include <string>

#include "printing/reports/report_writers.h"
#include "printing/reports/student_tail.h"
#include "printing/reports/type_totals_table.h"

namespace tallyroll {
namespace {

constexpr std::string_view kSummaryAverageTitle = " Summary of Grades/Average for ";
constexpr std::string_view kSummaryTitle = " Summary of Grades for ";

std::string SummaryTitle() {
  return std::string(ReportWithAverages() ? kSummaryAverageTitle : kSummaryTitle) + StudentLabel();
}

}  // namespace

void PrintGradeSummary(ReportPass& pass) {
  StudentHeader(pass, SummaryTitle(), pass.first == 1);
  PrintSections(pass, {TypeTotalsSection(pass.target), StudentTailSection(pass)}, true);
}

void WriteGradeSummary(TextReport& text) {
  text.Row(80, '=');
  text.Line(SummaryTitle());
  text.End();
  WriteTypeTotals(text);
  WriteStudentTail(text);
}

}  // namespace tallyroll
