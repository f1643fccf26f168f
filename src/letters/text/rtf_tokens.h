// SPDX-License-Identifier: GPL-3.0-or-later
// A rich text file as it is built: groups, control words and text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyroll {

enum class RtfKind { kOpen, kClose, kWord, kSymbol, kByte, kBinary, kText, kEnd };

struct RtfToken {
  RtfKind kind = RtfKind::kEnd;
  std::string_view text;  // a word's name, a symbol's character, or bytes of text
  bool has_number = false;
  int number = 0;  // of a word; the value of a byte

  // A word that switches something is off only when it says 0.
  bool IsOn() const { return !has_number || number != 0; }
};

class RtfTokens {
 public:
  explicit RtfTokens(std::string_view bytes) : rest_(bytes) {}

  // The end comes where the bytes end, and at a fault.
  RtfToken Next();
  // What is wrong with the file; empty while nothing is.
  const std::string& Error() const { return error_; }

 private:
  RtfToken Control();
  RtfToken Word();
  RtfToken Byte();
  RtfToken Binary(int length);
  RtfToken Fault(const char* what);

  std::string_view rest_;
  std::string error_;
};

}  // namespace tallyroll
