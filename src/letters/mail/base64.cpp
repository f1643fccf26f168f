// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/base64.h"

#include <algorithm>
#include <cstdint>

namespace tallyroll {
namespace {

constexpr std::string_view kBase64Alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/=";
constexpr std::size_t kFiller = 64;  // the place of "="

char SextetOf(std::uint32_t bits, int shift) {
  return kBase64Alphabet[(bits >> shift) & 63];
}

}  // namespace

std::string EncodeBase64(std::string_view bytes) {
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    const std::string_view group = bytes.substr(at, 3);
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 3; ++i)
      bits = bits << 8 | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0);
    text += SextetOf(bits, 18);
    text += SextetOf(bits, 12);
    text += group.size() > 1 ? SextetOf(bits, 6) : kBase64Alphabet[kFiller];
    text += group.size() > 2 ? SextetOf(bits, 0) : kBase64Alphabet[kFiller];
  }
  return text;
}

std::string DecodeBase64String(std::string_view text) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size(); at += 4) {
    std::uint32_t bits = 0;
    std::size_t sextets = 0;
    for (const char c : text.substr(at, 4)) {
      const std::size_t value = kBase64Alphabet.find(c);
      if (value == std::string_view::npos) return bytes;
      if (value == kFiller) break;
      bits |= static_cast<std::uint32_t>(value) << (18 - 6 * sextets++);
    }
    for (std::size_t i = 1; i < sextets; ++i)
      bytes += static_cast<char>(bits >> (24 - 8 * i) & 0xFF);
  }
  return bytes;
}

}  // namespace tallyroll
