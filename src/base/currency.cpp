// SPDX-License-Identifier: GPL-3.0-or-later
// Currency arithmetic: exact in 128 bits, rounded once.
#include "base/currency.h"

#include <cmath>
#include <limits>

#include "base/run_time_error.h"

namespace tallyroll {
namespace {

__extension__ typedef __int128 Wide;

constexpr std::int64_t kScale = 10000;

template <typename Integer>
Integer Narrow(Wide value) {
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max()) {
    throw RunTimeError{kErrorOverflow};
  }
  return static_cast<Integer>(value);
}

// The nearest whole quotient, a tie going to the even one.
Wide RoundedQuotient(Wide dividend, Wide divisor) {
  Wide quotient = dividend / divisor;
  Wide remainder = dividend % divisor;
  if (remainder < 0) {
    --quotient;
    remainder += divisor;
  }
  const bool up = 2 * remainder > divisor || (2 * remainder == divisor && quotient % 2 != 0);
  return quotient + (up ? 1 : 0);
}

// The nearest whole number, a tie going to the even one, whatever the rounding mode of the
// processor. Beyond 64 bits it overflows.
std::int64_t RoundedWhole(long double value) {
  constexpr long double kLimit = 9223372036854775808.0L;
  if (!(value >= -kLimit && value < kLimit)) throw RunTimeError{kErrorOverflow};
  const long double lower = std::floor(value);
  const auto whole = static_cast<std::int64_t>(lower);
  const long double rest = value - lower;
  const bool up = rest > 0.5L || (rest == 0.5L && whole % 2 != 0);
  return up ? Narrow<std::int64_t>(Wide{whole} + 1) : whole;
}

}  // namespace

Currency Currency::FromWhole(std::int64_t units) {
  return FromScaled(Narrow<std::int64_t>(Wide{units} * kScale));
}

// The product is a double while one holds fractions, so that a decimal tie such as 0.00025, which
// no double holds exactly, is the tie that a reader sees; beyond that it is exact.
Currency Currency::FromDouble(double value) {
  constexpr double kLastFraction = 4503599627370496.0;  // 2 to the power 52
  const double product = value * static_cast<double>(kScale);
  if (std::abs(product) < kLastFraction) return FromScaled(RoundedWhole(product));
  return FromScaled(RoundedWhole(static_cast<long double>(value) * kScale));
}

double Currency::ToDouble() const {
  return static_cast<double>(scaled_) / static_cast<double>(kScale);
}

std::int16_t Currency::ToWhole16() const {
  return Narrow<std::int16_t>(RoundedQuotient(scaled_, kScale));
}

Currency Currency::operator-() const {
  return FromScaled(Narrow<std::int64_t>(-Wide{scaled_}));
}

Currency& Currency::operator+=(Currency other) {
  scaled_ = Narrow<std::int64_t>(Wide{scaled_} + other.scaled_);
  return *this;
}

Currency& Currency::operator-=(Currency other) {
  scaled_ = Narrow<std::int64_t>(Wide{scaled_} - other.scaled_);
  return *this;
}

Currency operator*(Currency a, Currency b) {
  const Wide product = Wide{a.scaled_} * b.scaled_;
  return Currency::FromScaled(Narrow<std::int64_t>(RoundedQuotient(product, kScale)));
}

std::int16_t RoundToInt16(double value) {
  return Narrow<std::int16_t>(RoundedWhole(value));
}

}  // namespace tallyroll
