// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/cell_typing.h"

#include <utility>

namespace tallyroll {
namespace {

constexpr unsigned char kBackspace = 8;

}  // namespace

std::string CellTyping::Type(std::string_view cell, unsigned char key) {
  std::string text(std::exchange(first_key, false) ? "" : cell);
  if (key != kBackspace)
    text += static_cast<char>(key);
  else if (!text.empty())
    text.pop_back();
  return text;
}

}  // namespace tallyroll
