// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 20 and 21: a block of six lines a student, for the whole class or for one.
#include "printing/page/paper_line.h"
#include "printing/page/sections.h"
#include "printing/reports/report_writers.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::string_view kFormTitle = " Student Home Contact Form";
constexpr int kBlockLines = 7;
constexpr int kFormRule = 77;

// One walk for paper and text: `Sheet` has Put, Tab and End.
template <typename Sheet>
void PutBlock(Sheet&& sheet, const Student& student) {
  sheet.Put(PlainName(student));
  sheet.Tab(39);
  sheet.Put("ID: " + student.id);
  sheet.Tab(55);
  sheet.End("D.O.B.: " + student.birth);
  sheet.Put("Home Phone: " + student.phone);
  sheet.Tab(35);
  sheet.End("Parent's Work Phone: " + student.work);
  sheet.End("E-Mail Address: " + student.email);
  sheet.End("Parent's Name: " + student.parent);
  sheet.End("Address: " + student.address);
  sheet.Put(student.city);
  sheet.Tab(30);
  sheet.Put(student.state);
  sheet.Tab(40);
  sheet.End(student.zip);
}

const Student& StudentOfForm(int i) {
  return Current().Students[static_cast<std::size_t>(i)];
}

void PrintBlock(PrintTarget& target, const Student& student) {
  PutBlock(PaperSheet{target}, student);
  Rule(target);
  target.Print();
}

void WriteBlock(TextReport& text, const Student& student) {
  PutBlock(text, student);
  text.Row(kFormRule, '_');
  text.End();
}

}  // namespace

void PrintContactForms(ReportPass& pass) {
  PageHeader(pass, kFormTitle);
  PrintSections(pass, {{.rows = Current().NumStudents,
                        .print = [&](int row) { PrintBlock(pass.target, StudentOfForm(row)); },
                        .lines = [](int) { return kBlockLines; },
                        .student = StudentOfRow}});
}

void WriteContactForms(TextReport& text) {
  text.Line(kFormTitle);
  text.End();
  for (int i = 1; i <= Current().NumStudents; ++i) WriteBlock(text, StudentOfForm(i));
}

void PrintOneContactForm(ReportPass& pass) {
  StudentHeader(pass, kFormTitle, true);
  PrintSections(
      pass,
      {{.rows = 1, .print = [&](int) { PrintBlock(pass.target, StudentOfForm(CurrentStudent)); }}},
      true);
}

void WriteOneContactForm(TextReport& text) {
  text.Line(kFormTitle);
  text.End();
  WriteBlock(text, StudentOfForm(CurrentStudent));
}

}  // namespace tallyroll
