// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/source_text.h"

#include <algorithm>

namespace tallyroll {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr char kOldEndOfFile = '\x1A';  // closed text files once

std::string CharacterNumber(char32_t character) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits;
  for (; character != 0 || digits.size() < 4; character >>= 4)
    digits.insert(digits.begin(), kDigits[character & 0xF]);
  return "<U+" + digits + ">";
}

// No text of one byte a character or of UTF-8 has a zero, but programs and UTF-16 have. Elsewhere a
// stray control character is no fault of the teacher's; compressed data is full of them.
bool IsText(std::string_view bytes) {
  constexpr std::ptrdiff_t kStray = 10;
  if (bytes.find('\0') != std::string_view::npos) return false;
  const auto controls = std::count_if(bytes.begin(), bytes.end(), [](char c) {
    return static_cast<unsigned char>(c) < ' ' && !(c >= '\t' && c <= '\r');
  });
  return controls < kStray || static_cast<std::size_t>(controls) < bytes.size() / 50;
}

bool OnlyAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::optional<SourceText> SourceText::FromBytes(std::string_view bytes) {
  if (!IsText(bytes)) return std::nullopt;
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  if (bytes.ends_with(kOldEndOfFile)) bytes.remove_suffix(1);
  SourceText source;
  // Letters of code page 1252 next to one another are hardly ever valid UTF-8 by chance.
  std::optional<CodePageText> decoded;
  if (!OnlyAscii(bytes)) decoded = CodePageTextFromUtf8(bytes);
  if (decoded)
    source.content_ = std::move(*decoded);
  else
    source.content_.text = bytes;
  return source;
}

std::size_t SourceText::OffsetOf(std::string_view part) const {
  return static_cast<std::size_t>(part.data() - content_.text.data());
}

bool SourceText::Holds(std::string_view part) const {
  if (content_.lacking.empty() || part.empty()) return true;
  const std::size_t from = OffsetOf(part);
  const auto first =
      std::ranges::lower_bound(content_.lacking, from, {}, &CodePageText::Lacking::offset);
  return first == content_.lacking.end() || first->offset >= from + part.size();
}

std::string SourceText::Shown(std::string_view part) const {
  std::string shown;
  if (part.empty()) return shown;
  const std::size_t from = OffsetOf(part);
  auto lacking =
      std::ranges::lower_bound(content_.lacking, from, {}, &CodePageText::Lacking::offset);
  for (std::size_t i = 0; i < part.size(); ++i) {
    if (lacking != content_.lacking.end() && lacking->offset == from + i)
      shown += CharacterNumber(lacking++->character);
    else
      shown += part[i];
  }
  return shown;
}

}  // namespace tallyroll
