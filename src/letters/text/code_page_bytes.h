// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes of any code page to Unicode.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tallyroll {

inline constexpr int kWesternPage = 1252;
inline constexpr int kSymbolPage = 42;  // a font's own signs, which have no other code
inline constexpr int kMacPage = 10000;

// The code page of a font by the character set that it names.
int PageOfCharset(int charset);

class CodePageBytes {
 public:
  CodePageBytes() = default;
  ~CodePageBytes();
  CodePageBytes(const CodePageBytes&) = delete;
  CodePageBytes& operator=(const CodePageBytes&) = delete;

  // A byte that the page has no character for becomes U+FFFD. A page that the system does not know
  // is taken for 1252, so that at least the plain letters are right.
  std::u16string Decode(std::string_view bytes, int page);

 private:
  void* ConverterOf(int page);

  std::map<int, void*> converters_;  // by page; null for one that the system does not know
};

}  // namespace tallyroll
