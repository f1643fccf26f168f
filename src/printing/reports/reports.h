// SPDX-License-Identifier: GPL-3.0-or-later
// The one list of reports: each has a writer for paper and one for text files, found by its code.
#pragma once

#include <string>

#include "printing/page/print_job.h"
#include "printing/page/text_report.h"

namespace tallyroll {

struct Report {
  int code = 0;
  i16 tab = 1;  // of the Printer Portal; the tabs 2 and 4 head a report with school and teacher
  // Draws some of the rows, or in the layout pass all of them with their page breaks.
  void (*print)(ReportPass& pass) = nullptr;
  // The whole report; the reports on one student write that of CurrentStudent.
  void (*write)(TextReport& text) = nullptr;
  bool one_student = false;
};

// Whether the class in work can have the reports with averages: grades, and a method to average
// them.
bool HasAverages();

// Null for a code that no report has.
const Report* FindReport(int code);

// Lays Job.ReportCode out on a target, for CurrentStudent where it is on one student, and goes on
// in the page table. False when it could not be done: the teacher was told, or cancelled.
bool LayOutRows(PrintTarget& target);

// Why the report of Job.ReportCode has nothing but its head; empty where it has something.
std::string NothingToReport();

// Draws a page of the table. False as above.
bool RenderPage(PrintTarget& target, int page);

// The report of Job.ReportCode as text; that of each of Choice.students where it is on one student.
// Empty when it could not be made, and the teacher was told or cancelled it.
std::string ReportText();
// Writes it. Returns 0 or the run-time error number; the teacher was told "File Error" then.
int SaveReportText(const std::string& path);

}  // namespace tallyroll
