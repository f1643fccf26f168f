// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/post.h"

#include "post/curl_mail_sender.h"

namespace tallyroll {

std::unique_ptr<MailSender> OpenMailSender(const MailAccount& account) {
  return MakeCurlMailSender(account);
}

}  // namespace tallyroll
