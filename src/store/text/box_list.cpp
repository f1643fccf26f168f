// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/box_list.h"

#include <algorithm>

#include "base/number_text.h"

namespace tallyroll {

std::string BoxList(const std::vector<std::string>& lines) {
  constexpr std::size_t kMost = 10;
  std::string text = "\n";
  for (std::size_t i = 0; i < std::min(lines.size(), kMost); ++i) text += "\n" + lines[i];
  if (lines.size() > kMost)
    text +=
        "\n... and " + PlainNumberText(static_cast<std::int64_t>(lines.size() - kMost)) + " more";
  return text;
}

}  // namespace tallyroll
