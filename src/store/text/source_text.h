// SPDX-License-Identifier: GPL-3.0-or-later
// The text of a file from another program, in the code page, with what the code page lacks.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/code_page.h"

namespace tallyroll {

class SourceText {
 public:
  // UTF-8, with or without a mark at its beginning, and everything else as code page 1252. Nothing
  // when the bytes are no text at all.
  static std::optional<SourceText> FromBytes(std::string_view bytes);

  std::string_view text() const { return content_.text; }
  // Whether this part of text() is what the file has: no character of it is lacking.
  bool Holds(std::string_view part) const;
  // A part for a message: a character that is lacking is shown by its number, "<U+0141>".
  std::string Shown(std::string_view part) const;

 private:
  std::size_t OffsetOf(std::string_view part) const;

  CodePageText content_;
};

}  // namespace tallyroll
