// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/thinning.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/date_serial.h"

namespace tallyroll {
namespace {

using Days = std::vector<double>;

double On(int year, int month, int day) {
  return DateSerial({year, month, day});
}

// The days that stay, the oldest first.
Days Stay(const Days& days, double today) {
  const std::vector<std::size_t> drop = SnapshotsToDrop(days, today);
  Days stay;
  for (std::size_t i = 0; i < days.size(); ++i)
    if (!std::binary_search(drop.begin(), drop.end(), i)) stay.push_back(days[i]);
  return stay;
}

Days EachDay(double from, double to) {
  Days days;
  for (double day = from; day <= to; ++day) days.push_back(day);
  return days;
}

TEST(ThinningTest, OfNothingNothingGoes) {
  EXPECT_TRUE(SnapshotsToDrop({}, On(2026, 9, 1)).empty());
}

TEST(ThinningTest, AllOfTodayAndYesterdayStay) {
  const double today = On(2026, 9, 1);
  const Days days = {today - 1, today - 1, today - 1, today, today + 0.5};
  EXPECT_EQ(Stay(days, today + 0.9), days);
}

TEST(ThinningTest, OfADayBeforeYesterdayOnlyTheLastStays) {
  const double today = On(2026, 9, 10);
  const std::vector<std::size_t> drop =
      SnapshotsToDrop({today - 3.9, today - 3.5, today - 2.9, today - 2.1, today}, today);
  // The first two are of one day, so are the next two.
  EXPECT_EQ(drop, (std::vector<std::size_t>{0, 2}));
}

TEST(ThinningTest, TwelveDaysThenTenWeeksThenNineMonths) {
  // 1 September 2026 is a Tuesday. Today is 15 September, and a snapshot was made each day for
  // three years.
  const double today = On(2026, 9, 15);
  Days wanted = {On(2023, 12, 31), On(2024, 12, 31)};  // the last of those years
  // Weeks end on Sundays: 10 of them before the last of the 12 days, 2 September. The last week
  // day of its own week is the 2nd itself, so the first week kept ends on 30 August.
  // The tenth is the one that ends on 28 June, and June is then the month that was kept last:
  // nine months before it.
  for (const auto& [year, month, day] : std::vector<CivilDate>{{2025, 9, 30},
                                                               {2025, 10, 31},
                                                               {2025, 11, 30},
                                                               {2025, 12, 31},
                                                               {2026, 1, 31},
                                                               {2026, 2, 28},
                                                               {2026, 3, 31},
                                                               {2026, 4, 30},
                                                               {2026, 5, 31}})
    wanted.push_back(On(year, month, day));
  for (double sunday = On(2026, 6, 28); sunday <= On(2026, 8, 30); sunday += 7)
    wanted.push_back(sunday);
  for (const double day : EachDay(On(2026, 9, 2), today)) wanted.push_back(day);
  EXPECT_EQ(Stay(EachDay(On(2023, 9, 1), today), today), wanted);
}

TEST(ThinningTest, DaysWithoutASnapshotDoNotCount) {
  // Every third day: twelve of them reach back over 33 days.
  const double today = On(2026, 9, 15);
  Days days;
  for (int i = 11; i >= 0; --i) days.push_back(today - 2 - 3 * i);
  days.push_back(today);
  EXPECT_EQ(Stay(days, today), days);
}

TEST(ThinningTest, TheLastOfEachYearStaysForEver) {
  const double today = On(2026, 9, 15);
  Days days;
  for (int year = 2000; year < 2026; ++year) {
    days.push_back(On(year, 6, 1));
    days.push_back(On(year, 6, 2));
  }
  const Days stay = Stay(days, today);
  for (int year = 2000; year < 2026; ++year)
    EXPECT_TRUE(std::count(stay.begin(), stay.end(), On(year, 6, 2)) == 1) << year;
}

TEST(ThinningTest, AClockThatWasSetBackLosesNothingOfTheFuture) {
  const double today = On(2026, 9, 15);
  const Days days = {today + 300, today + 300, today};
  EXPECT_EQ(Stay(days, today), days);
}

// Thinned each day, day after day, a class keeps as many as when it is thinned at once, of the same
// days and weeks; of a month it keeps the last of a week, since the others went before.
TEST(ThinningTest, ThinningEachDayLeavesTheSameDaysWeeksAndMonths) {
  Days kept;
  const double first = On(2023, 9, 1), last = On(2026, 9, 15);
  for (double day = first; day <= last; ++day) {
    kept.push_back(day);
    kept.push_back(day);
    kept = Stay(kept, day);
  }
  Days twice;
  for (const double day : EachDay(first, last)) twice.insert(twice.end(), {day, day});
  const Days at_once = Stay(twice, last);
  ASSERT_EQ(kept.size(), at_once.size());
  constexpr std::size_t kYearsAndMonths = 2 + 9;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    const bool by_month = i < kYearsAndMonths;
    EXPECT_EQ(by_month ? DateOfSerial(kept[i]).month : kept[i],
              by_month ? DateOfSerial(at_once[i]).month : at_once[i]);
  }
}

}  // namespace
}  // namespace tallyroll
