// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/line_reader.h"

namespace tallyroll {

std::optional<std::string_view> LineReader::Next() {
  if (rest_.empty()) return std::nullopt;
  const std::size_t end = rest_.find_first_of("\r\n");
  const std::string_view line = rest_.substr(0, end);
  const std::size_t closed = end == std::string_view::npos ? rest_.size() : end + 1;
  const bool pair = closed < rest_.size() && rest_[closed - 1] == '\r' && rest_[closed] == '\n';
  rest_.remove_prefix(closed + (pair ? 1 : 0));
  return line;
}

}  // namespace tallyroll
