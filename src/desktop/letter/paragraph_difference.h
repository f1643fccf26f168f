// SPDX-License-Identifier: GPL-3.0-or-later
// A change within one paragraph, as a step to be undone that leaves the rest of it alone.
#pragma once

#include <QTextDocument>

#include "platform/rich_text.h"

namespace tallyroll {

// Makes the block that holds `was` hold `now`. Both have text and one style of paragraph.
void ReplaceWithin(QTextDocument& document, int block, const Paragraph& was, const Paragraph& now);

}  // namespace tallyroll
