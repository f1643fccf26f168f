// SPDX-License-Identifier: GPL-3.0-or-later
// A letter as the text of a message.
#pragma once

#include <string>

#include "platform/rich_text.h"

namespace tallyroll {

// Its plain text in UTF-8, the lines ended as mail ends them.
std::string LetterMessage(const RichText& letter);

}  // namespace tallyroll
