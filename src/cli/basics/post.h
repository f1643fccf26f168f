// SPDX-License-Identifier: GPL-3.0-or-later
// Mail from the command line: post.cpp sends, no_post.cpp of a build without the library refuses.
#pragma once

#include <memory>

#include "platform/mail_sender.h"

namespace tallyroll {

// Null where mail cannot be sent.
std::unique_ptr<MailSender> OpenMailSender(const MailAccount& account);

}  // namespace tallyroll
