// SPDX-License-Identifier: GPL-3.0-or-later
// Currency arithmetic: exact in 128 bits, rounded once.
#include "base/currency.h"

#include <cmath>
#include <limits>

#include "base/run_time_error.h"

namespace tallyroll {
namespace {

__extension__ typedef __int128 Wide;

template <typename Integer>
Integer Narrow(Wide value) {
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max()) {
    throw RunTimeError{kErrorOverflow};
  }
  return static_cast<Integer>(value);
}

// The nearest whole quotient, a tie going to the even one.
template <typename Integer>
Integer RoundedQuotient(Integer dividend, Integer divisor) {
  Integer quotient = dividend / divisor;
  Integer remainder = dividend % divisor;
  if (remainder < 0) {
    --quotient;
    remainder += divisor;
  }
  const bool up = 2 * remainder > divisor || (2 * remainder == divisor && quotient % 2 != 0);
  return quotient + (up ? 1 : 0);
}

// The nearest whole number, a tie going to the even one, whatever the rounding mode of the
// processor. Beyond 64 bits it overflows.
template <typename Float>
std::int64_t RoundedWhole(Float value) {
  constexpr Float kLimit = 9223372036854775808.0;
  if (!(value >= -kLimit && value < kLimit)) throw RunTimeError{kErrorOverflow};
  const auto whole = static_cast<std::int64_t>(value);
  const Float rest = std::abs(value - static_cast<Float>(whole));
  // Without a branch: which way a figure goes is as good as chance.
  const int outward = int{rest > Float{0.5}} | (int{rest == Float{0.5}} & int{whole % 2 != 0});
  const int away_from_zero = value < 0 ? -1 : 1;
  std::int64_t rounded = 0;
  if (__builtin_add_overflow(whole, outward * away_from_zero, &rounded)) {
    throw RunTimeError{kErrorOverflow};
  }
  return rounded;
}

}  // namespace

void Currency::Overflow() {
  throw RunTimeError{kErrorOverflow};
}

// The product is a double while one holds fractions, so that a decimal tie such as 0.00025, which
// no double holds exactly, is the tie that a reader sees; beyond that it is exact.
Currency Currency::FromDouble(double value) {
  constexpr double kLastFraction = 4503599627370496.0;  // 2 to the power 52
  const double product = value * static_cast<double>(kScale);
  if (std::abs(product) < kLastFraction) return FromScaled(RoundedWhole(product));
  return FromScaled(RoundedWhole(static_cast<long double>(value) * kScale));
}

std::int16_t Currency::ToWhole16() const {
  return Narrow<std::int16_t>(RoundedQuotient(scaled_, kScale));
}

Currency Currency::operator-() const {
  return FromScaled(Narrow<std::int64_t>(-Wide{scaled_}));
}

Currency operator*(Currency a, Currency b) {
  std::int64_t short_product = 0;
  if (!__builtin_mul_overflow(a.scaled_, b.scaled_, &short_product)) {
    return Currency::FromScaled(RoundedQuotient(short_product, Currency::kScale));
  }
  const Wide product = Wide{a.scaled_} * b.scaled_;
  return Currency::FromScaled(
      Narrow<std::int64_t>(RoundedQuotient<Wide>(product, Currency::kScale)));
}

std::int16_t RoundToInt16(double value) {
  return Narrow<std::int16_t>(RoundedWhole(value));
}

}  // namespace tallyroll
