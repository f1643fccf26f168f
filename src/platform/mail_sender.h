// SPDX-License-Identifier: GPL-3.0-or-later
// A connection to a mail server of today. It waits for the server, so it has a thread of its own.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace tallyroll {

enum class MailSecurity {
  kPlain,     // nothing is encrypted
  kTls,       // from the first byte on
  kStartTls,  // after a greeting in the open; without it nothing is sent
};

struct MailAccount {
  std::string host;
  int port = 0;
  MailSecurity security = MailSecurity::kStartTls;
  std::string user, password;  // UTF-8; no user: no login
  std::string authority;  // a file of certificates to trust; empty: those that the system trusts
};

struct MailToSend {
  std::string from, to;  // addresses
  std::string bytes;     // the message, its lines ended by carriage return and line feed
};

enum class MailOutcome {
  kSent,       // the server has taken it
  kRefused,    // it will not, and others may go
  kLater,      // not now, and others may go
  kStopped,    // nothing of it has gone, and nothing will
  kUncertain,  // all or some of it has gone, and no answer came
};

struct MailResult {
  MailOutcome outcome = MailOutcome::kStopped;
  std::string reason;  // UTF-8; the server's own words where it said some
};

// What is asked while a message goes.
struct MailHooks {
  // The server waits for the text, and nothing of it has gone. False keeps it back.
  std::function<bool()> before_text = [] { return true; };
  // Now and then; false ends it.
  std::function<bool()> goes_on = [] { return true; };
};

class MailSender {
 public:
  virtual ~MailSender() = default;
  // One message after the other goes over one connection.
  virtual MailResult Send(const MailToSend& mail, const MailHooks& hooks) = 0;
};

// Handed over by the program; null in one that cannot.
using MailSenderMaker = std::unique_ptr<MailSender> (*)(const MailAccount& account);
extern MailSenderMaker MakeMailSender;

}  // namespace tallyroll
