// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/mail_plan.h"

#include <algorithm>
#include <map>

#include "base/text.h"
#include "letters/mail/mail_address.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

MailProblem ProblemOf(std::string_view address) {
  if (address.empty()) return MailProblem::kNoAddress;
  return IsMailAddress(address) ? MailProblem::kNone : MailProblem::kNotAnAddress;
}

// Servers tell addresses apart without case, with very few exceptions.
void FindShared(std::vector<PlannedMail>& mails) {
  std::map<std::string, int> uses;
  for (const PlannedMail& mail : mails) ++uses[LowerCase(mail.entry.address)];
  for (PlannedMail& mail : mails)
    if (mail.problem == MailProblem::kNone && uses[LowerCase(mail.entry.address)] > 1)
      mail.problem = MailProblem::kShared;
}

bool IsOnSameStudent(const JournalMail& a, const JournalMail& b) {
  return a.student == b.student && a.name == b.name;
}

}  // namespace

std::vector<PlannedMail> PlanMails(const std::vector<i16>& students, const std::string& subject) {
  std::vector<PlannedMail> mails;
  for (const i16 index : students) {
    const Student& student = Current().Students[static_cast<std::size_t>(index)];
    PlannedMail& mail = mails.emplace_back();
    mail.student = index;
    mail.entry.subject = subject;
    mail.entry.student = Trim(student.id);
    mail.entry.name = PlainName(student);
    mail.entry.address = Trim(student.email);
    mail.problem = ProblemOf(mail.entry.address);
  }
  FindShared(mails);
  return mails;
}

std::string MailProblemText(MailProblem problem) {
  switch (problem) {
    case MailProblem::kNoAddress:
      return "no address";
    case MailProblem::kNotAnAddress:
      return "is no address";
    case MailProblem::kShared:
      return "the same address for several students";
    default:
      return {};
  }
}

std::string MailStateText(const JournalMail& mail) {
  const std::string reason = mail.reason.empty() ? "" : ": " + mail.reason;
  switch (mail.state) {
    case MailState::kTrying:
      return "uncertain" + reason;
    case MailState::kSent:
      return "sent " + mail.changed;
    case MailState::kRefused:
      return "refused" + reason;
    default:
      return "waiting" + reason;
  }
}

bool IsToBeSent(const PlannedMail& mail, bool shared_is_right) {
  const bool open =
      mail.entry.state == MailState::kWaiting || mail.entry.state == MailState::kRefused;
  const bool good = mail.problem == MailProblem::kNone ||
                    (mail.problem == MailProblem::kShared && shared_is_right);
  return open && good;
}

std::string TakeUpRun(MailJournal& journal, std::vector<PlannedMail>& mails, bool anew) {
  if (mails.empty()) return {};
  const std::vector<JournalMail> before =
      anew ? std::vector<JournalMail>() : journal.LastRun(mails.front().entry.subject);
  std::vector<JournalMail> added;
  for (PlannedMail& mail : mails) {
    const auto found = std::ranges::find_if(
        before, [&](const JournalMail& each) { return IsOnSameStudent(each, mail.entry); });
    if (found == before.end()) {
      added.push_back(mail.entry);
      continue;
    }
    const std::string address = mail.entry.address;
    mail.entry = *found;
    // What went stays told with the address to which it went.
    if (mail.entry.state == MailState::kSent || mail.entry.state == MailState::kTrying) continue;
    mail.entry.address = address;
    journal.SetAddress(mail.entry);
  }
  if (before.empty()) {
    journal.Begin(added);
  } else {
    for (JournalMail& mail : added) mail.run = before.front().run;
    journal.Add(added);
  }
  for (PlannedMail& mail : mails)
    for (const JournalMail& entry : added)
      if (mail.entry.place == 0 && IsOnSameStudent(entry, mail.entry)) mail.entry = entry;
  return journal.fault();
}

}  // namespace tallyroll
