// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands/mail_contents.h"

#include <algorithm>
#include <utility>

#include "base/code_page.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/merged_letters.h"
#include "letters/mail/student_report.h"
#include "letters/text/letter_message.h"
#include "printing/page/report_choice.h"
#include "printing/reports/reports.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr i16 kMailAveragesTab = 4;

}  // namespace

std::string TakeMailReport(const MailedReport& mailed, MailContents& contents) {
  const Report* report = FindReport(mailed.code);
  if (!report) return "there is no report of this code";
  if (!report->one_student)
    return "this report shows the whole class; only one on single students goes to each";
  if (report->tab == kMailAveragesTab && !HasAverages())
    return "the class has no averages: it needs grades, and weights or points for them";
  Choice = ReportChoice();
  Choice.attendance1 = mailed.attendance;
  Choice.comment1 = mailed.comments;
  Choice.printcode = mailed.codes;
  Job = PrintJob();
  Job.PrintFlag = kPrintRuns;
  Job.PrintTab = report->tab;
  Job.ReportCode = static_cast<i16>(report->code);
  contents.text_of = [](i16 student) { return Utf8FromCodePage(TextOfStudent(student)); };
  contents.nothing = "there is no report";
  return {};
}

std::string TakeMailLetter(const std::string& path, const std::vector<i16>& students,
                           MailContents& contents) {
  LetterReading letter;
  std::string reason = ReadFormLetter(path, letter);
  if (!reason.empty()) return reason;
  MergedLetters merged = MergeLetters(letter, students);
  contents.notes = std::move(merged.notes);
  contents.nothing = "the letter is empty";
  reason = merged.refusal;
  contents.text_of = [merged = std::move(merged)](i16 student) {
    const auto found = std::ranges::find(merged.students, student);
    return LetterMessage(merged.texts[static_cast<std::size_t>(found - merged.students.begin())]);
  };
  return reason;
}

}  // namespace tallyroll
