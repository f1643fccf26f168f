// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/text/code_page_bytes.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "base/code_page.h"
#include "base/number_text.h"
#include "platform/rich_text.h"

namespace tallyroll {
namespace {

constexpr char16_t kNoCharacter = 0xFFFD;
constexpr char16_t kBullet = 0x2022;
constexpr unsigned char kSymbolBullet = 0xB7;

bool IsAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Signs of a font stand where Unicode leaves room for private use; the bullet is everybody's. Where
// such fonts have no signs, other programs mean those of code page 1252.
std::u16string SymbolText(std::string_view bytes) {
  std::u16string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const bool has_sign = byte > ' ' && (byte < 0x7F || byte > 0x9F);
    const auto own = static_cast<char16_t>(has_sign ? 0xF000 + byte : UnicodeOf(byte));
    text += byte == kSymbolBullet ? kBullet : own;
  }
  return text;
}

std::string NameOfPage(int page) {
  if (page == kMacPage) return "MACINTOSH";
  if (page == 65001) return "UTF-8";
  return "CP" + PlainNumberText(page);
}

iconv_t NoConverter() {
  return reinterpret_cast<iconv_t>(-1);  // NOLINT: what the system answers when it has none
}

void AppendConverted(std::u16string& text, iconv_t converter, std::string_view bytes) {
  std::string input(bytes);
  char* from = input.data();
  std::size_t left = input.size();
  std::array<char16_t, 256> room{};
  iconv(converter, nullptr, nullptr, nullptr, nullptr);
  while (left > 0) {
    char* to = reinterpret_cast<char*>(room.data());
    std::size_t free = sizeof room;
    const bool failed = iconv(converter, &from, &left, &to, &free) == static_cast<std::size_t>(-1);
    text.append(room.data(), (sizeof room - free) / sizeof(char16_t));
    if (!failed || errno == E2BIG) continue;
    text += kNoCharacter;
    ++from;
    --left;
  }
}

}  // namespace

int PageOfCharset(int charset) {
  switch (charset) {
    case 2:
      return kSymbolPage;
    case 77:
      return kMacPage;
    case 128:
      return 932;
    case 129:
      return 949;
    case 130:
      return 1361;
    case 134:
      return 936;
    case 136:
      return 950;
    case 161:
      return 1253;
    case 162:
      return 1254;
    case 163:
      return 1258;
    case 177:
      return 1255;
    case 178:
      return 1256;
    case 186:
      return 1257;
    case 204:
      return 1251;
    case 222:
      return 874;
    case 238:
      return 1250;
    case 254:
      return 437;
    case 255:
      return 850;
    default:
      return kWesternPage;
  }
}

CodePageBytes::~CodePageBytes() {
  for (const auto& [page, converter] : converters_)
    if (converter) iconv_close(converter);
}

void* CodePageBytes::ConverterOf(int page) {
  const auto known = converters_.find(page);
  if (known != converters_.end()) return known->second;
  const iconv_t converter = iconv_open("UTF-16LE", NameOfPage(page).c_str());
  return converters_[page] = converter == NoConverter() ? nullptr : converter;
}

std::u16string CodePageBytes::Decode(std::string_view bytes, int page) {
  if (page == kSymbolPage) return SymbolText(bytes);
  if (IsAscii(bytes)) return {bytes.begin(), bytes.end()};
  void* converter = page == kWesternPage ? nullptr : ConverterOf(page);
  if (!converter) return Utf16FromCodePage(bytes);
  std::u16string text;
  AppendConverted(text, converter, bytes);
  return text;
}

}  // namespace tallyroll
