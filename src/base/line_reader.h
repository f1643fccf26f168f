// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of a text that another program may have passed on: any of the usual ends closes a line.
#pragma once

#include <optional>
#include <string_view>

namespace tallyroll {

class LineReader {
 public:
  explicit LineReader(std::string_view text) : rest_(text) {}

  // The next line without its end; nothing behind the last.
  std::optional<std::string_view> Next();
  // What no line was taken from yet.
  std::string_view Rest() const { return rest_; }

 private:
  std::string_view rest_;
};

}  // namespace tallyroll
