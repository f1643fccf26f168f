// SPDX-License-Identifier: GPL-3.0-or-later
// How the Print Preview Portal hands a report over to be sent.
#include "platform/surroundings.h"
#include "printing/frmprintpre.h"
#include "printing/page/report_choice.h"
#include "printing/reports/reports.h"
#include "printing/running.h"
#include "printing/temp_file.h"

namespace tallyroll {

// One message goes to one address: it holds the student on screen and nobody else. CurrentStudent
// is that one afterwards.
bool frmprintpre::LeaveTextForMail() {
  const Running running(running_);
  Job.PrintFlag = kPrintRuns;
  const std::vector<i16> selected = Choice.students;
  const Report* report = FindReport(Job.ReportCode);
  if (report && report->one_student)
    Choice.students = {Job.PageStudent[static_cast<std::size_t>(pagenum.ListIndex) + 1]};
  const std::string text = ReportText();
  Choice.students = selected;
  if (Job.PrintFlag == kPrintCancelled || text.empty()) return false;
  if (WriteTempFile(text) == 0) return true;
  ShowMessage("File Error");
  return false;
}

void frmprintpre::eight_Click() {
  if (Busy() || Refuses("E-mail") || !LeaveTextForMail()) return;
  ShowPortal("frmSendMail");
  showscreen();
}

}  // namespace tallyroll
