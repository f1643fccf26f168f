// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as text and back, by std::to_chars and std::from_chars, which know no locale.
#include "base/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/run_time_error.h"
#include "base/text.h"

namespace tallyroll {
namespace {

constexpr std::size_t kDecimals = 4;  // of Currency

// ---- Writing ----

template <typename Number, typename... Form>
std::string ToChars(Number value, Form... form) {
  char buffer[64];
  const auto result = std::to_chars(std::begin(buffer), std::end(buffer), value, form...);
  return std::string(buffer, result.ptr);
}

// Digits without a point as plain decimal text, the point standing behind the first `whole`
// digits, which may be before the first digit or behind the last.
std::string PlainDecimal(bool negative, std::string digits, int whole) {
  if (whole <= 0) {
    digits.insert(0, static_cast<std::size_t>(1 - whole), '0');
    whole = 1;
  }
  const auto point = static_cast<std::size_t>(whole);
  if (digits.size() < point) digits.resize(point, '0');
  std::string fraction = digits.substr(point);
  fraction.erase(fraction.find_last_not_of('0') + 1);
  digits.resize(point);
  if (!fraction.empty()) digits.append(1, '.').append(fraction);
  return negative ? "-" + digits : digits;
}

template <typename Float>
std::string PlainFloat(Float value, int significant) {
  if (value == 0) return "0";  // without the sign of a negative zero
  if (!std::isfinite(value)) return ToChars(value);
  std::string text = ToChars(std::abs(value), std::chars_format::scientific, significant - 1);
  const std::size_t e = text.find('e');
  int exponent = 0;
  const bool positive = text[e + 1] == '+';
  std::from_chars(text.data() + e + (positive ? 2 : 1), text.data() + text.size(), exponent);
  text.erase(e);
  text.erase(1, 1);
  return PlainDecimal(value < 0, std::move(text), exponent + 1);
}

// ---- Reading ----

// A number as it stands at the beginning of a text.
struct Decimal {
  std::string_view text;  // from the sign to the last character of the exponent
  bool negative = false;
  std::string_view whole;     // the digits before the point
  std::string_view fraction;  // and behind it
  bool has_exponent = false;
  std::int64_t exponent = 0;

