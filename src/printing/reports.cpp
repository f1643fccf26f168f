// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports.h"

#include <algorithm>
#include <array>
#include <functional>

#include "base/run_time_error.h"
#include "platform/surroundings.h"
#include "printing/page_frame.h"
#include "printing/report_choice.h"
#include "printing/report_writers.h"
#include "store/program_state.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

constexpr std::array kReports = {
    Report{1, PrintFullGrades, WriteFullGrades},
    Report{2, PrintMissingForClass, WriteMissingForClass},
    Report{10, PrintOneGrade, WriteOneGrade},
    Report{11, PrintFullGrades, WriteFullGrades},
    Report{12, PrintAllGrades, WriteAllGrades, true},
    Report{13, PrintAllGrades, WriteAllGrades, true},
    Report{14, PrintMissingForStudent, WriteMissingForStudent, true},
    Report{17, PrintGradeSummary, WriteGradeSummary, true},
    Report{18, PrintGradeSummary, WriteGradeSummary, true},
    Report{19, PrintRoster, WriteRoster},
    Report{20, PrintContactForms, WriteContactForms},
    Report{21, PrintOneContactForm, WriteOneContactForm, true},
    Report{22, PrintClassInformation, WriteClassInformation},
    Report{23, PrintRoster, WriteRoster},
};

// Runs a writer to its end. One that cannot go on tells the teacher why, and the run is cancelled.
bool Run(const std::function<void()>& writer) {
  try {
    writer();
  } catch (const ReportEnds& end) {
    if (end.reason.empty()) return true;  // a block taller than a page: what was laid out stays
    ShowMessage(end.reason);
    Job.PrintFlag = kPrintCancelled;
  }
  return Job.PrintFlag != kPrintCancelled;
}

}  // namespace

const Report* FindReport(int code) {
  const auto found = std::find_if(kReports.begin(), kReports.end(),
                                  [code](const Report& report) { return report.code == code; });
  return found == kReports.end() ? nullptr : &*found;
}

bool LayOutRows(PrintTarget& target, int first, int last) {
  const Report* report = FindReport(Job.ReportCode);
  if (!report) return false;
  ReportPass pass{target, first, last, Job.PageCount + 1, true};
  return Run([&] { report->print(pass); });
}

bool RenderPage(PrintTarget& target, int page) {
  const Report* report = FindReport(Job.ReportCode);
  if (!report || page < 1 || page > Job.PageCount) return false;
  const auto p = static_cast<std::size_t>(page);
  if (report->one_student) CurrentStudent = Job.PageStudent[p];
  ReportPass pass{target, Job.PageFirst[p], Job.PageLast[p], page, false};
  const bool done = Run([&] { report->print(pass); });
  if (!done && target.IsPrinter()) target.KillDoc();
  return done;
}

std::string ReportText() {
  const Report* report = FindReport(Job.ReportCode);
  TextReport text;
  const bool done = report && Run([&] {
                      if (!report->one_student) return report->write(text);
                      for (const i16 student : Choice.students) {
                        CurrentStudent = student;
                        report->write(text);
                      }
                    });
  return done ? text.text() : std::string();
}

int SaveReportText(const std::string& path) {
  const std::string text = ReportText();
  if (Job.PrintFlag == kPrintCancelled) return 0;
  const int error = ReplaceFile(path, text, OldTail::kDrop);
  if (error != 0) ShowMessage("File Error");
  return error;
}

}  // namespace tallyroll
