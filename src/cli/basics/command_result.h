// SPDX-License-Identifier: GPL-3.0-or-later
// What a command of tallyroll-cli answers.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>

namespace tallyroll {

// What a command gives: the whole of its output, or why it was refused.
struct CommandResult {
  bool refused = false;
  std::string text;       // UTF-8
  std::string note = {};  // a line on standard error all the same
  bool failed = false;    // not all went well: the text is put out, and the exit status is 1
  // Instead of a text: writes the output as it comes. False when a part of it was refused, which
  // it has told.
  std::function<bool(std::ostream& out, std::ostream& err)> stream = {};
};

// "FILE: reason" on one line, whatever the name or the message holds.
std::string ReasonLine(const std::string& file, const std::string& reason);

CommandResult Done(std::string text = {});
CommandResult Refused(const std::string& file, const std::string& reason);

}  // namespace tallyroll
