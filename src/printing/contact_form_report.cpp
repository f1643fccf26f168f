// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 20 and 21: a block of six lines a student, for the whole class or for one.
#include "printing/paper_line.h"
#include "printing/report_writers.h"
#include "printing/sections.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::string_view kTitle = " Student Home Contact Form";
constexpr int kBlockLines = 7;
constexpr int kTextRule = 77;

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

const Student& StudentAt(int i) {
  return Current().Students[static_cast<std::size_t>(i)];
}

void PrintBlock(PrintTarget& target, const Student& student) {
  PutBlock(PaperSheet{target}, student);
  Rule(target);
  target.Print();
}

void WriteBlock(TextReport& text, const Student& student) {
  PutBlock(text, student);
  text.Row(kTextRule, '_');
  text.End();
}

}  // namespace

void PrintContactForms(ReportPass& pass) {
  PageHeader(pass, kTitle);
  PrintSections(pass, {{.rows = Current().NumStudents,
                        .print = [&](int row) { PrintBlock(pass.target, StudentAt(row)); },
                        .lines = [](int) { return kBlockLines; }}});
}

void WriteContactForms(TextReport& text) {
  text.Line(kTitle);
  text.End();
  for (int i = 1; i <= Current().NumStudents; ++i) WriteBlock(text, StudentAt(i));
}

void PrintOneContactForm(ReportPass& pass) {
  StudentHeader(pass, kTitle, true);
  PrintSections(
      pass,
      {{.rows = 1, .print = [&](int) { PrintBlock(pass.target, StudentAt(CurrentStudent)); }}},
      true);
}

void WriteOneContactForm(TextReport& text) {
  text.Line(kTitle);
  text.End();
  WriteBlock(text, StudentAt(CurrentStudent));
}

}  // namespace tallyroll
