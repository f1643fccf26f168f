// SPDX-License-Identifier: GPL-3.0-or-later
// The option that chooses months: YYYY-MM..YYYY-MM.
#pragma once

#include <string>

namespace tallyroll {

// Day serials of the firsts of two months.
struct MonthRange {
  double first = 0;
  double last = 0;
};

// Answers why the text is refused; nothing when `months` was filled.
std::string TakeMonthsOption(const std::string& text, MonthRange& months);

}  // namespace tallyroll
