// SPDX-License-Identifier: GPL-3.0-or-later
// Text files as they are saved.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/surroundings.h"

namespace tallyroll {

// Asks for the name and the encoding of a text; the next such dialog offers the same encoding.
std::optional<std::string> AskForText(FileDialogRequest request);

// A text of the code page as a file of this encoding has it.
std::string EncodedText(std::string_view text, TextEncoding encoding);

}  // namespace tallyroll
