// SPDX-License-Identifier: GPL-3.0-or-later
// The few places where an average passes through floating point. Each is rounded back to four
// decimals where it ends: another order gives another final grade near a threshold.
#pragma once

#include "base/currency.h"
#include "base/run_time_error.h"

namespace tallyroll {

inline double Divided(double dividend, double divisor) {
  if (divisor == 0) throw RunTimeError{kErrorDivisionByZero};
  return dividend / divisor;
}

// A product with a whole number needs no rounding.
inline Currency Hundredfold(Currency value) {
  std::int64_t scaled = 0;
  if (__builtin_mul_overflow(value.scaled(), 100, &scaled)) throw RunTimeError{kErrorOverflow};
  return Currency::FromScaled(scaled);
}

// A mark's percent of the most that it could be.
inline Currency PercentOf(Currency value, int mvalue) {
  return Currency::FromDouble(Divided(Hundredfold(value).ToDouble(), mvalue));
}

// The part of a whole, in percent: multiplied first, then divided.
inline Currency PercentOf(Currency part, Currency whole) {
  return Currency::FromDouble(Divided(Hundredfold(part).ToDouble(), whole.ToDouble()));
}

// A percent at its weight: their product is a Currency before it is divided.
inline Currency Weighted(Currency weight, Currency percent) {
  return Currency::FromDouble((weight * percent).ToDouble() / 100);
}

}  // namespace tallyroll
