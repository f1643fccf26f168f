// SPDX-License-Identifier: GPL-3.0-or-later
// The options that name a mail server and the login there.
#pragma once

#include <optional>
#include <string>

#include "cli/basics/command_options.h"
#include "platform/mail_sender.h"

namespace tallyroll {

struct AccountOptions {
  std::string server, security = "starttls", authority;
  std::optional<std::string> user, password_from;
};

void AddAccountOptions(Command& command, AccountOptions& options);

// Answers why the options are refused; nothing when `account` was filled. Reads the password.
std::string TakeAccount(const AccountOptions& options, MailAccount& account);

}  // namespace tallyroll
