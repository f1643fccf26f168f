// SPDX-License-Identifier: GPL-3.0-or-later
// A MailSender by libcurl.
#pragma once

#include "platform/mail_sender.h"

namespace tallyroll {

std::unique_ptr<MailSender> MakeCurlMailSender(const MailAccount& account);

}  // namespace tallyroll
