// SPDX-License-Identifier: GPL-3.0-or-later
// How keys fill a cell, the same in every grid of marks, weights or minimums.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

// The first key in a cell replaces what stands there, Backspace takes the last character, any other
// key is added behind.
struct CellTyping {
  bool first_key = true;

  // What the cell holds after the key.
  std::string Type(std::string_view cell, unsigned char key);
};

}  // namespace tallyroll
