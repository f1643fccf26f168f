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
  const bool minus = text.front() == '-';
  if (minus || text.front() == '+') text.remove_prefix(1);
  std::string whole;
  std::string decimals;
  bool behind_point = false;
  for (const char c : text) {
    const bool point = c == '.' || c == ',';
    if (point ? behind_point : !IsDigitOfNumber(c)) return std::nullopt;
    behind_point = behind_point || point;
    if (!point) (behind_point ? decimals : whole) += c;
  }
  if (whole.empty() && decimals.empty()) return std::nullopt;
  std::string plain = minus ? "-" : "";
  plain += whole.empty() ? "0" : whole;
  if (!decimals.empty()) plain.append(1, '.').append(decimals);
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
