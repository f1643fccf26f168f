// SPDX-License-Identifier: GPL-3.0-or-later
// Text as bytes of code page 1252.
#include "base/text.h"

namespace tallyroll {
namespace {

constexpr unsigned char kCaseBit = 0x20;  // between "a" and "A", and between "à" and "À"
constexpr unsigned char kDivisionSign = 0xF7;
constexpr unsigned char kMultiplicationSign = 0xD7;
constexpr unsigned char kLowerYDiaeresis = 0xFF;
constexpr unsigned char kUpperYDiaeresis = 0x9F;

// The letters of 80 to 9F that have both cases, in their lower form: "š", "œ", "ž".
constexpr bool IsLowCaronOrLigature(unsigned char c) {
  return c == 0x9A || c == 0x9C || c == 0x9E;
}

constexpr bool IsPlainLower(unsigned char c) {
  return (c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != kDivisionSign);
}

constexpr bool IsPlainUpper(unsigned char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != kMultiplicationSign);
}

constexpr unsigned char Upper(unsigned char c) {
  if (IsPlainLower(c)) return static_cast<unsigned char>(c - kCaseBit);
  if (IsLowCaronOrLigature(c)) return static_cast<unsigned char>(c - 0x10);
  return c == kLowerYDiaeresis ? kUpperYDiaeresis : c;
}

constexpr unsigned char Lower(unsigned char c) {
  if (IsPlainUpper(c)) return static_cast<unsigned char>(c + kCaseBit);
  if (c >= 0x80 && c <= 0x8F && IsLowCaronOrLigature(static_cast<unsigned char>(c + 0x10))) {
    return static_cast<unsigned char>(c + 0x10);
  }
  return c == kUpperYDiaeresis ? kLowerYDiaeresis : c;
}

std::string Mapped(std::string_view text, unsigned char (*map)(unsigned char)) {
  std::string mapped(text);
  for (char& c : mapped) c = static_cast<char>(map(static_cast<unsigned char>(c)));
  return mapped;
}

}  // namespace

std::string UpperCase(std::string_view text) {
  return Mapped(text, Upper);
}
std::string LowerCase(std::string_view text) {
  return Mapped(text, Lower);
}

std::string_view Left(std::string_view text, std::size_t count) {
  return text.substr(0, count);
}

std::string PadRight(std::string_view text, std::size_t width) {
  std::string padded(text.substr(0, width));
  padded.resize(width, ' ');
  return padded;
}

std::string PadLeft(std::string_view text, std::size_t width) {
  const std::string_view cut = text.substr(0, width);
  return std::string(width - cut.size(), ' ').append(cut);
}

}  // namespace tallyroll
