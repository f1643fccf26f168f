// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/formats/foreign_mark.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/letters.h"

namespace tallyroll {
namespace {

constexpr std::array<std::string_view, 5> kSpecialMarks = {"ABS", "EXC", "CUT", "NON", "NEW"};
constexpr std::size_t kLongestNumber = 20;
constexpr std::size_t kDecimalsKept = 4;

bool IsDigitOfNumber(char c) {
  return c >= '0' && c <= '9';
}

bool IsLetterMark(std::string_view mark) {
  return std::ranges::any_of(LetterNames,
                             [&](std::string_view name) { return TrimRight(name) == mark; });
}

// Decimals beyond the fourth are rounded by the digits themselves.
std::optional<Currency> PlainNumber(const std::string& text) {
  const std::size_t point = text.find('.');
  try {
    if (point == std::string::npos || text.size() - point - 1 <= kDecimalsKept)
      return CurrencyFromText(text);
    return LeadingCurrency(text);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

}  // namespace

std::optional<Currency> ForeignNumber(std::string_view text) {
  text = Trim(text);
  if (text.empty() || text.size() > kLongestNumber) return std::nullopt;
  std::string plain(text);
  if (plain.front() == '+') plain.erase(0, 1);
  std::ranges::replace(plain, ',', '.');
  const std::size_t digits = plain.starts_with('-') ? 1 : 0;
  const auto points = std::ranges::count(plain, '.');
  const bool only_digits = std::all_of(plain.begin() + static_cast<std::ptrdiff_t>(digits),
                                       plain.end(), [](char c) {
                                         return c == '.' || IsDigitOfNumber(c);
                                       });
  if (!only_digits || points > 1 || !std::ranges::any_of(plain, IsDigitOfNumber))
    return std::nullopt;
  if (plain.ends_with('.')) plain.pop_back();
  if (plain[digits] == '.') plain.insert(digits, "0");
  return PlainNumber(plain);
}

Currency RoundedTo(Currency number, int decimals) {
  std::int64_t unit = 1;
  for (int d = decimals; d < static_cast<int>(kDecimalsKept); ++d) unit *= 10;
  const std::int64_t scaled = number.scaled();
  const std::int64_t rest = scaled % unit;
  std::int64_t rounded = scaled - rest;
  if (2 * rest >= unit) rounded += unit;
  if (-2 * rest >= unit) rounded -= unit;
  return Currency::FromScaled(rounded);
}

std::optional<std::string> MarkOfNumber(Currency number) {
  for (int decimals = kDecimalsKept; decimals >= 0; --decimals) {
    const std::string text = PlainNumberText(RoundedTo(number, decimals));
    if (text.size() <= kLongestMark) return text;
  }
  return std::nullopt;
}

std::optional<std::string> MarkOfCell(std::string_view cell) {
  const std::string text = UpperCase(Trim(cell));
  if (IsLetterMark(text) || std::ranges::find(kSpecialMarks, text) != kSpecialMarks.end())
    return text;
  const std::optional<Currency> number = ForeignNumber(text);
  return number ? std::optional(PlainNumberText(*number)) : std::nullopt;
}

std::optional<Currency> NumberOfMark(std::string_view mark) {
  return ForeignNumber(mark);
}

bool IsSameMark(std::string_view a, std::string_view b) {
  if (Trim(a) == Trim(b)) return true;
  const std::optional<Currency> first = ForeignNumber(a);
  const std::optional<Currency> second = ForeignNumber(b);
  return first && second && RoundedTo(*first, 2) == RoundedTo(*second, 2);
}

}  // namespace tallyroll
