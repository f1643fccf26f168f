// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/mail_account.h"

#include <fcntl.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "base/number_text.h"
#include "letters/mail/mail_host.h"

namespace tallyroll {
namespace {

MailSecurity SecurityOf(const std::string& name) {
  if (name == "plain") return MailSecurity::kPlain;
  return name == "tls" ? MailSecurity::kTls : MailSecurity::kStartTls;
}

// The first line, of a file or of what the caller has opened: neither shows in a list of processes.
std::string TakePassword(const std::string& source, std::string& password) {
  constexpr std::size_t kLongest = 4096;
  const bool opened = !source.empty() && source.find_first_not_of("0123456789") == source.npos;
  const int fd =
      opened ? static_cast<int>(LeadingNumber(source)) : open(source.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return "the file of the password can't be read";
  std::string bytes;
  char buffer[512];
  for (ssize_t got; bytes.size() < kLongest && (got = read(fd, buffer, sizeof buffer)) > 0;)
    bytes.append(buffer, static_cast<std::size_t>(got));
  if (!opened) close(fd);
  password = bytes.substr(0, bytes.find_first_of("\r\n"));
  return password.empty() ? "--password-from holds no password" : "";
}

}  // namespace

std::string TakeAccount(const AccountOptions& options, MailAccount& account) {
  account.security = SecurityOf(options.security);
  const int usual = account.security == MailSecurity::kPlain ? 25
                    : account.security == MailSecurity::kTls ? 465
                                                             : 587;
  const MailHost host = MailHostOf(options.server, usual);
  if (!IsHostName(host.name)) return "--server is no name of a server";
  if (host.port == 0) return "the port of --server must be a number from 1 to 65535";
  account.host = host.name;
  account.port = host.port;
  account.authority = options.authority;
  account.user = options.user.value_or("");
  if (!account.user.empty() && !options.password_from) return "--user needs --password-from";
  if (account.user.empty()) return {};
  if (account.security == MailSecurity::kPlain && !IsLoopback(host.name))
    return "a password is not sent unprotected: choose --security starttls or tls";
  return TakePassword(*options.password_from, account.password);
}

void AddAccountOptions(Command& command, AccountOptions& options) {
  command.AddOption("--server", options.server, "HOST or HOST:PORT");
  command.AddOption("--security", options.security, "plain, starttls or tls")
      .OneOf(std::vector<std::string>{"plain", "starttls", "tls"});
  command.AddOption("--user", options.user, "the name of your login");
  command.AddOption("--password-from", options.password_from,
                    "a file, or the number of an open one, whose first line is the password");
  command.AddOption("--ca", options.authority, "a file of certificates to trust");
}

}  // namespace tallyroll
