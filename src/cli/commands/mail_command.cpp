// SPDX-License-Identifier: GPL-3.0-or-later
// The report on each student, or a letter to each, to that student's address: a run as the E-mail
// Portal makes it, with the same journal.
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"
#include "cli/basics/chosen_students.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/command_line_surroundings.h"
#include "cli/basics/date_order.h"
#include "cli/basics/mail_account.h"
#include "cli/basics/pdf.h"
#include "cli/basics/post.h"
#include "cli/commands/commands.h"
#include "cli/commands/mail_contents.h"
#include "letters/mail/mail_address.h"
#include "letters/mail/mail_plan.h"
#include "letters/mail/mail_run.h"
#include "letters/mail/student_report.h"
#include "store/program_state.h"
#include "store/sort_students.h"

namespace tallyroll {
namespace {

struct MailOptions {
  std::string file;
  MailedReport report;
  std::string letter;
  std::vector<std::string> students;
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
  std::string reason = TakeStudents(options.students, students);
  return reason.empty() && students.empty() ? kNoStudents : reason;
}

std::string CheckMailOptions(const MailOptions& options) {
  const bool of_report =
      options.pdf || options.report.attendance || options.report.comments || options.report.codes;
  if (options.letter.empty() && options.report.code == 0)
    return "--report or --letter must say what goes";
  if (!options.letter.empty() && of_report)
    return "--pdf, --attendance, --comments and --code-details go with --report";
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

// Runs are told apart by it, so two letters have two.
std::string SubjectOf(const MailOptions& options) {
  if (!options.subject.empty()) return options.subject;
  if (options.letter.empty()) return "Report";
  return Utf8FromCodePage(PathForDisplay(std::filesystem::path(options.letter).stem().string()));
}

// Why it cannot be made.
std::string MakeMime(const MailOptions& options, const MailContents& contents,
                     const PlannedMail& mail, MimeMail& mime) {
  mime.text = contents.text_of(mail.student);
  if (mime.text.empty()) return contents.nothing;
  mime.from = options.from;
  mime.to = mail.entry.address;
  mime.subject = SubjectOf(options);
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

CommandResult WriteEmls(const MailOptions& options, const MailContents& contents,
                        const std::vector<PlannedMail>& mails, double now) {
  std::error_code error;
  std::filesystem::create_directories(options.eml, error);
  if (error) return Refused(options.eml, "the folder cannot be made");
  for (const PlannedMail& mail : mails) {
    if (!IsToBeSent(mail, true)) continue;
    MimeMail mime;
    std::string reason = MakeMime(options, contents, mail, mime);
    if (!reason.empty()) return Refused(options.file, reason);
    mime.date = ZonedMailDate(now, OffsetFromUtc());
    mime.id = NewMessageId(mime.from);
    const std::string path = (std::filesystem::path(options.eml) / EmlName(mail)).string();
    reason = WriteFileTo(path, MimeMessage(mime));
    if (!reason.empty()) return Refused(path, reason);
  }
  return MailLines(mails, options, "written", {});
}

CommandResult SendAll(const MailOptions& options, const MailContents& contents,
                      std::vector<PlannedMail>& mails) {
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
    reason = MakeMime(options, contents, mail, next.mime);
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

CommandResult CarryOut(const MailOptions& options, const MailContents& contents,
                       std::vector<PlannedMail>& mails) {
  if (options.dry_run) return MailLines(mails, options, "would be sent", {});
  if (!options.eml.empty()) return WriteEmls(options, contents, mails, Platform().Now());
  return SendAll(options, contents, mails);
}

CommandResult Mail(const MailOptions& options) {
  std::string reason = CheckMailOptions(options);
  if (!reason.empty()) return Refused(options.file, reason);
  if (options.pdf) BecomeProgramThatDraws();
  const auto subject = CodePageFromUtf8(SubjectOf(options));
  if (!subject) return Refused(options.file, "the subject has characters that a class cannot hold");
  NameMode = options.name_mode;
  reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  const CommandLineSurroundings surroundings(std::nullopt,
                                             DateOrderOfOption(options.opening.date_order));
  SortStudents();
  std::vector<i16> students;
  MailContents contents;
  reason = TakeMailStudents(options, students);
  if (reason.empty() && options.letter.empty()) reason = TakeMailReport(options.report, contents);
  if (!reason.empty()) return Refused(options.file, reason);
  if (!options.letter.empty()) reason = TakeMailLetter(options.letter, students, contents);
  if (!reason.empty()) return Refused(options.letter, reason);
  std::vector<PlannedMail> mails = PlanMails(students, *subject);
  reason = SharedAddress(mails);
  if (!reason.empty() && !options.allow_shared) return Refused(options.file, reason);
  CommandResult result = CarryOut(options, contents, mails);
  if (result.refused) return result;
  for (const std::string& note : contents.notes)
    result.note += (result.note.empty() ? "" : "\n") + ReasonLine(options.letter, note);
  return result;
}

}  // namespace

void AddMailCommand(Command& app, ChosenCommand& chosen) {
  Command command =
      app.AddCommand("mail", "Sends each student's report or letter to that student's address");
  const auto options = std::make_shared<MailOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  auto letter =
      command.AddOption("--letter", options->letter, "a form letter: .rtf, otherwise plain text");
  command.AddOption("--report", options->report.code, "the code of a report on single students")
      .Excludes(letter);
  AddStudents(command, options->students);
  command.AddOption("--subject", options->subject,
                    "of every message; otherwise \"Report\", or the letter's name");
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
  command.AddFlag("--attendance", options->report.attendance, "with attendance summaries");
  command.AddFlag("--comments", options->report.comments, "with comments");
  command.AddFlag("--code-details", options->report.codes, "with a table of the codes");
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Mail(*options); }; });
}

}  // namespace tallyroll
