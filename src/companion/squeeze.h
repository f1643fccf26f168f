// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes made smaller for keeping, and back.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

// Where there is no library for it they stay as they are.
std::string Squeezed(std::string_view bytes);

struct Unsqueezed {
  std::string bytes;
  std::string fault;  // why there are none, in words
};
// Trusts nothing: what is damaged says so.
Unsqueezed Unsqueeze(std::string_view kept);

// By the mark at their head; a class file never begins so.
inline bool IsSqueezed(std::string_view kept) {
  return kept.starts_with("\x28\xB5\x2F\xFD");
}

}  // namespace tallyroll
