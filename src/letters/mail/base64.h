// SPDX-License-Identifier: GPL-3.0-or-later
// Base64, as servers ask for user names with it and as attachments travel.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

// On one line, filled with "=" to a multiple of four.
std::string EncodeBase64(std::string_view bytes);

// Groups of four characters; a character outside the alphabet ends the text, "=" ends a group. What
// was decoded before stays.
std::string DecodeBase64String(std::string_view text);

}  // namespace tallyroll
