// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/reports.h"

#include <algorithm>
#include <array>
#include <functional>

#include "base/run_time_error.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "printing/page/page_frame.h"
#include "printing/page/report_choice.h"
#include "printing/page/report_work.h"
#include "printing/reports/report_codes.h"
#include "printing/reports/report_writers.h"
#include "store/class_file.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/settings.h"
#include "store/text/saved_text.h"

namespace tallyroll {
namespace {

constexpr std::array kReports = {
    Report{1, 1, PrintFullGrades, WriteFullGrades},
    Report{2, 1, PrintMissingForClass, WriteMissingForClass},
    Report{3, 1, PrintRollBook, WriteRollBook},
    Report{4, 1, PrintRollBook, WriteRollBook},
    Report{8, 1, PrintAttendanceMonths, WriteAttendanceMonths},
    Report{9, 1, PrintOneSummary, WriteOneSummary},
    Report{10, 1, PrintOneGrade, WriteOneGrade},
    Report{11, 4, PrintFullGrades, WriteFullGrades},
    Report{12, 4, PrintAllGrades, WriteAllGrades, true},
    Report{13, 2, PrintAllGrades, WriteAllGrades, true},
    Report{14, 2, PrintMissingForStudent, WriteMissingForStudent, true},
    Report{15, 2, PrintStudentAttendance, WriteStudentAttendance, true},
    Report{16, 1, PrintAllSummaries, WriteAllSummaries},
    Report{17, 2, PrintGradeSummary, WriteGradeSummary, true},
    Report{18, 4, PrintGradeSummary, WriteGradeSummary, true},
    Report{19, 3, PrintRoster, WriteRoster},
    Report{20, 3, PrintContactForms, WriteContactForms},
    Report{21, 3, PrintOneContactForm, WriteOneContactForm, true},
    Report{22, 3, PrintClassInformation, WriteClassInformation},
    Report{23, 3, PrintRoster, WriteRoster},
    Report{24, 2, PrintAttendanceSummaryForStudent, WriteAttendanceSummaryForStudent, true},
    Report{25, 4, PrintExplained, WriteExplained, true},
};

// Runs a writer to its end. One that cannot go on tells the teacher why, or leaves it in the notice
// of a mere look, and the run is cancelled.
bool Run(const std::function<void()>& writer) {
  try {
    writer();
  } catch (const ReportEnds& end) {
    if (end.reason.empty()) return true;  // a block taller than a page: what was laid out stays
    if (Job.FirstPageAlone)
      Job.Notice = end.reason;
    else
      ShowMessage(end.reason, BoxIcon::kCritical);
    Job.PrintFlag = kPrintCancelled;
  }
  return Job.PrintFlag != kPrintCancelled;
}

}  // namespace

bool HasAverages() {
  constexpr i16 kNoMethod = 5;
  return Current().NumInstruments > 0 && Current().Method != kNoMethod;
}

const Report* FindReport(int code) {
  const auto found = std::find_if(kReports.begin(), kReports.end(),
                                  [code](const Report& report) { return report.code == code; });
  return found == kReports.end() ? nullptr : &*found;
}

bool LayOutRows(PrintTarget& target) {
  const Report* report = FindReport(Job.ReportCode);
  if (!report) return false;
  ReportPass pass{.target = target, .page = Job.PageCount + 1, .recording = true};
  if (report->one_student) NoteStudentOnPage(CurrentStudent, pass.page);
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

namespace {

// The reports on one student are a step each, the others row by row.
void WriteReport(const Report& report, TextReport& text) {
  if (!report.one_student) {
    const bool by_student = IsOneOf(report.code, {kFullGrades, kFullClass});
    const ReportWork work(by_student ? Current().NumStudents : 0);
    return report.write(text);
  }
  LongWork work("Writing the report", static_cast<int>(Choice.students.size()));
  for (const i16 student : Choice.students) {
    CurrentStudent = student;
    report.write(text);
    if (!work.Step()) Job.PrintFlag = kPrintCancelled;
    if (work.Cancelled()) return;
  }
}

}  // namespace

std::string ReportText() {
  const Report* report = FindReport(Job.ReportCode);
  TextReport text;
  const bool done = report && Run([&] { WriteReport(*report, text); });
  return done ? text.text() : std::string();
}

int SaveReportText(const std::string& path) {
  const std::string text = ReportText();
  if (Job.PrintFlag == kPrintCancelled) return 0;
  const int error = ReplaceFile(path, EncodedText(text, SavedTextEncoding), OldTail::kDrop);
  if (error != 0)
    ShowMessage("File Error");
  else
    ClassWindow().ShowStatus(SavedText(path));
  return error;
}

}  // namespace tallyroll
