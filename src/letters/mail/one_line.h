// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

// The text with a blank for each character that would end a line or a command: a class file from
// elsewhere never adds a line of its own to what the server is told.
inline std::string OneLine(std::string_view text) {
  std::string line(text);
  for (char& c : line)
    if (static_cast<unsigned char>(c) < 32 || c == 127) c = ' ';
  return line;
}

}  // namespace tallyroll
