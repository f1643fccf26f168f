// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/months_option.h"

#include <optional>
#include <string_view>

#include "base/date_serial.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

// "YYYY-MM" as the first of the month.
std::optional<double> FirstOfMonth(std::string_view text) {
  if (text.size() != 7 || text[4] != '-') return std::nullopt;
  const auto year = WholeNumberText(text.substr(0, 4)), month = WholeNumberText(text.substr(5));
  if (!year || !month) return std::nullopt;
  const CivilDate date{static_cast<int>(*year), static_cast<int>(*month), 1};
  if (!IsValidDate(date)) return std::nullopt;
  return DateSerial(date);
}

}  // namespace

std::string TakeMonthsOption(const std::string& text, MonthRange& months) {
  if (text.empty()) return "--months is needed, as YYYY-MM..YYYY-MM";
  const std::size_t dots = text.find("..");
  if (dots == std::string::npos) return "--months takes YYYY-MM..YYYY-MM";
  const auto first = FirstOfMonth(std::string_view(text).substr(0, dots));
  const auto last = FirstOfMonth(std::string_view(text).substr(dots + 2));
  if (!first || !last) return "--months is no range of months";
  if (*last < *first) return "The start date must be less than the ending date";
  months = {*first, *last};
  return {};
}

}  // namespace tallyroll
