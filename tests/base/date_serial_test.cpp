// SPDX-License-Identifier: GPL-3.0-or-later
// Day serials, and date texts in the three orders that teachers use.
#include "base/date_serial.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tallyroll {
namespace {

constexpr DateOrder kMonthFirst = DateOrder::kMonthFirst;
constexpr DateOrder kDayFirst = DateOrder::kDayFirst;
constexpr DateOrder kYearFirst = DateOrder::kYearFirst;

// 1 September 2026: 126 years with 31 leap days (1904 to 2024) after 1 January 1900, serial 2, are
// 126 * 365 + 31 + 2 = 46023 for 1 January 2026; September begins 243 days later.
constexpr double kSeptember1 = 46266;

TEST(DateSerial, CountsFromTheZeroDay) {
  EXPECT_EQ(DateSerial({1899, 12, 30}), 0);
  EXPECT_EQ(DateSerial({1899, 12, 29}), -1);
  EXPECT_EQ(DateSerial({1900, 1, 1}), 2);
  EXPECT_EQ(DateSerial({1970, 1, 1}), 25569);
  EXPECT_EQ(DateSerial({2026, 9, 1}), kSeptember1);
}

TEST(DateSerial, KnowsLeapYears) {
  EXPECT_EQ(DateSerial({2024, 3, 1}) - DateSerial({2024, 2, 28}), 2);
  EXPECT_EQ(DateSerial({2026, 3, 1}) - DateSerial({2026, 2, 28}), 1);
  EXPECT_EQ(DateSerial({2000, 3, 1}) - DateSerial({2000, 2, 28}), 2);
  EXPECT_EQ(DateSerial({1900, 3, 1}) - DateSerial({1900, 2, 28}), 1);
}

TEST(DateSerial, CountsOnBeyondAMonthOrAYear) {
  EXPECT_EQ(DateSerial({2026, 13, 1}), DateSerial({2027, 1, 1}));
  EXPECT_EQ(DateSerial({2026, 0, 1}), DateSerial({2025, 12, 1}));
  EXPECT_EQ(DateSerial({2026, 9, 31}), DateSerial({2026, 10, 1}));
  EXPECT_EQ(DateSerial({2026, 9, 0}), DateSerial({2026, 8, 31}));
}

TEST(IsValidDate, KnowsTheLengthOfEachMonth) {
  EXPECT_TRUE(IsValidDate({2026, 1, 31}));
  EXPECT_FALSE(IsValidDate({2026, 4, 31}));
  EXPECT_TRUE(IsValidDate({2024, 2, 29}));
  EXPECT_FALSE(IsValidDate({2026, 2, 29}));
  EXPECT_FALSE(IsValidDate({1900, 2, 29}));
}

TEST(IsValidDate, RefusesNumbersBeyondTheCalendar) {
  EXPECT_FALSE(IsValidDate({2026, 0, 1}));
  EXPECT_FALSE(IsValidDate({2026, 13, 1}));
  EXPECT_FALSE(IsValidDate({2026, 1, 0}));
  EXPECT_FALSE(IsValidDate({2026, 1, 257}));  // 1 in eight bits
  EXPECT_FALSE(IsValidDate({2026, 257, 1}));
  EXPECT_TRUE(IsValidDate({100, 1, 1}));
  EXPECT_FALSE(IsValidDate({99, 12, 31}));
  EXPECT_TRUE(IsValidDate({9999, 12, 31}));
  EXPECT_FALSE(IsValidDate({10000, 1, 1}));
}

TEST(DateOfSerial, DropsTheTimeOfDay) {
  EXPECT_EQ(DateOfSerial(kSeptember1 + 0.999), (CivilDate{2026, 9, 1}));
  EXPECT_EQ(DateOfSerial(-1.75), (CivilDate{1899, 12, 29}));  // the day -1, three quarters in
}

TEST(DateOfSerial, OfADamagedSerialIsTheZeroDay) {
  const CivilDate zero{1899, 12, 30};
  EXPECT_EQ(DateOfSerial(std::nan("")), zero);
  EXPECT_EQ(DateOfSerial(std::numeric_limits<double>::infinity()), zero);
  EXPECT_EQ(DateOfSerial(1e300), zero);
  EXPECT_EQ(DateOfSerial(DateSerial({9999, 12, 31}) + 1), zero);
  EXPECT_EQ(DateOfSerial(DateSerial({100, 1, 1}) - 1), zero);
}

// Day after day through four centuries with a calendar that only knows the months' lengths.
TEST(DateSerial, EveryDayFollowsTheOneBefore) {
  constexpr int kLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  double serial = DateSerial({1799, 12, 31});
  for (int year = 1800; year < 2200; ++year) {
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    for (int month = 1; month <= 12; ++month) {
      const int length = kLengths[month - 1] + (leap && month == 2 ? 1 : 0);
      for (int day = 1; day <= length; ++day) {
        ASSERT_EQ(DateSerial({year, month, day}), ++serial);
        ASSERT_EQ(DateOfSerial(serial), (CivilDate{year, month, day}));
      }
    }
  }
}

TEST(DateText, FollowsTheOrder) {
  EXPECT_EQ(DateText(kSeptember1, kMonthFirst), "9/1/2026");
  EXPECT_EQ(DateText(kSeptember1, kDayFirst), "01/09/2026");
  EXPECT_EQ(DateText(kSeptember1, kYearFirst), "2026/09/01");
  EXPECT_EQ(DateText(kSeptember1 + 120, kMonthFirst), "12/30/2026");
  EXPECT_EQ(DateText(kSeptember1 + 120, kDayFirst), "30/12/2026");
  EXPECT_EQ(DateText(kSeptember1 + 120, kYearFirst), "2026/12/30");
}

TEST(DateFromText, ReadsEachOrder) {
  EXPECT_EQ(DateFromText("9/1/2026", kMonthFirst), kSeptember1);
  EXPECT_EQ(DateFromText("1/9/2026", kDayFirst), kSeptember1);
  EXPECT_EQ(DateFromText("2026/9/1", kYearFirst), kSeptember1);
}

TEST(DateFromText, ReadsEverySeparator) {
  EXPECT_EQ(DateFromText("9-1-2026", kMonthFirst), kSeptember1);
  EXPECT_EQ(DateFromText("01.09.2026", kDayFirst), kSeptember1);
  EXPECT_EQ(DateFromText("9 1 2026", kMonthFirst), kSeptember1);
}

TEST(DateFromText, SkipsBlanksAroundNumbers) {
  EXPECT_EQ(DateFromText(" 9/01/ 2026", kMonthFirst), kSeptember1);
  EXPECT_EQ(DateFromText("01/ 9/ 2026", kDayFirst), kSeptember1);
  EXPECT_EQ(DateFromText(" 2026/ 9/01", kYearFirst), kSeptember1);
  EXPECT_EQ(DateFromText("  9 / 1 / 2026  ", kMonthFirst), kSeptember1);
}

TEST(DateFromText, ATwoDigitYearTurnsAtThirty) {
  EXPECT_EQ(DateFromText("9-1-26", kMonthFirst), kSeptember1);
  EXPECT_EQ(DateFromText("1/1/29", kMonthFirst), DateSerial({2029, 1, 1}));
  EXPECT_EQ(DateFromText("1/1/30", kMonthFirst), DateSerial({1930, 1, 1}));
  EXPECT_EQ(DateFromText("1/1/00", kMonthFirst), DateSerial({2000, 1, 1}));
  EXPECT_EQ(DateFromText("1/1/99", kMonthFirst), DateSerial({1999, 1, 1}));
  EXPECT_EQ(DateFromText("26/9/1", kYearFirst), kSeptember1);
}

TEST(DateFromText, AYearInFrontIsKnownInEveryOrder) {
  EXPECT_EQ(DateFromText("2026-09-01", kMonthFirst), kSeptember1);
  EXPECT_EQ(DateFromText("2026-09-01", kDayFirst), kSeptember1);
  EXPECT_EQ(DateFromText("32/1/2", kMonthFirst), DateSerial({1932, 1, 2}));
}

TEST(DateFromText, AYearAtTheEndIsKnownInEveryOrder) {
  EXPECT_EQ(DateFromText("9/1/2026", kYearFirst), kSeptember1);
}

TEST(DateFromText, AMonthAboveTwelveIsTheDay) {
  EXPECT_EQ(DateFromText("25/12/2026", kMonthFirst), DateSerial({2026, 12, 25}));
  EXPECT_EQ(DateFromText("12/25/2026", kDayFirst), DateSerial({2026, 12, 25}));
  EXPECT_EQ(DateFromText("13/13/2026", kMonthFirst), std::nullopt);
}

TEST(DateFromText, ReadsMonthNames) {
  EXPECT_EQ(DateFromText("Sep 1, 2026", kMonthFirst), kSeptember1);
  EXPECT_EQ(DateFromText("September 1, 2026", kDayFirst), kSeptember1);
  EXPECT_EQ(DateFromText("1 sept. 26", kMonthFirst), kSeptember1);
  EXPECT_EQ(DateFromText("1-SEP-2026", kYearFirst), kSeptember1);
  EXPECT_EQ(DateFromText("2026 Sep 1", kMonthFirst), kSeptember1);
  EXPECT_EQ(DateFromText("May 5, 2026", kMonthFirst), DateSerial({2026, 5, 5}));
}

TEST(DateFromText, RefusesWhatIsNoDate) {
  for (const char* text : {"",
                           "   ",
                           "9",
                           "9/1",
                           "9/1/",
                           "/9/1/2026",
                           "9//1/2026",
                           "9/1/2026x",
                           "9/1/2026/4",
                           "2/30/2026",
                           "2/29/2026",
                           "0/1/2026",
                           "9/0/2026",
                           "9/32/2026",
                           "9/1/20261",
                           "9/1/-2026",
                           "Se 1, 2026",
                           "Sepp 1, 2026",
                           "Sep Oct 2026",
                           "1 2 Sep",
                           "Sep 31, 2026",
                           "99/99/99",
                           "1/1/026",
                           "9999999999999999999999/1/1"}) {
    EXPECT_EQ(DateFromText(text, kMonthFirst), std::nullopt) << text;
  }
}

TEST(DateText, EveryDayReadsBackInEachOrder) {
  for (double serial = DateSerial({1999, 1, 1}); serial < DateSerial({2031, 1, 1}); ++serial) {
    for (const DateOrder order : {kMonthFirst, kDayFirst, kYearFirst}) {
      ASSERT_EQ(DateFromText(DateText(serial, order), order), serial);
    }
  }
}

TEST(MonthName, NamesTheTwelve) {
  EXPECT_EQ(MonthName(1), "January");
  EXPECT_EQ(MonthName(5), "May");
  EXPECT_EQ(MonthName(12), "December");
  EXPECT_EQ(MonthName(0), "");
  EXPECT_EQ(MonthName(13), "");
}

}  // namespace
}  // namespace tallyroll
