// SPDX-License-Identifier: GPL-3.0-or-later
// ShortText: where longer text goes.
#include "base/short_text.h"

namespace tallyroll {

void ShortText::Allocate(std::string_view text) {
  char* const block = static_cast<char*>(::operator new(sizeof(std::size_t) + text.size()));
  const std::size_t length = text.size();
  std::memcpy(block, &length, sizeof length);
  std::memcpy(block + sizeof length, text.data(), length);
  std::memcpy(bytes_, &block, sizeof block);
}

}  // namespace tallyroll
