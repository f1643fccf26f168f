// SPDX-License-Identifier: GPL-3.0-or-later
// Lists as class files hold them: items from 0 to n, of which element 0 is never used.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace tallyroll {

// A list of n items has size n + 1, and loops run from 1. One that was never dimensioned has size
// 0, and stands so in the file; that is why the two are kept apart.
template <typename T>
using List = std::vector<T>;

// The last index; 0 for a list without items and for one never dimensioned.
template <typename T>
int UpperBound(const List<T>& list) {
  return list.empty() ? 0 : static_cast<int>(list.size()) - 1;
}

// Dimensions a list to 0..n and keeps what is there; new items take `value`.
template <typename T>
void ReDimPreserve(List<T>& list, int n, const T& value = T()) {
  const bool fresh = list.empty();
  list.resize(static_cast<std::size_t>(n) + 1, value);
  if (fresh) list[0] = T();
}

// The same, but with every item new.
template <typename T>
void ReDim(List<T>& list, int n, const T& value = T()) {
  list.clear();
  ReDimPreserve(list, n, value);
}

// Exactly N characters, padded with blanks on the right.
template <std::size_t N>
class FixedText {
 public:
  FixedText() noexcept : chars_(kBlanks) {}
  FixedText(std::string_view text) : chars_(kBlanks) {
    std::copy_n(text.begin(), std::min(N, text.size()), chars_.begin());
  }
  FixedText(const char* text) : FixedText(std::string_view(text)) {}
  std::string_view view() const { return {chars_.data(), N}; }
  operator std::string_view() const { return view(); }
  char* data() { return chars_.data(); }
  static constexpr std::size_t size() { return N; }

  friend bool operator==(const FixedText&, const FixedText&) = default;
  friend bool operator==(const FixedText& a, std::string_view b) { return a.view() == b; }
  friend bool operator==(const FixedText& a, const char* b) { return a.view() == b; }

 private:
  static constexpr std::array<char, N> kBlanks = [] {
    std::array<char, N> blanks{};
    blanks.fill(' ');
    return blanks;
  }();

  std::array<char, N> chars_;
};

}  // namespace tallyroll
