// SPDX-License-Identifier: GPL-3.0-or-later
// ShortText: a string in eight bytes, made for marks.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string>
#include <string_view>

namespace tallyroll {

// A class of 1,000 students and 300 grades holds 300,000 marks, and its grid shows as many cells;
// nearly all are a few characters long. Up to 7 bytes stand in the object itself, longer text on
// the heap. Converts from and to std::string_view, so it is used like a string.
class ShortText {
 public:
  ShortText() noexcept : bytes_{kInline} {}
  ShortText(std::string_view text) : ShortText() {
    if (text.size() <= kMostInline) {
      bytes_[0] = static_cast<unsigned char>(text.size() << 1 | kInline);
      CopyInline(text.data(), text.size());
    } else {
      Allocate(text);
    }
  }
  ShortText(const char* text) : ShortText(std::string_view(text)) {}
  ShortText(const std::string& text) : ShortText(std::string_view(text)) {}
  ShortText(const ShortText& other) : ShortText(other.view()) {}
  ShortText(ShortText&& other) noexcept : ShortText() { swap(other); }
  ShortText& operator=(const ShortText& other) { return *this = ShortText(other); }
  ShortText& operator=(ShortText&& other) noexcept {
    swap(other);
    return *this;
  }
  ~ShortText() {
    if (!IsInline()) ::operator delete(Block());
  }

  // A text of at most kMostInline bytes, of which kReadAhead may be read whatever its length: one
  // load of a fixed size, where the length would cost a branch that nobody can foretell.
  static constexpr std::size_t kReadAhead = 8;
  void AssignInline(const char* text, std::size_t length) noexcept {
    if (!IsInline()) ::operator delete(Block());
    std::uint64_t word;
    std::memcpy(&word, text, sizeof word);
    const std::uint64_t kept = (std::uint64_t{1} << (8 * length)) - 1;
    word = (word & kept) << 8 | length << 1 | kInline;
    std::memcpy(bytes_, &word, sizeof word);
  }

  std::string_view view() const noexcept {
    if (IsInline()) return {reinterpret_cast<const char*>(bytes_ + 1), std::size_t{bytes_[0]} >> 1};
    std::size_t length;
    std::memcpy(&length, Block(), sizeof length);
    return {Block() + sizeof length, length};
  }
  operator std::string_view() const noexcept { return view(); }
  std::string str() const { return std::string(view()); }
  std::size_t size() const noexcept { return view().size(); }
  bool empty() const noexcept { return view().empty(); }

  // The text when it stands here, with kMostInline bytes that may be read; null when it does not.
  const unsigned char* InlineBytes() const noexcept { return IsInline() ? bytes_ + 1 : nullptr; }
  static constexpr std::size_t kMostInline = 7;

  void swap(ShortText& other) noexcept {
    unsigned char mine[sizeof bytes_];
    std::memcpy(mine, bytes_, sizeof mine);
    std::memcpy(bytes_, other.bytes_, sizeof mine);
    std::memcpy(other.bytes_, mine, sizeof mine);
  }

  friend bool operator==(const ShortText& a, const ShortText& b) noexcept {
    return a.view() == b.view();
  }
  friend bool operator==(const ShortText& a, std::string_view b) noexcept { return a.view() == b; }
  friend bool operator==(const ShortText& a, const std::string& b) noexcept {
    return a.view() == b;
  }
  friend bool operator==(const ShortText& a, const char* b) noexcept { return a.view() == b; }

 private:
  static constexpr unsigned char kInline = 1;

  bool IsInline() const noexcept { return (bytes_[0] & kInline) != 0; }
  char* Block() const noexcept {
    char* block;
    std::memcpy(&block, bytes_, sizeof block);
    return block;
  }

  // Copies of a size known to the compiler, which may overlap: a call of memcpy for two bytes costs
  // more than the bytes.
  void CopyInline(const char* from, std::size_t count) noexcept {
    unsigned char* const to = bytes_ + 1;
    if (count >= 4) {
      std::memcpy(to, from, 4);
      std::memcpy(to + count - 4, from + count - 4, 4);
    } else if (count >= 2) {
      std::memcpy(to, from, 2);
      std::memcpy(to + count - 2, from + count - 2, 2);
    } else if (count == 1) {
      *to = static_cast<unsigned char>(*from);
    }
  }
  void Allocate(std::string_view text);

  // The low bit of the first byte tells two forms apart:
  // 1: the text stands here, its length in the other bits of the first byte;
  // 0: the bytes are a pointer to a heap block, which is its length and then its characters. A
  //    block is aligned, so the low bit of its address, which comes first, is free.
  alignas(8) unsigned char bytes_[8];
};

static_assert(sizeof(ShortText) == 8);
static_assert(std::endian::native == std::endian::little, "a pointer's low byte comes first");

}  // namespace tallyroll
