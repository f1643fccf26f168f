// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of a text file as a long work, so many at a time.
#pragma once

#include <algorithm>
#include <string_view>

#include "platform/long_work.h"

namespace tallyroll {

class CountedLines {
 public:
  CountedLines(std::string_view what, std::size_t lines)
      : work_(what, static_cast<int>(lines / kAtATime) + 1) {}
  CountedLines(std::string_view what, std::string_view text)
      : CountedLines(what, static_cast<std::size_t>(std::ranges::count(text, '\n'))) {}

  // One more; false once the work was cancelled.
  bool Next() { return ++lines_ % kAtATime != 0 || work_.Step(); }

 private:
  static constexpr std::size_t kAtATime = 50;

  LongWork work_;
  std::size_t lines_ = 0;
};

// Why a file that the teacher cancelled gives nothing, as the end of a sentence.
inline constexpr std::string_view kNotReadToItsEnd = "was not read to its end";

}  // namespace tallyroll
