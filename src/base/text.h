// SPDX-License-Identifier: GPL-3.0-or-later
// Small operations on text held as bytes of code page 1252, one byte a character.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

// Blanks only: a class file pads with blanks, and a tab that a teacher typed is text.
inline std::string_view TrimLeft(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  return text;
}
inline std::string_view TrimRight(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}
inline std::string_view Trim(std::string_view text) {
  return TrimLeft(TrimRight(text));
}

// Upper and lower case by code page 1252, so "é" becomes "É".
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

// The first `count` characters, all of them when there are fewer.
std::string_view Left(std::string_view text, std::size_t count);
// Cut or padded with blanks on the right to exactly `width` characters.
std::string PadRight(std::string_view text, std::size_t width);
std::string PadLeft(std::string_view text, std::size_t width);

}  // namespace tallyroll
