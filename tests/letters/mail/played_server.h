// SPDX-License-Identifier: GPL-3.0-or-later
// A mail server that answers as the test says.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/mail_sender.h"

namespace tallyroll {

// What the server does with the message to an address; taken where nothing is said.
struct Conduct {
  MailOutcome outcome = MailOutcome::kSent;
  std::string reason = {};
  bool asks_for_text = true;
};

class PlayedServer : public MailSender {
 public:
  MailResult Send(const MailToSend& mail, const MailHooks& hooks) override {
    tried.push_back(mail.to);
    const Conduct conduct = conducts[mail.to];
    if (conduct.asks_for_text && !hooks.before_text()) return {MailOutcome::kStopped, "kept back"};
    if (conduct.outcome == MailOutcome::kSent) arrived.push_back(mail);
    return {conduct.outcome, conduct.reason};
  }
  std::map<std::string, Conduct> conducts;
  std::vector<std::string> tried;
  std::vector<MailToSend> arrived;
};

// Hands every message to one of these, and notes the account.
struct PlayedServers {
  static std::unique_ptr<MailSender> Make(const MailAccount& account);
  static inline PlayedServer* server = nullptr;
  static inline MailAccount account;
};

inline std::unique_ptr<MailSender> PlayedServers::Make(const MailAccount& given) {
  struct Handle : MailSender {
    MailResult Send(const MailToSend& mail, const MailHooks& hooks) override {
      return server->Send(mail, hooks);
    }
  };
  account = given;
  return std::make_unique<Handle>();
}

}  // namespace tallyroll
