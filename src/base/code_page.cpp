// SPDX-License-Identifier: GPL-3.0-or-later
// Windows-1252 differs from the first 256 Unicode characters in the bytes 80 to 9F only.
#include "base/code_page.h"

#include <algorithm>
#include <array>

namespace tallyroll {
namespace {

constexpr unsigned char kFirstOwn = 0x80;

constexpr std::array<char32_t, 32> kOwn = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool IsOwn(char32_t value) {
  return value >= kFirstOwn && value < kFirstOwn + kOwn.size();
}

struct Decoded {
  char32_t character;
  std::size_t length;  // in bytes
};

struct Lead {
  std::size_t length;
  char32_t bits;     // that the first byte gives
  char32_t minimum;  // below it the same character has a shorter form
};

std::optional<Lead> LeadOf(unsigned char byte) {
  if (byte < 0x80) return Lead{1, byte, 0};
  if ((byte & 0xE0) == 0xC0) return Lead{2, byte & 0x1Fu, 0x80};
  if ((byte & 0xF0) == 0xE0) return Lead{3, byte & 0x0Fu, 0x800};
  if ((byte & 0xF8) == 0xF0) return Lead{4, byte & 0x07u, 0x10000};
  return std::nullopt;
}

// The first character of a text that is not empty; nothing when it is no valid UTF-8.
std::optional<Decoded> FirstCharacter(std::string_view utf8) {
  const std::optional<Lead> lead = LeadOf(static_cast<unsigned char>(utf8.front()));
  if (!lead || lead->length > utf8.size()) return std::nullopt;
  char32_t character = lead->bits;
  for (const char c : utf8.substr(1, lead->length - 1)) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0) != 0x80) return std::nullopt;
    character = character << 6 | (byte & 0x3Fu);
  }
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < lead->minimum || character > 0x10FFFF || surrogate) return std::nullopt;
  return Decoded{character, lead->length};
}

// Every character of the code page lies below U+10000.
void AppendUtf8(std::string& utf8, char32_t character) {
  const auto append = [&utf8](char32_t byte) { utf8.push_back(static_cast<char>(byte)); };
  if (character < 0x80) {
    append(character);
  } else if (character < 0x800) {
    append(0xC0 | character >> 6);
    append(0x80 | (character & 0x3F));
  } else {
    append(0xE0 | character >> 12);
    append(0x80 | (character >> 6 & 0x3F));
    append(0x80 | (character & 0x3F));
  }
}

}  // namespace

char32_t UnicodeOf(unsigned char byte) {
  return IsOwn(byte) ? kOwn[byte - kFirstOwn] : byte;
}

std::optional<unsigned char> CodePageOf(char32_t character) {
  if (character <= 0xFF && !IsOwn(character)) return static_cast<unsigned char>(character);
  const auto found = std::find(kOwn.begin(), kOwn.end(), character);
  if (found == kOwn.end()) return std::nullopt;
  return static_cast<unsigned char>(kFirstOwn + (found - kOwn.begin()));
}

std::string Utf8FromCodePage(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char c : text) AppendUtf8(utf8, UnicodeOf(static_cast<unsigned char>(c)));
  return utf8;
}

std::optional<std::string> CodePageFromUtf8(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::optional<Decoded> decoded = FirstCharacter(utf8);
    const auto byte = decoded ? CodePageOf(decoded->character) : std::nullopt;
    if (!byte) return std::nullopt;
    text.push_back(static_cast<char>(*byte));
    utf8.remove_prefix(decoded->length);
  }
  return text;
}

std::optional<CodePageText> CodePageTextFromUtf8(std::string_view utf8) {
  CodePageText result;
  result.text.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::optional<Decoded> decoded = FirstCharacter(utf8);
    if (!decoded) return std::nullopt;
    const auto byte = CodePageOf(decoded->character);
    if (!byte) result.lacking.push_back({result.text.size(), decoded->character});
    result.text.push_back(byte ? static_cast<char>(*byte) : '?');
    utf8.remove_prefix(decoded->length);
  }
  return result;
}

std::string PathForDisplay(std::string_view path) {
  std::string text;
  text.reserve(path.size());
  while (!path.empty()) {
    const std::optional<Decoded> decoded = FirstCharacter(path);
    const auto byte = decoded ? CodePageOf(decoded->character) : std::nullopt;
    text.push_back(byte ? static_cast<char>(*byte) : '_');
    path.remove_prefix(decoded ? decoded->length : 1);
  }
  return text;
}

}  // namespace tallyroll
