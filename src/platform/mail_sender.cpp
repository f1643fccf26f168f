// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail_sender.h"

namespace tallyroll {

MailSenderMaker MakeMailSender = nullptr;

}  // namespace tallyroll
