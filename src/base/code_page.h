// SPDX-License-Identifier: GPL-3.0-or-later
// Windows-1252, the code page of class files, to UTF-8 and back.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

// The Unicode character of a byte. The five bytes that 1252 leaves undefined (81, 8D, 8F, 90, 9D)
// are the control characters of the same number.
char32_t UnicodeOf(unsigned char byte);
// The byte of a Unicode character; nothing when the code page lacks it.
std::optional<unsigned char> CodePageOf(char32_t character);

std::string Utf8FromCodePage(std::string_view text);
// Nothing when the text is no valid UTF-8 or has a character that the code page lacks.
std::optional<std::string> CodePageFromUtf8(std::string_view utf8);

// The same for a text that may hold more than the code page: a "?" stands in the place of each
// character that is lacking, and what it was is told with it. Nothing when it is no valid UTF-8.
struct CodePageText {
  struct Lacking {
    std::size_t offset;  // of its "?" in the text
    char32_t character;
  };
  std::string text;
  std::vector<Lacking> lacking;  // in the order of the text
};
std::optional<CodePageText> CodePageTextFromUtf8(std::string_view utf8);

// A file's path (bytes of the file system, UTF-8) as text for a message or a caption.
// A character that the code page lacks stands as "_": a path shown is never a path opened.
std::string PathForDisplay(std::string_view path);

}  // namespace tallyroll
