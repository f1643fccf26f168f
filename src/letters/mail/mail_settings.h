// SPDX-License-Identifier: GPL-3.0-or-later
// How the teacher's mail server is reached, kept beside its name.
#pragma once

#include <string>

#include "platform/mail_sender.h"

namespace tallyroll {

// STARTTLS unless something else was chosen; whoever used a server before there was a choice keeps
// the plain dialogue.
MailSecurity StoredMailSecurity();
// A file of certificates that are trusted beside the system's; mostly empty.
std::string StoredMailAuthority();
void StoreMailSettings(MailSecurity security, const std::string& authority);

// The port where nothing is said.
int UsualMailPort(MailSecurity security);

}  // namespace tallyroll
