// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/rows/row_sink.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace tallyroll {

RowSink::RowSink(std::ostream& out) : out_(out), text_(2 * kBlock) {}

void RowSink::BeginFile(std::function<bool()> wait) {
  wait_ = std::move(wait);
  most_ = wait_ ? kMostKept : kBlock;
}

void RowSink::MakeRoom(std::size_t size) {
  text_.resize(std::max(used_ + size, 2 * text_.size()));
}

void RowSink::WriteOut() {
  if (wait_) closed_ = !wait_() || closed_;
  wait_ = nullptr;
  most_ = kBlock;
  if (!closed_) out_.write(text_.data(), static_cast<std::streamsize>(used_));
  closed_ = closed_ || !out_;
  used_ = 0;
}

void RowSink::EndFile() {
  WriteOut();
  if (!closed_) out_.flush();
}

}  // namespace tallyroll
