// SPDX-License-Identifier: GPL-3.0-or-later
// Who gets a message of a run, looked through before anything leaves.
#pragma once

#include <string>
#include <vector>

#include "companion/mail_journal.h"
#include "store/records.h"

namespace tallyroll {

enum class MailProblem {
  kNone,
  kNoAddress,
  kNotAnAddress,
  kShared,  // the address stands for another student as well
};

struct PlannedMail {
  i16 student = 0;  // Students index
  MailProblem problem = MailProblem::kNone;
  JournalMail entry;
};

// One message for each of the students, in their order.
std::vector<PlannedMail> PlanMails(const std::vector<i16>& students, const std::string& subject);

// "no address", "is no address"; empty where there is none.
std::string MailProblemText(MailProblem problem);
// "waiting", "sent 2026-09-01 08:15:00", "refused: 550 no such user".
std::string MailStateText(const JournalMail& mail);

// Whether the run sends it: it has an address, and did not go and may not have gone.
bool IsToBeSent(const PlannedMail& mail, bool shared_is_right);

// Gives each planned message its place in the journal: that of the last run with the same subject,
// with the state it has there, or with `anew` and where there is none a new run. Nobody who got a
// message of that run gets another one. Answers why it cannot be done.
std::string TakeUpRun(MailJournal& journal, std::vector<PlannedMail>& mails, bool anew);

}  // namespace tallyroll
