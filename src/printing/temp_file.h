// SPDX-License-Identifier: GPL-3.0-or-later
// The text that one Portal leaves for another one: the report that becomes a message.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

// "tempfile" in the program's folder, or in the user's own where that one cannot be written.
std::string TempFilePath();

// Writes it so that nobody else can read it. Returns 0 or the run-time error number.
int WriteTempFile(std::string_view text);

}  // namespace tallyroll
