// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes as hexadecimal digits, in file order.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tallyroll {

static_assert(std::endian::native == std::endian::little, "a number's bytes are in file order");

// The bytes of a Single or a double as a class file holds them.
template <typename Number>
std::array<unsigned char, sizeof(Number)> BytesOf(Number value) {
  return std::bit_cast<std::array<unsigned char, sizeof(Number)>>(value);
}

template <std::size_t N>
std::string HexText(const std::array<unsigned char, N>& bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (const unsigned char byte : bytes) {
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
  }
  return text;
}

inline int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// Nothing when the text is not exactly two digits a byte.
template <std::size_t N>
std::optional<std::array<unsigned char, N>> BytesFromHex(std::string_view text) {
  if (text.size() != 2 * N) return std::nullopt;
  std::array<unsigned char, N> bytes{};
  for (std::size_t i = 0; i < N; ++i) {
    const int high = HexDigit(text[2 * i]);
    const int low = HexDigit(text[2 * i + 1]);
    if (high < 0 || low < 0) return std::nullopt;
    bytes[i] = static_cast<unsigned char>(high * 16 + low);
  }
  return bytes;
}

}  // namespace tallyroll
