// SPDX-License-Identifier: GPL-3.0-or-later
// ShortText: where longer text goes.
#include "base/short_text.h"

#include <new>
#include <utility>

namespace tallyroll {

ShortText::ShortText(std::string_view text) : ShortText() {
  if (text.size() <= kMostInline) {
    bytes_[0] = static_cast<unsigned char>(text.size() << 1 | kInline);
    if (!text.empty()) std::memcpy(bytes_ + 1, text.data(), text.size());
    return;
  }
  char* const block = static_cast<char*>(::operator new(sizeof(std::size_t) + text.size()));
  const std::size_t length = text.size();
  std::memcpy(block, &length, sizeof length);
  std::memcpy(block + sizeof length, text.data(), length);
  std::memcpy(bytes_, &block, sizeof block);
}

ShortText::ShortText(ShortText&& other) noexcept : ShortText() {
  swap(other);
}

ShortText& ShortText::operator=(ShortText other) noexcept {
  swap(other);
  return *this;
}

ShortText::~ShortText() {
  if (!IsInline()) ::operator delete(Block());
}

void ShortText::swap(ShortText& other) noexcept {
  std::swap(bytes_, other.bytes_);
}

}  // namespace tallyroll
