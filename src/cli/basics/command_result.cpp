// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/command_result.h"

#include <algorithm>
#include <utility>

namespace tallyroll {

CommandResult Done(std::string text) {
  return {.text = std::move(text)};
}

std::string ReasonLine(const std::string& file, const std::string& reason) {
  std::string line = file + ": " + reason;
  std::ranges::replace_if(
      line, [](char c) { return static_cast<unsigned char>(c) < 32; }, ' ');
  return line;
}

CommandResult Refused(const std::string& file, const std::string& reason) {
  return {.refused = true, .text = ReasonLine(file, reason)};
}

}  // namespace tallyroll
