// SPDX-License-Identifier: GPL-3.0-or-later
// The report on each student to that student's address: a run as the E-mail Portal makes it, with
// the same journal.
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/command_line_surroundings.h"
#include "cli/basics/date_order.h"
#include "cli/basics/mail_account.h"
#include "cli/basics/pdf.h"
#include "cli/basics/post.h"
#include "cli/commands/commands.h"
#include "letters/mail/mail_address.h"
#include "letters/mail/mail_plan.h"
#include "letters/mail/mail_run.h"
#include "letters/mail/student_report.h"
#include "printing/page/report_choice.h"
#include "printing/reports/reports.h"
#include "store/program_state.h"
#include "store/sort_students.h"

namespace tallyroll {
namespace {

constexpr i16 kMailAveragesTab = 4;

struct MailOptions {
  std::string file;
  int code = 0;
  std::vector<std::string> students;
  bool attendance = false, comments = false, code_details = false;
  std::string subject, from, eml;
  AccountOptions account;
  bool pdf = false, dry_run = false, again = false, allow_shared = false;
  int pause = 0, a_day = 0;
  i16 name_mode = 68;
  OpenOptions opening;
};

bool Sends(const MailOptions& options) {
  return !options.dry_run && options.eml.empty();
}

// ---- What the command line says, looked through; each answers why it is refused ----

std::string TakeMailStudents(const MailOptions& options, std::vector<i16>& students) {
  const Class& c = Current();
  if (options.students.empty())
    for (int i = 1; i <= c.NumStudents; ++i) students.push_back(static_cast<i16>(i));
  for (const std::string& wanted : options.students) {
    const auto id = CodePageFromUtf8(wanted);
    i16 found = 0;
    for (i16 i = 1; id && i <= c.NumStudents && found == 0; ++i)
      if (Trim(c.Students[static_cast<std::size_t>(i)].id) == Trim(*id)) found = i;
    if (found == 0) return "no student has the ID " + wanted;
    students.push_back(found);
  }
  return students.empty() ? kNoStudents : "";
}

std::string TakeMailReport(const MailOptions& options) {
  const Report* report = FindReport(options.code);
  if (!report) return "there is no report of this code";
  if (!report->one_student)
    return "this report shows the whole class; only one on single students goes to each";
  if (report->tab == kMailAveragesTab && !HasAverages())
    return "the class has no averages: it needs grades, and weights or points for them";
  Choice = ReportChoice();
  Choice.attendance1 = options.attendance;
  Choice.comment1 = options.comments;
  Choice.printcode = options.code_details;
  Job = PrintJob();
  Job.PrintFlag = kPrintRuns;
  Job.PrintTab = report->tab;
  Job.ReportCode = static_cast<i16>(report->code);
  return {};
}

std::string CheckMailOptions(const MailOptions& options) {
  if (!IsMailAddress(options.from)) return "--from must be an address, name@domain";
  if (Sends(options) && options.account.server.empty()) return "sending needs --server";
  return {};
}

// "a@b stands for 17 and 23": whoever means it says so.
std::string SharedAddress(const std::vector<PlannedMail>& mails) {
  for (const PlannedMail& mail : mails)
    if (mail.problem == MailProblem::kShared)
      return "the address " + Utf8FromCodePage(mail.entry.address) +
             " stands for several students, one of them with the ID " +
             Utf8FromCodePage(mail.entry.student) + " (--allow-shared sends to it)";
  return {};
}

// ---- The messages ----

std::string SubjectOf(const MailOptions& options) {
  return options.subject.empty() ? "Report" : options.subject;
}

// Why it cannot be made.
std::string MakeMime(const MailOptions& options, const PlannedMail& mail, MimeMail& mime) {
  const std::string text = TextOfStudent(mail.student);
  if (text.empty()) return "there is no report";
  mime.from = options.from;
  mime.to = mail.entry.address;
  mime.subject = SubjectOf(options);
  mime.text = Utf8FromCodePage(text);
  if (!options.pdf) return {};
  PdfOutcome outcome;
  std::string pdf = PdfOfStudent(mail.student, [&](const std::string& path) {
    outcome = WritePdf(path, SubjectOf(options));
    return outcome.refusal.empty() && outcome.error == 0;
  });
  if (!outcome.refusal.empty()) return outcome.refusal;
  if (outcome.error != 0) return FileErrorText(outcome.error);
  if (pdf.empty()) return "there is no report";
  mime.attachments.push_back({ReportFileName(mail.student), std::move(pdf)});
  return {};
}

std::string MailLine(const std::string& state, const JournalMail& mail) {
  std::string line = Utf8FromCodePage(state + "\t" + mail.student + "\t" + mail.address);
  for (char& c : line)
    if (static_cast<unsigned char>(c) < 32 && c != '\t') c = ' ';
  return line + "\n";
}

// What came of each, in the order of the students.
CommandResult MailLines(const std::vector<PlannedMail>& mails, const MailOptions& options,
                        const std::string& done, const std::string& stopped) {
  CommandResult result = Done();
  for (const PlannedMail& mail : mails) {
    const bool bad = mail.problem != MailProblem::kNone && mail.problem != MailProblem::kShared;
    const std::string state = bad            ? MailProblemText(mail.problem)
                              : done.empty() ? MailStateText(mail.entry)
                                             : done;
    result.text += MailLine(state, mail.entry);
    result.failed |= bad || (done.empty() && mail.entry.state != MailState::kSent);
  }
  if (!stopped.empty()) result.note = ReasonLine(options.file, stopped);
  return result;
}

std::string EmlName(const PlannedMail& mail) {
  std::string name = ReportFileName(mail.student);
  name.resize(name.size() - 4);
  std::string id = Utf8FromCodePage(mail.entry.student);
  for (char& c : id)
    if (c == '/' || static_cast<unsigned char>(c) < 32) c = '-';
  return (id.empty() ? name : id + " " + name) + ".eml";
}

CommandResult WriteEmls(const MailOptions& options, const std::vector<PlannedMail>& mails,
                        double now) {
  std::error_code error;
  std::filesystem::create_directories(options.eml, error);
  if (error) return Refused(options.eml, "the folder cannot be made");
  for (const PlannedMail& mail : mails) {
    if (!IsToBeSent(mail, true)) continue;
    MimeMail mime;
    std::string reason = MakeMime(options, mail, mime);
    if (!reason.empty()) return Refused(options.file, reason);
    mime.date = ZonedMailDate(now, OffsetFromUtc());
    mime.id = NewMessageId(mime.from);
    const std::string path = (std::filesystem::path(options.eml) / EmlName(mail)).string();
    reason = WriteFileTo(path, MimeMessage(mime));
    if (!reason.empty()) return Refused(path, reason);
  }
  return MailLines(mails, options, "written", {});
}

CommandResult SendAll(const MailOptions& options, std::vector<PlannedMail>& mails) {
  MailAccount account;
  std::string reason = TakeAccount(options.account, account);
  if (!reason.empty()) return Refused(options.file, reason);
  const auto sender = OpenMailSender(account);
  if (!sender) return Refused(options.file, "mail can't be sent here");
  MailJournal journal = MailJournal::ToWrite(Current().FileName);
  reason = TakeUpRun(journal, mails, options.again);
  if (!reason.empty()) return Refused(options.file, "nothing was sent: " + reason);
  std::vector<RunMail> run;
  for (const PlannedMail& mail : mails) {
    if (!IsToBeSent(mail, true)) continue;
    RunMail& next = run.emplace_back();
    next.entry = mail.entry;
    reason = MakeMime(options, mail, next.mime);
    if (!reason.empty()) return Refused(options.file, "nothing was sent: " + reason);
  }
  MailRunEvents events;
  events.changed = [&mails](const JournalMail& entry) {
    for (PlannedMail& mail : mails)
      if (mail.entry.place == entry.place) mail.entry = entry;
  };
  const std::string stopped =
      RunMails(*sender, journal, run, {options.pause, options.a_day}, events);
  return MailLines(mails, options, {}, stopped.empty() ? "" : Utf8FromCodePage(stopped));
}

CommandResult Mail(const MailOptions& options) {
  std::string reason = CheckMailOptions(options);
  if (!reason.empty()) return Refused(options.file, reason);
  if (Sends(options) || options.pdf) BecomeProgramThatSends();
  const auto subject = CodePageFromUtf8(SubjectOf(options));
  if (!subject) return Refused(options.file, "the subject has characters that a class cannot hold");
  NameMode = options.name_mode;
  reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  const CommandLineSurroundings surroundings(std::nullopt,
                                             DateOrderOfOption(options.opening.date_order));
  SortStudents();
  std::vector<i16> students;
  reason = TakeMailReport(options);
  if (reason.empty()) reason = TakeMailStudents(options, students);
  if (!reason.empty()) return Refused(options.file, reason);
  std::vector<PlannedMail> mails = PlanMails(students, *subject);
  reason = SharedAddress(mails);
  if (!reason.empty() && !options.allow_shared) return Refused(options.file, reason);
  if (options.dry_run) return MailLines(mails, options, "would be sent", {});
  if (!options.eml.empty()) return WriteEmls(options, mails, Platform().Now());
  return SendAll(options, mails);
}

}  // namespace

void AddMailCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("mail", "Sends each student's report to that student's address");
  const auto options = std::make_shared<MailOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddOption("--report", options->code, "the code of a report on single students")
      .Required();
  command.AddOption("--student", options->students, "a student's ID; may be given again")
      .OneValueEach();
  command.AddOption("--subject", options->subject, "of every message; \"Report\" otherwise");
  command.AddOption("--from", options->from, "your address").Required();
  AddAccountOptions(command, options->account);
  command.AddFlag("--pdf", options->pdf, "with the report attached as PDF");
  command.AddFlag("--dry-run", options->dry_run, "says what would be sent to whom");
  command.AddOption("--eml", options->eml, "a folder: each message as a file instead of sending");
  command.AddFlag("--again", options->again, "begins anew, whoever got it already");
  command.AddFlag("--allow-shared", options->allow_shared,
                  "an address may stand for several students");
  command.AddOption("--pause", options->pause, "seconds between two messages").Between(0, 3600);
  command.AddOption("--limit", options->a_day, "messages a day; the rest waits").Between(0, 100000);
  command.AddFlag("--attendance", options->attendance, "with attendance summaries");
  command.AddFlag("--comments", options->comments, "with comments");
  command.AddFlag("--code-details", options->code_details, "with a table of the codes");
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Mail(*options); }; });
}

}  // namespace tallyroll
