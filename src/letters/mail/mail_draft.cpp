// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/mail_draft.h"

namespace tallyroll {

MailDraft Draft;

}  // namespace tallyroll
