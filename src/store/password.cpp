// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/password.h"

#include "base/text.h"

namespace tallyroll {

std::string ScramblePassword(std::string_view text, std::span<const int> bits) {
  int mask = 0;
  for (const int bit : bits) {
    if (bit > 7) break;
    mask ^= 1 << bit;
  }
  std::string scrambled(text);
  for (char& character : scrambled) character = static_cast<char>(character ^ mask);
  return scrambled;
}

// A stored password may carry padding; yet "j" scrambles to a blank, so one that ends in "j" would
// lock its owner out if the padding were always taken off.
bool PasswordMatches(std::string_view entry, std::string_view stored) {
  if (entry.empty()) return false;
  const std::string scrambled = ScramblePassword(entry);
  return scrambled == stored || scrambled == Trim(stored);
}

}  // namespace tallyroll
