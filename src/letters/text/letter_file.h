// SPDX-License-Identifier: GPL-3.0-or-later
// Letters as files: rich text by the extension RTF, otherwise plain text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/rich_text.h"

namespace tallyroll {

// By the extension, whatever its case.
bool IsRichTextFile(std::string_view path);

struct LetterReading {
  RichText text;
  std::vector<std::string> left_out;  // of a rich text, a line each
  int error = 0;                      // run-time error number
  std::string reason;                 // why there is no letter; empty when all went well
};

// A plain text is set in Courier New.
LetterReading ReadLetter(const std::string& path);

// The file is complete or as it was. Answers 0 or a run-time error number.
int WriteLetter(const std::string& path, const RichText& text);

// The bytes of a plain text file: code page 1252, or UTF-8 with its mark where a character is
// lacking there.
std::string PlainTextFile(const RichText& text);

}  // namespace tallyroll
