// SPDX-License-Identifier: GPL-3.0-or-later
// Searching a letter, and the little of Unicode that takes: the core uses no locale.
#include <algorithm>

#include "base/code_page.h"
#include "platform/rich_text.h"

namespace tallyroll {
namespace {

constexpr char16_t kReplacement = 0xFFFD;

bool IsIn(char16_t unit, char16_t first, char16_t last) {
  return unit >= first && unit <= last;
}

// Upper and lower case stand alternately there, the upper one on an even place.
bool AlternatesFromEven(char16_t unit) {
  return IsIn(unit, 0x100, 0x12F) || IsIn(unit, 0x132, 0x137) || IsIn(unit, 0x14A, 0x177) ||
         IsIn(unit, 0x3D8, 0x3EF) || IsIn(unit, 0x460, 0x481) || IsIn(unit, 0x48A, 0x4BF) ||
         IsIn(unit, 0x4D0, 0x52F) || IsIn(unit, 0x1E00, 0x1E95) || IsIn(unit, 0x1EA0, 0x1EFF);
}

bool AlternatesFromOdd(char16_t unit) {
  return IsIn(unit, 0x139, 0x148) || IsIn(unit, 0x179, 0x17E) || IsIn(unit, 0x4C1, 0x4CE);
}

// Lower case of the letters that schools write with: Latin, Greek and Cyrillic.
char16_t LowerUnit(char16_t unit) {
  if (unit < 0x80) return unit >= u'A' && unit <= u'Z' ? unit + 32 : unit;
  if (IsIn(unit, 0xC0, 0xDE) && unit != 0xD7) return unit + 32;
  if (AlternatesFromEven(unit)) return unit | 1;
  if (AlternatesFromOdd(unit)) return unit % 2 == 1 ? unit + 1 : unit;
  if (unit == 0x178) return 0xFF;
  if (unit == 0x386) return 0x3AC;
  if (IsIn(unit, 0x388, 0x38A)) return unit + 37;
  if (unit == 0x38C) return 0x3CC;
  if (unit == 0x38E || unit == 0x38F) return unit + 63;
  if (IsIn(unit, 0x391, 0x3AB)) return unit + 32;
  if (unit == 0x3C2) return 0x3C3;  // the sigma at the end of a word
  if (IsIn(unit, 0x400, 0x40F)) return unit + 80;
  if (IsIn(unit, 0x410, 0x42F)) return unit + 32;
  return unit;
}

std::u16string Lowered(std::u16string_view text) {
  std::u16string lowered(text);
  std::transform(lowered.begin(), lowered.end(), lowered.begin(), LowerUnit);
  return lowered;
}

bool IsWordUnit(char16_t unit) {
  if (unit < 0x80)
    return IsIn(unit, u'0', u'9') || IsIn(LowerUnit(unit), u'a', u'z') || unit == u'_';
  if (unit < 0xC0) return unit == 0xAA || unit == 0xB5 || unit == 0xBA;
  const bool sign = unit == 0xD7 || unit == 0xF7 || IsIn(unit, 0x2000, 0x2BFF) ||
                    IsIn(unit, 0x3000, 0x303F) || IsIn(unit, 0xFE30, 0xFE4F);
  return !sign;
}

bool IsWholeWord(std::u16string_view text, std::size_t at, std::size_t length) {
  const bool begins = at == 0 || !IsWordUnit(text[at - 1]);
  return begins && (at + length == text.size() || !IsWordUnit(text[at + length]));
}

bool IsHighHalf(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLowHalf(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

void AppendUtf8(std::string& utf8, char32_t character) {
  const auto byte = [&](char32_t bits) { utf8 += static_cast<char>(bits); };
  if (character < 0x80) return byte(character);
  if (character < 0x800) {
    byte(0xC0 | character >> 6);
  } else if (character < 0x10000) {
    byte(0xE0 | character >> 12);
    byte(0x80 | (character >> 6 & 0x3F));
  } else {
    byte(0xF0 | character >> 18);
    byte(0x80 | (character >> 12 & 0x3F));
    byte(0x80 | (character >> 6 & 0x3F));
  }
  byte(0x80 | (character & 0x3F));
}

void AppendUtf16(std::u16string& text, char32_t character) {
  if (character < 0x10000) {
    text += static_cast<char16_t>(character);
    return;
  }
  text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
  text += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
}

// How many bytes the character takes by its first one; 0 for a byte that begins none.
std::size_t BytesOfCharacter(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

// The character at the beginning, U+FFFD for bytes that are none; `count` is how many were taken.
char32_t CharacterOf(std::string_view utf8, std::size_t& count) {
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const std::size_t bytes = BytesOfCharacter(byte(0));
  count = 1;
  if (bytes == 1) return byte(0);
  if (bytes == 0 || bytes > utf8.size()) return kReplacement;
  char32_t character = byte(0) & (0xFFU >> (bytes + 1));
  for (std::size_t i = 1; i < bytes; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return kReplacement;
    character = character << 6 | (byte(i) & 0x3FU);
  }
  const bool half = character >= 0xD800 && character < 0xE000;
  if (half || character < kLeast[bytes] || character > 0x10FFFF) return kReplacement;
  count = bytes;
  return character;
}

}  // namespace

std::size_t FindText(const RichText& text, std::u16string_view what, std::size_t from,
                     const TextSearch& search) {
  if (what.empty()) return kNoPlace;
  const std::u16string plain = search.match_case ? PlainText(text) : Lowered(PlainText(text));
  const std::u16string wanted = search.match_case ? std::u16string(what) : Lowered(what);
  std::size_t at = plain.find(wanted, from);
  while (at != plain.npos && search.whole_word && !IsWholeWord(plain, at, wanted.size()))
    at = plain.find(wanted, at + 1);
  return at == plain.npos ? kNoPlace : at;
}

std::u16string Utf16FromCodePage(std::string_view text) {
  std::u16string units;
  units.reserve(text.size());
  for (const char c : text)
    units += static_cast<char16_t>(UnicodeOf(static_cast<unsigned char>(c)));
  return units;
}

std::u16string Utf16FromUtf8(std::string_view utf8) {
  std::u16string units;
  units.reserve(utf8.size());
  while (!utf8.empty()) {
    std::size_t count = 0;
    AppendUtf16(units, CharacterOf(utf8, count));
    utf8.remove_prefix(count);
  }
  return units;
}

std::string Utf8FromUtf16(std::u16string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (IsHighHalf(unit) && i + 1 < text.size() && IsLowHalf(text[i + 1])) {
      AppendUtf8(utf8, 0x10000U + ((unit - 0xD800U) << 10) + (text[++i] - 0xDC00U));
    } else {
      AppendUtf8(utf8, IsHighHalf(unit) || IsLowHalf(unit) ? kReplacement : unit);
    }
  }
  return utf8;
}

}  // namespace tallyroll
