// SPDX-License-Identifier: GPL-3.0-or-later
// ShortText: a string in eight bytes, made for marks.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyroll {

// A class of 1,000 students and 300 grades holds 300,000 marks, and its grid shows as many cells;
// nearly all are a few characters long. Up to 7 bytes stand in the object itself, longer text on
// the heap. Converts from and to std::string_view, so it is used like a string.
class ShortText {
 public:
  ShortText() noexcept : bytes_{} {}
  ShortText(std::string_view text) { Assign(text); }
  ShortText(const char* text) : ShortText(std::string_view(text)) {}
  ShortText(const std::string& text) : ShortText(std::string_view(text)) {}
  ShortText(const ShortText& other);
  ShortText(ShortText&& other) noexcept;
  ShortText& operator=(const ShortText& other);
  ShortText& operator=(ShortText&& other) noexcept;
  ~ShortText();

  std::string_view view() const noexcept;
  operator std::string_view() const noexcept { return view(); }
  std::string str() const { return std::string(view()); }
  std::size_t size() const noexcept { return view().size(); }
  bool empty() const noexcept { return view().empty(); }

  friend bool operator==(const ShortText& a, const ShortText& b) noexcept { return a.view() == b.view(); }
  friend bool operator==(const ShortText& a, std::string_view b) noexcept { return a.view() == b; }
  friend bool operator==(const ShortText& a, const char* b) noexcept { return a.view() == b; }

 private:
  void Assign(std::string_view text);
  void Release() noexcept;

  // bytes_[7] is the length when the text stands here, kOnHeap when the first bytes hold a pointer
  // (x86-64 and AArch64 user pointers leave the top byte free; see short_text.cpp).
  alignas(8) unsigned char bytes_[8];
};

static_assert(sizeof(ShortText) == 8);

}  // namespace tallyroll
