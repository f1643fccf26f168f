// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/mail_draft.h"

#include "letters/mail/mail_batch.h"

namespace tallyroll {

MailDraft Draft;
MailBatch Batch;

}  // namespace tallyroll
