// SPDX-License-Identifier: GPL-3.0-or-later
// Mail from the command line. Each program has one of three implementations: post.cpp sends,
// post_elsewhere.cpp has another program send, no_post.cpp of a build without the library refuses.
#pragma once

#include <memory>

#include "platform/mail_sender.h"

namespace tallyroll {

// Null where mail cannot be sent.
std::unique_ptr<MailSender> OpenMailSender(const MailAccount& account);

// Where another program sends, it takes over here, before anything was read or asked.
void BecomeProgramThatSends();

}  // namespace tallyroll