  bool HasDigits() const { return !whole.empty() || !fraction.empty(); }
  std::size_t DigitCount() const { return whole.size() + fraction.size(); }
  // The digit at an index counted through both parts; beyond the last one, 0.
  int Digit(std::size_t index) const {
    if (index < whole.size()) return whole[index] - '0';
    index -= whole.size();
    return index < fraction.size() ? fraction[index] - '0' : 0;
  }
  std::size_t FirstNonZero() const {
    std::size_t index = 0;
    while (index < DigitCount() && Digit(index) == 0) ++index;
    return index;
  }
  // How many digits stand before the point when it is written without an exponent and without
  // leading zeros; below zero for zeros behind the point.
  std::int64_t Magnitude() const {
    return static_cast<std::int64_t>(whole.size()) + exponent -
           static_cast<std::int64_t>(FirstNonZero());
  }
};

bool IsDecimalDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsSign(char c) {
  return c == '+' || c == '-';
}

std::string_view TakeDigits(std::string_view& rest) {
  const auto end = std::find_if_not(rest.begin(), rest.end(), IsDecimalDigit);
  const std::string_view digits = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
  rest.remove_prefix(digits.size());
  return digits;
}

// An exponent of any length; one beyond every number that a text could balance stays at the limit.
std::int64_t ExponentOf(std::string_view digits) {
  constexpr std::int64_t kLimit = std::int64_t{1} << 48;
  std::int64_t value = 0;
  for (const char c : digits) value = std::min(kLimit, value * 10 + (c - '0'));
  return value;
}

void TakeExponent(std::string_view& rest, Decimal& number) {
  if (rest.empty() || (rest.front() != 'e' && rest.front() != 'E')) return;
  std::string_view ahead = rest.substr(1);
  const bool negative = ahead.starts_with('-');
  if (!ahead.empty() && IsSign(ahead.front())) ahead.remove_prefix(1);
  const std::string_view digits = TakeDigits(ahead);
  if (digits.empty()) return;  // the "e" belongs to what follows the number
  number.has_exponent = true;
  number.exponent = negative ? -ExponentOf(digits) : ExponentOf(digits);
  rest = ahead;
}

Decimal LeadingDecimal(std::string_view text) {
  const std::string_view start = TrimLeft(text);
  std::string_view rest = start;
  Decimal number;
  number.negative = rest.starts_with('-');
  if (!rest.empty() && IsSign(rest.front())) rest.remove_prefix(1);
  number.whole = TakeDigits(rest);
  if (rest.starts_with('.')) {
    rest.remove_prefix(1);
    number.fraction = TakeDigits(rest);
  }
  if (!number.HasDigits()) return Decimal{};
  TakeExponent(rest, number);
  number.text = start.substr(0, start.size() - rest.size());
  return number;
}

double ToDouble(const Decimal& number) {
  if (number.FirstNonZero() == number.DigitCount()) return 0;
  std::string_view text = number.text;
  if (text.front() == '+') text.remove_prefix(1);
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc()) return value;
  if (number.Magnitude() <= 0) return 0;  // too small for a double
  const double infinity = std::numeric_limits<double>::infinity();
  return number.negative ? -infinity : infinity;
}

// The ten-thousandths of a number, a tie going to the even one; nothing when they do not fit.
std::optional<Currency> ToCurrency(const Decimal& number) {
  const std::size_t first = number.FirstNonZero();
  const std::int64_t length = number.Magnitude() + static_cast<std::int64_t>(kDecimals);
  if (first == number.DigitCount() || length < 0) return Currency();
  constexpr int kMostDigits = std::numeric_limits<std::int64_t>::digits10 + 1;
  if (length > kMostDigits) return std::nullopt;

  std::uint64_t scaled = 0;
  const std::size_t end = first + static_cast<std::size_t>(length);
  for (std::size_t i = first; i < end; ++i) {
    scaled = scaled * 10 + static_cast<std::uint64_t>(number.Digit(i));
  }
  bool beyond_half = false;
  for (std::size_t i = end + 1; i < number.DigitCount() && !beyond_half; ++i) {
    beyond_half = number.Digit(i) != 0;
  }
  const int next = number.Digit(end);
  if (next > 5 || (next == 5 && (beyond_half || scaled % 2 != 0))) ++scaled;

  constexpr auto kLargest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  if (scaled > kLargest + (number.negative ? 1 : 0)) return std::nullopt;
  return Currency::FromScaled(static_cast<std::int64_t>(number.negative ? 0 - scaled : scaled));
}

}  // namespace

std::string PlainNumberText(std::int64_t value) {
  return ToChars(value);
}

std::string PlainNumberText(Currency value) {
  const bool negative = value.scaled() < 0;
  const auto bits = static_cast<std::uint64_t>(value.scaled());
  std::string digits = ToChars(negative ? 0 - bits : bits);
  const int whole = static_cast<int>(digits.size()) - static_cast<int>(kDecimals);
  return PlainDecimal(negative, std::move(digits), whole);
}

std::string PlainNumberText(double value) {
  return PlainFloat(value, 15);
}
std::string PlainNumberText(float value) {
  return PlainFloat(value, 7);
}

std::string ShortestNumberText(double value) {
  return ToChars(value);
}
std::string ShortestNumberText(float value) {
  return ToChars(value);
}

double LeadingNumber(std::string_view text) {
  return ToDouble(LeadingDecimal(text));
}

Currency LeadingCurrency(std::string_view text) {
  const std::optional<Currency> value = ToCurrency(LeadingDecimal(text));
  if (!value) throw RunTimeError{kErrorOverflow};
  return *value;
}

std::optional<double> WholeNumberText(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  const Decimal number = LeadingDecimal(trimmed);
  if (!number.HasDigits() || number.text.size() != trimmed.size()) return std::nullopt;
  const double value = ToDouble(number);
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

std::optional<Currency> CurrencyFromText(std::string_view text) {
  const Decimal number = LeadingDecimal(text);
  if (!number.HasDigits() || number.text.size() != text.size()) return std::nullopt;
  if (number.has_exponent || number.fraction.size() > kDecimals) return std::nullopt;
  return ToCurrency(number);
}

}  // namespace tallyroll
