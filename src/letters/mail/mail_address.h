// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace tallyroll {

// Whether a text is one address that a mail server can take: name@domain in plain letters, without
// brackets, blanks, lists or anything that could end a line.
bool IsMailAddress(std::string_view text);

}  // namespace tallyroll
