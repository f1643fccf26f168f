// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as text and back, the same under every locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/currency.h"

namespace tallyroll {

// Plain decimal text: no exponent, no trailing zeros, no blanks: "99", "33.333", "-0.5".
// A double has at most 15 significant digits, a float at most 7; infinity is "inf".
std::string PlainNumberText(std::int64_t value);
std::string PlainNumberText(Currency value);
std::string PlainNumberText(double value);
std::string PlainNumberText(float value);

inline std::string PlainNumberText(int value) {
  return PlainNumberText(std::int64_t{value});
}

// The same with a sign column: one leading blank for a number not below zero.
template <typename Number>
std::string SignedNumberText(Number value) {
  std::string text = PlainNumberText(value);
  return text.front() == '-' ? text : " " + text;
}

// The shortest text that reads back to the same value, with an exponent where that is shorter
// (settings, JSON).
std::string ShortestNumberText(double value);
std::string ShortestNumberText(float value);

// The number that a text begins with: leading blanks, an optional sign, digits with one optional
// decimal point, an optional exponent; reading stops at the first character that cannot go on.
// 0 when there is none; infinite when a double cannot hold it.
double LeadingNumber(std::string_view text);
// The same as Currency, rounded to four decimals, ties to even, from the decimal digits
// themselves. Overflow throws.
Currency LeadingCurrency(std::string_view text);

// The whole text as a number, blanks around it allowed; nothing when anything else stands in it or
// a double cannot hold it.
std::optional<double> WholeNumberText(std::string_view text);
// A Currency written with at most four decimals and no exponent, and nothing else around it, not
// even a blank; nothing when it does not fit.
std::optional<Currency> CurrencyFromText(std::string_view text);

}  // namespace tallyroll
