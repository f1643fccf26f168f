// SPDX-License-Identifier: GPL-3.0-or-later
// A file as lines of text within a plain message.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

struct UuencodedText {
  int error = 0;     // why the file cannot be read, as a run-time error number
  std::string text;  // every line ends in carriage return and line feed
};

UuencodedText UuencodeFile(const std::string& path);

// The same of bytes under a file's name.
std::string Uuencode(std::string_view name, std::string_view bytes);

}  // namespace tallyroll
