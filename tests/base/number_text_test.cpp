// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers written for the teacher and read from what the teacher typed.
#include "base/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "base/run_time_error.h"

namespace tallyroll {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string TextOfScaled(std::int64_t scaled) {
  return PlainNumberText(Currency::FromScaled(scaled));
}

std::int64_t ScaledOf(std::string_view text) {
  return LeadingCurrency(text).scaled();
}

int ErrorOfCurrency(std::string_view text) {
  try {
    LeadingCurrency(text);
  } catch (const RunTimeError& error) {
    return error.number;
  }
  return 0;
}

TEST(PlainNumberText, WritesWholeNumbers) {
  EXPECT_EQ(PlainNumberText(0), "0");
  EXPECT_EQ(PlainNumberText(-17), "-17");
  EXPECT_EQ(PlainNumberText(std::int64_t{9223372036854775807}), "9223372036854775807");
  EXPECT_EQ(PlainNumberText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(PlainNumberText, WritesCurrencyWithoutTrailingZeros) {
  EXPECT_EQ(TextOfScaled(0), "0");
  EXPECT_EQ(TextOfScaled(990000), "99");
  EXPECT_EQ(TextOfScaled(333330), "33.333");
  EXPECT_EQ(TextOfScaled(1000000), "100");
  EXPECT_EQ(TextOfScaled(-5000), "-0.5");
  EXPECT_EQ(TextOfScaled(1), "0.0001");
  EXPECT_EQ(TextOfScaled(-120), "-0.012");
  EXPECT_EQ(TextOfScaled(10001), "1.0001");
}

TEST(PlainNumberText, WritesTheLimitsOfCurrency) {
  EXPECT_EQ(TextOfScaled(std::numeric_limits<std::int64_t>::max()), "922337203685477.5807");
  EXPECT_EQ(TextOfScaled(std::numeric_limits<std::int64_t>::min()), "-922337203685477.5808");
}

TEST(PlainNumberText, WritesADoubleWithFifteenDigits) {
  EXPECT_EQ(PlainNumberText(0.1), "0.1");
  EXPECT_EQ(PlainNumberText(-0.5), "-0.5");
  EXPECT_EQ(PlainNumberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(PlainNumberText(100.0 / 3), "33.3333333333333");
  EXPECT_EQ(PlainNumberText(200.0 / 3), "66.6666666666667");
  EXPECT_EQ(PlainNumberText(9.9999999999999999), "10");
  EXPECT_EQ(PlainNumberText(123456789012345.0), "123456789012345");
}

TEST(PlainNumberText, WritesNoExponent) {
  EXPECT_EQ(PlainNumberText(1e20), "100000000000000000000");
  EXPECT_EQ(PlainNumberText(1234567890123456.0), "1234567890123460");
  EXPECT_EQ(PlainNumberText(1e-7), "0.0000001");
  EXPECT_EQ(PlainNumberText(-1.5e-9), "-0.0000000015");
  EXPECT_EQ(PlainNumberText(1e308), "1" + std::string(308, '0'));
  EXPECT_EQ(PlainNumberText(5e-324), "0." + std::string(323, '0') + "494065645841247");
}

TEST(PlainNumberText, WritesAFloatWithSevenDigits) {
  EXPECT_EQ(PlainNumberText(0.1f), "0.1");
  EXPECT_EQ(PlainNumberText(89.5f), "89.5");
  EXPECT_EQ(PlainNumberText(100.0f / 3), "33.33333");
  EXPECT_EQ(PlainNumberText(16777216.0f), "16777220");
}

TEST(PlainNumberText, NegativeZeroHasNoSign) {
  EXPECT_EQ(PlainNumberText(-0.0), "0");
  EXPECT_EQ(PlainNumberText(-0.0f), "0");
}

TEST(PlainNumberText, InfinityIsNamed) {
  EXPECT_EQ(PlainNumberText(kInfinity), "inf");
  EXPECT_EQ(PlainNumberText(-kInfinity), "-inf");
}

TEST(SignedNumberText, HasOneBlankForTheMissingSign) {
  EXPECT_EQ(SignedNumberText(0), " 0");
  EXPECT_EQ(SignedNumberText(12), " 12");
  EXPECT_EQ(SignedNumberText(-12), "-12");
  EXPECT_EQ(SignedNumberText(0.5), " 0.5");
  EXPECT_EQ(SignedNumberText(-0.5f), "-0.5");
  EXPECT_EQ(SignedNumberText(Currency::FromWhole(99)), " 99");
}

TEST(ShortestNumberText, IsShort) {
  EXPECT_EQ(ShortestNumberText(0.1), "0.1");
  EXPECT_EQ(ShortestNumberText(0.1f), "0.1");
  EXPECT_EQ(ShortestNumberText(100.0), "100");
  EXPECT_EQ(ShortestNumberText(0.1 + 0.2), "0.30000000000000004");
}

TEST(ShortestNumberText, EveryDoubleReadsBack) {
  std::mt19937_64 random(4);
  for (int i = 0; i < 100000; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    ASSERT_EQ(LeadingNumber(ShortestNumberText(value)), value);
    ASSERT_EQ(WholeNumberText(ShortestNumberText(value)), value);
  }
}

TEST(LeadingNumber, ReadsSignsDigitsAndOnePoint) {
  EXPECT_EQ(LeadingNumber("85"), 85);
  EXPECT_EQ(LeadingNumber("+85"), 85);
  EXPECT_EQ(LeadingNumber("-85.25"), -85.25);
  EXPECT_EQ(LeadingNumber(".5"), 0.5);
  EXPECT_EQ(LeadingNumber("-.5"), -0.5);
  EXPECT_EQ(LeadingNumber("5."), 5);
  EXPECT_EQ(LeadingNumber("007"), 7);
}

TEST(LeadingNumber, SkipsLeadingBlanksOnly) {
  EXPECT_EQ(LeadingNumber("   85"), 85);
  EXPECT_EQ(LeadingNumber("\t85"), 0);
  EXPECT_EQ(LeadingNumber("8 5"), 8);
  EXPECT_EQ(LeadingNumber("- 5"), 0);
}

TEST(LeadingNumber, StopsAtTheFirstCharacterThatCannotGoOn) {
  EXPECT_EQ(LeadingNumber("85*"), 85);
  EXPECT_EQ(LeadingNumber("8.5.5"), 8.5);
  EXPECT_EQ(LeadingNumber("85-3"), 85);
  EXPECT_EQ(LeadingNumber("1,000"), 1);
  EXPECT_EQ(LeadingNumber("0x10"), 0);
}

TEST(LeadingNumber, ReadsAnExponent) {
  EXPECT_EQ(LeadingNumber("5e1"), 50);
  EXPECT_EQ(LeadingNumber("5E+1x"), 50);
  EXPECT_EQ(LeadingNumber("5e-1"), 0.5);
  EXPECT_EQ(LeadingNumber(".5e1"), 5);
}

TEST(LeadingNumber, AnExponentWithoutDigitsIsNone) {
  EXPECT_EQ(LeadingNumber("5e"), 5);
  EXPECT_EQ(LeadingNumber("5e+"), 5);
  EXPECT_EQ(LeadingNumber("5ex"), 5);
  EXPECT_EQ(LeadingNumber("5e 1"), 5);
}

TEST(LeadingNumber, ATextWithNoneReadsAsZero) {
  for (const char* text : {"", " ", "NEW", "ABS", "EXC", "CUT", "NON", "B*", "-", "+", ".", "-.",
                           "e5", ".e5", "--5", "inf", "nan", "-inf"}) {
    EXPECT_EQ(LeadingNumber(text), 0) << text;
  }
}

TEST(LeadingNumber, BeyondADoubleIsInfiniteOrZero) {
  EXPECT_EQ(LeadingNumber("1e400"), kInfinity);
  EXPECT_EQ(LeadingNumber("-1e400"), -kInfinity);
  EXPECT_EQ(LeadingNumber("1e-400"), 0);
  EXPECT_EQ(LeadingNumber("1e999999999999999999999999"), kInfinity);
  EXPECT_EQ(LeadingNumber("1e-999999999999999999999999"), 0);
  EXPECT_EQ(LeadingNumber("0e999999999999999999999999"), 0);
  EXPECT_EQ(LeadingNumber("0.000e400"), 0);
}

TEST(LeadingCurrency, ReadsWhatATeacherTypes) {
  EXPECT_EQ(ScaledOf("85"), 850000);
  EXPECT_EQ(ScaledOf(" 85.5*"), 855000);
  EXPECT_EQ(ScaledOf("-0.25"), -2500);
  EXPECT_EQ(ScaledOf("+.5"), 5000);
  EXPECT_EQ(ScaledOf("ABS"), 0);
  EXPECT_EQ(ScaledOf(""), 0);
}

TEST(LeadingCurrency, ATieOfTheDigitsGoesToTheEvenOne) {
  EXPECT_EQ(ScaledOf("0.00005"), 0);
  EXPECT_EQ(ScaledOf("0.00015"), 2);
  EXPECT_EQ(ScaledOf("1.00015"), 10002);
  EXPECT_EQ(ScaledOf("1.00025"), 10002);
  EXPECT_EQ(ScaledOf("-1.00015"), -10002);
  EXPECT_EQ(ScaledOf("-1.00025"), -10002);
  EXPECT_EQ(ScaledOf("9.99995"), 100000);
}

TEST(LeadingCurrency, ADigitFarBehindBreaksTheTie) {
  EXPECT_EQ(ScaledOf("1.00025000000000000000000000000000001"), 10003);
  EXPECT_EQ(ScaledOf("1.00025000000000000000000000000000000"), 10002);
  EXPECT_EQ(ScaledOf("1.00024999999999999999999999999999999"), 10002);
  EXPECT_EQ(ScaledOf("0.00005" + std::string(100000, '0') + "1"), 1);
}

TEST(LeadingCurrency, ReadsAnExponent) {
  EXPECT_EQ(ScaledOf("5e1"), 500000);
  EXPECT_EQ(ScaledOf("12.5E-1"), 12500);
  EXPECT_EQ(ScaledOf("5e-5"), 0);
  EXPECT_EQ(ScaledOf("15e-5"), 2);
  EXPECT_EQ(ScaledOf("6e-5"), 1);
  EXPECT_EQ(ScaledOf("9e-6"), 0);
  EXPECT_EQ(ScaledOf("1e-400"), 0);
  EXPECT_EQ(ScaledOf("0e400"), 0);
}

TEST(LeadingCurrency, BeyondItsRangeOverflows) {
  EXPECT_EQ(ScaledOf("922337203685477.5807"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(ScaledOf("-922337203685477.5808"), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(ScaledOf("922337203685477.58074999"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(ErrorOfCurrency("922337203685477.58075"), kErrorOverflow);
  EXPECT_EQ(ErrorOfCurrency("922337203685477.5808"), kErrorOverflow);
  EXPECT_EQ(ErrorOfCurrency("-922337203685477.5809"), kErrorOverflow);
  EXPECT_EQ(ErrorOfCurrency("9999999999999999999"), kErrorOverflow);
  EXPECT_EQ(ErrorOfCurrency("1e400"), kErrorOverflow);
  EXPECT_EQ(ErrorOfCurrency("-1e15"), kErrorOverflow);
  EXPECT_EQ(ScaledOf("9e14"), 9000000000000000000);
}

TEST(LeadingCurrency, LongTextsBalance) {
  const std::string zeros(100000, '0');
  EXPECT_EQ(ScaledOf(zeros + "85"), 850000);
  EXPECT_EQ(ScaledOf("0." + zeros + "85e100002"), 850000);
  EXPECT_EQ(ScaledOf("85" + zeros + "e-100000"), 850000);
  EXPECT_EQ(ErrorOfCurrency("85" + zeros), kErrorOverflow);
  EXPECT_EQ(ErrorOfCurrency("1e" + std::string(100000, '9')), kErrorOverflow);
  EXPECT_EQ(ScaledOf("1e-" + std::string(100000, '9')), 0);
}

// n / 10^k ten-thousandths, worked out in whole numbers.
TEST(LeadingCurrency, EveryResultIsTheNearest) {
  std::mt19937_64 random(5);
  for (int i = 0; i < 100000; ++i) {
    const int k = i % 6;
    std::int64_t power = 1;
    for (int j = 0; j < k; ++j) power *= 10;
    const std::int64_t tie = k > 0 && i % 2 == 0 ? power / 2 : 0;
    const std::int64_t n = static_cast<std::int64_t>(random() % 1000000000) * power + tie;
    const std::int64_t sign = i % 3 == 0 ? -1 : 1;
    const std::string text = PlainNumberText(sign * n) + "e-" + PlainNumberText(k + 4);
    const std::int64_t scaled = ScaledOf(text);
    const std::int64_t twice_off = 2 * (sign * n - scaled * power);
    ASSERT_LE(std::abs(twice_off), power) << text;
    if (k > 0 && std::abs(twice_off) == power) {
      ASSERT_EQ(scaled % 2, 0) << text;
    }
  }
}

TEST(CurrencyFromText, EveryCurrencyReadsBack) {
  std::mt19937_64 random(6);
  for (int i = 0; i < 100000; ++i) {
    const auto scaled = static_cast<std::int64_t>(random()) >> (i % 64);
    ASSERT_EQ(CurrencyFromText(TextOfScaled(scaled)), Currency::FromScaled(scaled));
    ASSERT_EQ(ScaledOf(TextOfScaled(scaled)), scaled);
  }
}

TEST(CurrencyFromText, TakesAtMostFourDecimals) {
  EXPECT_EQ(CurrencyFromText("1.2345"), Currency::FromScaled(12345));
  EXPECT_EQ(CurrencyFromText("-0.5"), Currency::FromScaled(-5000));
  EXPECT_EQ(CurrencyFromText("1.23450"), std::nullopt);
}

TEST(CurrencyFromText, RefusesWhatIsMoreThanANumber) {
  for (const char* text : {"", " ", " 1", "1 ", "1e2", "1x", "x", "-", ".", "1.2.3", "1,5"}) {
    EXPECT_EQ(CurrencyFromText(text), std::nullopt) << text;
  }
}

TEST(CurrencyFromText, RefusesWhatDoesNotFit) {
  EXPECT_EQ(CurrencyFromText("922337203685477.5808"), std::nullopt);
  EXPECT_EQ(CurrencyFromText("1000000000000000"), std::nullopt);
}

TEST(WholeNumberText, TakesANumberWithBlanksAroundIt) {
  EXPECT_EQ(WholeNumberText("85"), 85);
  EXPECT_EQ(WholeNumberText("  -8.5e1  "), -85);
  EXPECT_EQ(WholeNumberText("+5"), 5);
}

TEST(WholeNumberText, RefusesAnythingElse) {
  for (const char* text :
       {"", "  ", "85*", "8 5", "x", "-", ".", "5e", "0x10", "nan", "inf", "1e400", "\t5"}) {
    EXPECT_EQ(WholeNumberText(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace tallyroll
