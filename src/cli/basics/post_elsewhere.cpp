// SPDX-License-Identifier: GPL-3.0-or-later
// Sending needs a library for encrypted connections, which tallyroll-mail has.
#include "cli/basics/post.h"
#include "cli/basics/program_elsewhere.h"

namespace tallyroll {

void BecomeProgramThatSends() {
  RunElsewhere("tallyroll-mail");
}

std::unique_ptr<MailSender> OpenMailSender(const MailAccount& /*account*/) {
  return nullptr;
}

}  // namespace tallyroll
