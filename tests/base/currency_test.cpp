// SPDX-License-Identifier: GPL-3.0-or-later
// Every rounding of Currency, and that nothing overflows in silence.
#include "base/currency.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <random>

#include "base/run_time_error.h"

namespace tallyroll {
namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

Currency Scaled(std::int64_t ten_thousandths) {
  return Currency::FromScaled(ten_thousandths);
}

// The number of the error that an operation ends in; 0 for none.
int ErrorOf(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const RunTimeError& error) {
    return error.number;
  }
  return 0;
}

TEST(Currency, BeginsAtZero) {
  EXPECT_EQ(Currency().scaled(), 0);
}

TEST(Currency, WholeNumbersAreExact) {
  EXPECT_EQ(Currency::FromWhole(100).scaled(), 1000000);
  EXPECT_EQ(Currency::FromWhole(-7).scaled(), -70000);
  EXPECT_EQ(Currency::FromWhole(922337203685477).scaled(), 9223372036854770000);
}

TEST(Currency, AWholeNumberBeyondItsRangeOverflows) {
  EXPECT_EQ(ErrorOf([] { Currency::FromWhole(922337203685478); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { Currency::FromWhole(-922337203685478); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { Currency::FromWhole(kLeast); }), kErrorOverflow);
}

TEST(CurrencyFromDouble, RoundsToFourDecimals) {
  EXPECT_EQ(Currency::FromDouble(33.333333).scaled(), 333333);
  EXPECT_EQ(Currency::FromDouble(66.666666).scaled(), 666667);
  EXPECT_EQ(Currency::FromDouble(-66.666666).scaled(), -666667);
  EXPECT_EQ(Currency::FromDouble(0.1).scaled(), 1000);
}

// 1/32 = 0.03125 and its odd multiples are exact in binary, so these are true ties.
TEST(CurrencyFromDouble, ATieGoesToTheEvenDigit) {
  EXPECT_EQ(Currency::FromDouble(0.03125).scaled(), 312);
  EXPECT_EQ(Currency::FromDouble(0.09375).scaled(), 938);
  EXPECT_EQ(Currency::FromDouble(-0.03125).scaled(), -312);
  EXPECT_EQ(Currency::FromDouble(-0.09375).scaled(), -938);
}

// The double nearest to 0.00025 is 0.000250000000000000005... and that to 0.00035 is
// 0.000349999999999999996...: neither is a tie, though a product in double would make it one.
// 0.00005, 0.00025 and 0.00035 lie half way between two Currency values.
TEST(CurrencyFromDouble, ADecimalTieIsATieThoughNoDoubleHoldsIt) {
  EXPECT_EQ(Currency::FromDouble(0.00005).scaled(), 0);
  EXPECT_EQ(Currency::FromDouble(0.00025).scaled(), 2);
  EXPECT_EQ(Currency::FromDouble(0.00035).scaled(), 4);
}

TEST(CurrencyFromDouble, IgnoresTheRoundingModeOfTheProcessor) {
  const int before = std::fegetround();
  std::fesetround(FE_UPWARD);
  const std::int64_t tie = Currency::FromDouble(0.03125).scaled();
  const std::int64_t third = Currency::FromDouble(33.33333).scaled();
  std::fesetround(before);
  EXPECT_EQ(tie, 312);
  EXPECT_EQ(third, 333333);
}

TEST(CurrencyFromDouble, WhatIsNoNumberOverflows) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(ErrorOf([] { Currency::FromDouble(std::nan("")); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([&] { Currency::FromDouble(infinity); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([&] { Currency::FromDouble(-infinity); }), kErrorOverflow);
}

TEST(CurrencyFromDouble, BeyondItsRangeOverflows) {
  EXPECT_EQ(ErrorOf([] { Currency::FromDouble(922337203685478.0); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { Currency::FromDouble(-922337203685478.0); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { Currency::FromDouble(1e300); }), kErrorOverflow);
  EXPECT_EQ(Currency::FromDouble(-922337203685477.0).scaled(), -9223372036854770000);
}

TEST(Currency, ToDoubleDividesByTenThousand) {
  EXPECT_EQ(Scaled(333333).ToDouble(), 33.3333);
  EXPECT_EQ(Scaled(-5000).ToDouble(), -0.5);
}

TEST(Currency, EveryMarkComesBackFromDouble) {
  for (std::int64_t scaled = -2000000; scaled <= 2000000; ++scaled) {
    ASSERT_EQ(Currency::FromDouble(Scaled(scaled).ToDouble()).scaled(), scaled);
  }
}

TEST(CurrencyToWhole16, RoundsToTheNearestATieToTheEvenOne) {
  EXPECT_EQ(Scaled(894999).ToWhole16(), 89);
  EXPECT_EQ(Scaled(895000).ToWhole16(), 90);
  EXPECT_EQ(Scaled(885000).ToWhole16(), 88);
  EXPECT_EQ(Scaled(885001).ToWhole16(), 89);
  EXPECT_EQ(Scaled(-25000).ToWhole16(), -2);
  EXPECT_EQ(Scaled(-35000).ToWhole16(), -4);
  EXPECT_EQ(Scaled(-25001).ToWhole16(), -3);
}

TEST(CurrencyToWhole16, BeyondSixteenBitsOverflows) {
  EXPECT_EQ(Scaled(327674999).ToWhole16(), 32767);
  EXPECT_EQ(ErrorOf([] { Scaled(327675000).ToWhole16(); }), kErrorOverflow);
  EXPECT_EQ(Scaled(-327685000).ToWhole16(), -32768);  // -32768.5, and -32768 is even
  EXPECT_EQ(ErrorOf([] { Scaled(-327685001).ToWhole16(); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { Scaled(kMost).ToWhole16(); }), kErrorOverflow);
}

TEST(RoundToInt16, RoundsToTheNearestATieToTheEvenOne) {
  EXPECT_EQ(RoundToInt16(2.5), 2);
  EXPECT_EQ(RoundToInt16(3.5), 4);
  EXPECT_EQ(RoundToInt16(-2.5), -2);
  EXPECT_EQ(RoundToInt16(-3.5), -4);
  EXPECT_EQ(RoundToInt16(0.49999999999999994), 0);
}

TEST(RoundToInt16, BeyondSixteenBitsOverflows) {
  EXPECT_EQ(RoundToInt16(32767.49), 32767);
  EXPECT_EQ(ErrorOf([] { RoundToInt16(32767.5); }), kErrorOverflow);
  EXPECT_EQ(RoundToInt16(-32768.5), -32768);
  EXPECT_EQ(ErrorOf([] { RoundToInt16(-32769); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { RoundToInt16(std::nan("")); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { RoundToInt16(1e30); }), kErrorOverflow);
}

TEST(Currency, AddsAndSubtracts) {
  EXPECT_EQ((Scaled(15000) + Scaled(25001)).scaled(), 40001);
  EXPECT_EQ((Scaled(15000) - Scaled(25001)).scaled(), -10001);
  EXPECT_EQ((-Scaled(15000)).scaled(), -15000);
}

TEST(Currency, SumsAndDifferencesOverflowAtTheLimits) {
  EXPECT_EQ((Scaled(kMost - 1) + Scaled(1)).scaled(), kMost);
  EXPECT_EQ(ErrorOf([] { Scaled(kMost) + Scaled(1); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { Scaled(kLeast) - Scaled(1); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { -Scaled(kLeast); }), kErrorOverflow);
}

TEST(Currency, AnOverflowingSumLeavesTheValueAsItWas) {
  Currency sum = Scaled(kMost);
  EXPECT_EQ(ErrorOf([&] { sum += Scaled(1); }), kErrorOverflow);
  EXPECT_EQ(sum.scaled(), kMost);
}

TEST(Currency, AProductIsRoundedOnceATieToTheEvenDigit) {
  EXPECT_EQ((Scaled(15000) * Scaled(25000)).scaled(), 37500);  // 1.5 * 2.5 = 3.75
  EXPECT_EQ((Scaled(1) * Scaled(5000)).scaled(), 0);           // 0.00005
  EXPECT_EQ((Scaled(3) * Scaled(5000)).scaled(), 2);           // 0.00015
  EXPECT_EQ((Scaled(-1) * Scaled(5000)).scaled(), 0);
  EXPECT_EQ((Scaled(-3) * Scaled(5000)).scaled(), -2);
  EXPECT_EQ((Scaled(1) * Scaled(5001)).scaled(), 1);
  EXPECT_EQ((Scaled(-1) * Scaled(5001)).scaled(), -1);
}

TEST(Currency, AProductBeyondTheRangeOverflows) {
  EXPECT_EQ((Scaled(kMost) * Currency::FromWhole(1)).scaled(), kMost);
  EXPECT_EQ((Scaled(kLeast) * Currency::FromWhole(1)).scaled(), kLeast);
  EXPECT_EQ(ErrorOf([] { Scaled(kMost) * Scaled(10001); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { Scaled(kLeast) * Currency::FromWhole(-1); }), kErrorOverflow);
  EXPECT_EQ(ErrorOf([] { Scaled(kLeast) * Scaled(kLeast); }), kErrorOverflow);
}

// Against whole-number arithmetic: 10000 * p is the nearest multiple to the exact product, and
// where two are equally near p is even. Factors below 2^31 keep the exact product in 64 bits.
TEST(Currency, EveryProductIsTheNearest) {
  std::mt19937_64 random(1);
  std::uniform_int_distribution<std::int64_t> factor(-2000000000, 2000000000);
  for (int i = 0; i < 100000; ++i) {
    const std::int64_t a = factor(random);
    const std::int64_t b = i % 2 == 0 ? factor(random) : factor(random) / 5000 * 5000;
    const std::int64_t p = (Scaled(a) * Scaled(b)).scaled();
    const std::int64_t twice_off = 2 * (a * b - 10000 * p);
    ASSERT_LE(std::abs(twice_off), 10000) << a << " * " << b;
    if (std::abs(twice_off) == 10000) {
      ASSERT_EQ(p % 2, 0) << a << " * " << b;
    }
  }
}

// A double is a whole number times a power of two; for |value| = m / 2^k the distance from the
// result is checked in whole numbers: |m * 10000 - s * 2^k| <= 2^k / 2.
TEST(CurrencyFromDouble, EveryResultIsTheNearest) {
  std::mt19937_64 random(2);
  std::uniform_int_distribution<std::int64_t> numerator(-(std::int64_t{1} << 40),
                                                        std::int64_t{1} << 40);
  for (int i = 0; i < 100000; ++i) {
    const int k = i % 30;
    const std::int64_t m = numerator(random);
    const std::int64_t s = Currency::FromDouble(std::ldexp(static_cast<double>(m), -k)).scaled();
    const std::int64_t power = std::int64_t{1} << k;
    const std::int64_t twice_off = 2 * (m * 10000 - s * power);
    ASSERT_LE(std::abs(twice_off), power) << m << " / 2^" << k;
    if (std::abs(twice_off) == power) {
      ASSERT_EQ(s % 2, 0) << m << " / 2^" << k;
    }
  }
}

TEST(Currency, OrdersByValue) {
  EXPECT_LT(Scaled(-1), Scaled(0));
  EXPECT_GT(Currency::FromWhole(2), Scaled(19999));
  EXPECT_EQ(Currency::FromWhole(2), Scaled(20000));
}

}  // namespace
}  // namespace tallyroll
