// SPDX-License-Identifier: GPL-3.0-or-later
// The server as a teacher writes it: a name, and perhaps a port behind a colon.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

struct MailHost {
  std::string name;
  int port = 0;  // 0: what was written is no port
};

// "mail.school.org:2525"; an address of the sixth version stands in brackets when a port follows.
MailHost MailHostOf(std::string_view text, int usual_port);

// Whether a server can be called so.
bool IsHostName(std::string_view name);

// Whether it is this machine, so that nothing travels.
bool IsLoopback(std::string_view host);

}  // namespace tallyroll
