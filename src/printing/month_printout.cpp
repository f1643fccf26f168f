// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/month_printout.h"

#include "printing/page/report_choice.h"
#include "printing/print_command.h"
#include "printing/print_run.h"
#include "printing/reports/report_codes.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

Shown ShownByMode() {
  return NameMode == 57 ? Shown::kName : NameMode == 73 ? Shown::kId : Shown::kNameAndId;
}

}  // namespace

// The students stay in their order: the Portal that asks has a row for each.
void PrintAttendanceMonth(double day) {
  Job.PrintTab = 1;
  Job.ReportCode = kMonths;
  ResetPrintJob();
  if (Job.PrintFlag != kPrintRuns) return;
  Choice = ReportChoice();
  Choice.shown = ShownByMode();
  Choice.month_first = Choice.month_last = day;
  PrintMessage message;
  if (LayOutReport() && Job.PageCount > 0) PrintOnPrinter(AllPages(), message);
}

}  // namespace tallyroll
