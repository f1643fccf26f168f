// SPDX-License-Identifier: GPL-3.0-or-later
// What the E-mail Portal hands to the Portal that sends to several.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "letters/mail/mime_message.h"
#include "platform/mail_sender.h"
#include "store/records.h"

namespace tallyroll {

struct MailBatch {
  MailAccount account;
  std::string sender, subject;                      // in the code page
  std::vector<i16> students;                        // Students indices
  std::function<std::string(i16 student)> text_of;  // in UTF-8
  std::vector<MailAttachment> attachments;          // the same for everybody
  bool pdf = false;                                 // the report on each is attached
};

extern MailBatch Batch;  // set before ShowPortal("frmSendMany"); cleared by whoever set it

}  // namespace tallyroll
