// SPDX-License-Identifier: GPL-3.0-or-later
// A run of messages to many, one after the other over one connection, each noted in the journal.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "companion/mail_journal.h"
#include "letters/mail/mime_message.h"
#include "platform/mail_sender.h"

namespace tallyroll {

struct RunMail {
  JournalMail entry;
  MimeMail mime;  // date and name are given when it goes
};

struct MailRunOptions {
  int pause = 0;  // seconds between two messages
  int a_day = 0;  // messages that the server takes; 0: as many as there are
};

// What is told and asked meanwhile, all in the thread of the run.
struct MailRunEvents {
  std::function<void(const JournalMail& entry)> changed = [](const JournalMail&) {};
  std::function<bool()> goes_on = [] { return true; };
};

// Ends with the last message, or before it: then the answer says why. What did not go waits in the
// journal. One that may have gone is never sent again, and ends the run.
std::string RunMails(MailSender& sender, MailJournal& journal, std::vector<RunMail>& mails,
                     const MailRunOptions& options, const MailRunEvents& events);

// The time of the machine as the journal keeps it: "2026-09-01 08:15:00".
std::string JournalTime();

}  // namespace tallyroll
