// SPDX-License-Identifier: GPL-3.0-or-later
// Currency: the fixed-point decimal of marks' values, weights and averages.
#pragma once

#include <compare>
#include <cstdint>

namespace tallyroll {

// A signed 64-bit count of ten-thousandths. There is no conversion to or from double but by
// name, so that every rounding can be read in the code. An operation whose result does not fit
// throws RunTimeError{kErrorOverflow}.
class Currency {
 public:
  constexpr Currency() = default;

  static constexpr Currency FromScaled(std::int64_t ten_thousandths) {
    Currency c;
    c.scaled_ = ten_thousandths;
    return c;
  }
  // A whole number of units, exactly.
  static Currency FromWhole(std::int64_t units) {
    Currency c;
    if (__builtin_mul_overflow(units, kScale, &c.scaled_)) Overflow();
    return c;
  }
  // Rounded to four decimals, a tie going to the even digit. NaN and infinities overflow.
  static Currency FromDouble(double value);

  constexpr std::int64_t scaled() const { return scaled_; }
  // Division by 10000 in floating point.
  double ToDouble() const { return static_cast<double>(scaled_) / static_cast<double>(kScale); }
  // The nearest whole number, a tie going to the even one; overflows beyond 16 bits.
  std::int16_t ToWhole16() const;

  Currency operator-() const;
  Currency& operator+=(Currency other) {
    std::int64_t result = 0;
    if (__builtin_add_overflow(scaled_, other.scaled_, &result)) Overflow();
    scaled_ = result;
    return *this;
  }
  Currency& operator-=(Currency other) {
    std::int64_t result = 0;
    if (__builtin_sub_overflow(scaled_, other.scaled_, &result)) Overflow();
    scaled_ = result;
    return *this;
  }
  friend Currency operator+(Currency a, Currency b) { return a += b; }
  friend Currency operator-(Currency a, Currency b) { return a -= b; }
  // The exact product, rounded to four decimals, a tie going to the even digit.
  friend Currency operator*(Currency a, Currency b);

  // The check takes the 0 that the compiler compares with for a null pointer.
  friend constexpr auto operator<=>(Currency, Currency) = default;  // NOLINT(modernize-use-nullptr)

 private:
  static constexpr std::int64_t kScale = 10000;

  [[noreturn]] static void Overflow();

  std::int64_t scaled_ = 0;
};

// Nearest whole number, ties to even, as a 16-bit integer; overflows beyond its range.
std::int16_t RoundToInt16(double value);

}  // namespace tallyroll
