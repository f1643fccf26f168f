// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/fill_chart.h"

#include <cmath>
#include <map>
#include <random>
#include <set>

#include "tests/seating/seating_test.h"

namespace tallyroll {
namespace {

class FillChartTest : public SeatingTest {};

TEST_F(FillChartTest, AsSortedTheFirstSitsAtTheBackOfTheFirstRow) {
  Enrol(5);
  SeatPlan plan = EmptyPlan(2, 2);
  FillAsSorted(plan);
  EXPECT_EQ(Column(plan, 0), (Cards{"Ba, X", "Aa, X"}));
  EXPECT_EQ(Column(plan, 1), (Cards{"Da, X", "Ca, X"}));
  EXPECT_EQ(plan.unseated, Cards{"Ea, X"});
}

TEST_F(FillChartTest, SeatsThatAreLeftOverStayFree) {
  Enrol(1);
  SeatPlan plan = EmptyPlan(2, 1);
  FillAsSorted(plan);
  EXPECT_EQ(Column(plan, 0), (Cards{"", "Aa, X"}));
  EXPECT_TRUE(plan.unseated.empty());
}

TEST_F(FillChartTest, AClassWithoutStudentsLeavesAllSeatsFree) {
  for (void (*fill)(SeatPlan&) : {FillAsSorted, FillAtRandom, FillByHand}) {
    SeatPlan plan = EmptyPlan(2, 2);
    fill(plan);
    EXPECT_EQ(plan, EmptyPlan(2, 2));
  }
}

// Three students: 0.9 draws the third, which 0.7 draws again in vain; 0.0 draws the first. The
// second has no seat.
TEST_F(FillChartTest, ADrawOfSomebodyWhoSitsIsRepeated) {
  Enrol(3);
  screen.random_numbers = {0.9, 0.7, 0.0};
  SeatPlan plan = EmptyPlan(2, 1);
  FillAtRandom(plan);
  EXPECT_EQ(Column(plan, 0), (Cards{"Aa, X", "Ca, X"}));
  EXPECT_EQ(plan.unseated, Cards{"Ba, X"});
}

TEST_F(FillChartTest, ByHandAllStandInTheList) {
  Enrol(2);
  SeatPlan plan = EmptyPlan(1, 1);
  FillByHand(plan);
  EXPECT_EQ(Column(plan, 0), Cards{""});
  EXPECT_EQ(plan.unseated, (Cards{"Aa, X", "Ba, X"}));
}

// Six students on a chart of 2 x 3, 10,000 times: each sits on each seat 1,666.7 times on the
// average with a standard deviation of sqrt(10000 * 1/6 * 5/6) = 37.3.
TEST_F(FillChartTest, EachStudentIsOnEachSeatAsOften) {
  Enrol(6);
  constexpr int kCharts = 10000;
  std::mt19937 generator(7);
  std::uniform_real_distribution<double> number(0, 1);
  std::map<std::pair<std::string, std::size_t>, int> times;
  for (int chart = 0; chart < kCharts; ++chart) {
    screen.random_numbers.clear();
    for (int i = 0; i < 200; ++i) screen.random_numbers.push_back(number(generator));
    SeatPlan plan = EmptyPlan(2, 3);
    FillAtRandom(plan);
    ASSERT_EQ(std::set<std::string>(plan.labels.begin(), plan.labels.end()).size(), 6u);
    for (std::size_t seat = 0; seat < plan.labels.size(); ++seat)
      ++times[{plan.labels[seat], seat}];
  }
  const double expected = kCharts / 6.0, deviation = std::sqrt(kCharts / 6.0 * 5 / 6);
  ASSERT_EQ(times.size(), 36u);
  for (const auto& [where, count] : times)
    EXPECT_NEAR(count, expected, 5 * deviation) << where.first << " on " << where.second;
}

}  // namespace
}  // namespace tallyroll
