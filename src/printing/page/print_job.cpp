// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page/print_job.h"

#include "base/number_text.h"
#include "base/text.h"
#include "platform/portal.h"
#include "platform/surroundings.h"
#include "printing/page/report_choice.h"
#include "store/program_state.h"
#include "store/settings.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::string_view kUsualMargin = "-500";

// Margins are negative: they narrow the page.
double Margin(std::string& stored) {
  if (stored.empty()) stored = kUsualMargin;
  return LeadingNumber(stored);
}

}  // namespace

PrintJob Job;
ReportChoice Choice;

void ClearPageTable() {
  Job.PageFirst = Job.PageLast = Job.WrapFirst = Job.WrapLast = {0};
  Job.PageStudent = {0};
  Job.FirstPage = {0};
  Job.PageCount = 0;
  Job.Notice.clear();
}

void NoteStudentOnPage(int student, int page) {
  const auto s = static_cast<std::size_t>(student);
  if (s >= Job.FirstPage.size()) Job.FirstPage.resize(s + 1);
  if (Job.FirstPage[s] == 0) Job.FirstPage[s] = page;
}

int PageOfStudent(int student) {
  const auto s = static_cast<std::size_t>(student);
  return s < Job.FirstPage.size() ? Job.FirstPage[s] : 0;
}

void ResetPrintJob() {
  ClearPageTable();
  Job.PrintFlag = kPrintWaits;
  ShowPortal("printmsg");
}

bool Cancelled() {
  if (Job.FirstPageAlone) return false;
  if (Job.AtEachRow) Job.AtEachRow();
  Platform().PumpEvents();
  return Job.PrintFlag == kPrintCancelled;
}

void SetupPage(PrintTarget& target) {
  target.ScaleLeft = Margin(MarginLeft);
  target.ScaleTop = Margin(MarginTop);
  Job.PageTextWidth = static_cast<int>(target.ScaleWidth + target.ScaleLeft + Margin(MarginRight));
  const int reserve = RoundToInt16(target.TextHeight("A") * kFootLines);
  Job.PageBottom =
      static_cast<int>(target.ScaleTop + target.ScaleHeight + Margin(MarginBottom)) - reserve;
  Job.CharUnit = Currency::FromDouble(target.TextWidth("N")).ToDouble();
}

std::string StudentLabel() {
  const Student& student = Current().Students[static_cast<std::size_t>(CurrentStudent)];
  std::string name =
      std::string(TrimRight(student.lastname)) + ", " + std::string(TrimRight(student.firstname));
  if (NameMode == 57) return name;
  if (NameMode == 73) return student.id;
  return student.id + " " + name;
}

std::string NextWord(std::string& text) {
  const std::size_t blank = text.find(' ');
  if (blank == std::string::npos) return {};
  std::string word = text.substr(0, blank + 1);
  text.erase(0, blank + 1);
  return word;
}

void ResetPrinting() {
  Job = PrintJob();
  Choice = ReportChoice();
}

}  // namespace tallyroll
