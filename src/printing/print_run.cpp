// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/print_run.h"

#include <algorithm>

#include "printing/page/report_choice.h"
#include "printing/reports/report_codes.h"
#include "printing/reports/reports.h"
#include "store/program_state.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

bool DrawPages(PrintTarget& printer, const PrintRange& range,
               const std::function<void(int page)>& progress) {
  for (int page = range.from_page; page <= range.to_page; ++page) {
    if (page > range.from_page) printer.NewPage();
    progress(page);
    if (Cancelled() || !RenderPage(printer, page) || Job.PrintFlag == kPrintCancelled) return false;
  }
  return true;
}

}  // namespace

bool PrintsLandscape() {
  return Job.ReportCode == kMonths;
}

void PrepareTarget(PrintTarget& target) {
  target.FontName = PrintsLandscape() ? "Times New Roman" : PrinterFontName;
  target.FontSize = PrintsLandscape() ? 9 : static_cast<double>(PrinterFontSize);
  SetupPage(target);
}

namespace {

bool LayOutAll() {
  const Report* report = FindReport(Job.ReportCode);
  const auto box = Platform().MakePrintBox(PrintsLandscape());
  if (!report || !box) return false;
  ClearPageTable();
  PrepareTarget(*box);
  if (!report->one_student) return LayOutRows(*box);
  return std::all_of(Choice.students.begin(), Choice.students.end(), [&](i16 student) {
    CurrentStudent = student;
    return LayOutRows(*box);
  });
}

}  // namespace

bool LayOutReport() {
  const bool done = LayOutAll();
  if (done && !Job.Notice.empty()) ShowMessage(Job.Notice);
  return done;
}

bool PrintPages(PrintTarget& printer, const PrintRange& range,
                const std::function<void(int page)>& progress) {
  const bool done = DrawPages(printer, range, progress);
  if (!done) printer.KillDoc();
  return printer.EndDoc() && done;
}

}  // namespace tallyroll
