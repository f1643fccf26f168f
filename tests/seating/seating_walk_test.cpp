// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a teacher does with charts, in whatever order: nobody sits twice, nobody is lost, what
// was kept is what is shown again, and the class file stays sound.
#include <algorithm>
#include <random>
#include <set>

#include "seating/fill_chart.h"
#include "seating/seat_by_wishes.h"
#include "store/class_format.h"
#include "tests/seating/seating_test.h"

namespace tallyroll {
namespace {

class SeatingWalkTest : public SeatingTest {
 protected:
  int Below(int bound) { return static_cast<int>(generator() % static_cast<unsigned>(bound)); }

  SeatPlan Filled(int rows, int columns, int way) {
    SeatPlan plan = EmptyPlan(rows, columns);
    if (way == 0) FillAsSorted(plan);
    if (way == 1) FillAtRandom(plan);
    if (way == 2) FillByHand(plan);
    if (way < 3) return plan;
    const Classroom room = RoomOfNewChart(rows, columns);
    return PlanOf(room,
                  SeatByWishes(room, SomeWishes(), static_cast<std::uint32_t>(Below(100000))));
  }

  // Some of them against one another.
  std::vector<Wish> SomeWishes() {
    std::vector<Wish> wishes;
    for (int i = 0; i < 12; ++i) {
      const auto kind = static_cast<WishKind>(Below(6));
      const int student = 1 + Below(kClass), other = 1 + (student + Below(kClass - 1)) % kClass;
      const bool pair = kind == WishKind::kApart || kind == WishKind::kBeside;
      wishes.push_back({kind, student, pair ? other : 0});
    }
    return wishes;
  }

  void Move(SeatPlan& plan) {
    const Seat from{Below(plan.rows), Below(plan.columns)},
        to{Below(plan.rows), Below(plan.columns)};
    const int what = Below(4);
    if (what == 0 && !plan.unseated.empty())
      SeatFromList(plan, static_cast<std::size_t>(Below(static_cast<int>(plan.unseated.size()))),
                   to);
    else if (what == 1)
      Unseat(plan, from);
    else
      MoveCard(plan, from, to);
  }

  // Every student once, on a seat or in the list.
  static void ExpectEverybodyOnce(const SeatPlan& plan) {
    Cards cards = plan.unseated;
    std::copy_if(plan.labels.begin(), plan.labels.end(), std::back_inserter(cards),
                 [](const std::string& label) { return !label.empty(); });
    std::sort(cards.begin(), cards.end());
    Cards students;
    for (int i = 1; i <= Current().NumStudents; ++i) students.push_back(SeatLabel(At(i)));
    std::sort(students.begin(), students.end());
    ASSERT_EQ(cards, students);
  }

  // Through the bytes of a class file and back.
  static void SaveAndRead() {
    std::string bytes;
    ASSERT_EQ(SerializeClass(Current(), bytes), 0);
    Class read;
    ASSERT_EQ(ParseClass(bytes, read).error, 0);
    Current().Students = std::move(read.Students);
    Current().NumCharts = read.NumCharts;
    Current().ChartRows = std::move(read.ChartRows);
    Current().ChartColumns = std::move(read.ChartColumns);
  }

  static constexpr int kClass = 29;
  std::mt19937 generator{11};
};

TEST_F(SeatingWalkTest, NobodyIsLostHoweverAChartIsFilledAndMoved) {
  Enrol(kClass);
  for (int i = 1; i <= kClass; ++i) ReDim(At(i).Marks, 0);
  std::uniform_real_distribution<double> number(0, 1);
  std::vector<SeatPlan> kept(1);  // by chart; element 0 is not used
  for (int round = 0; round < 200; ++round) {
    SCOPED_TRACE(round);
    screen.random_numbers.clear();
    for (int i = 0; i < 4000; ++i) screen.random_numbers.push_back(number(generator));
    const int columns = 1 + Below(kMostSeatColumns), rows = 1 + Below(MostSeatsPerRow(columns));
    SeatPlan plan = Filled(rows, columns, round % 4);
    ExpectEverybodyOnce(plan);
    for (int move = Below(30); move > 0; --move) Move(plan);
    ExpectEverybodyOnce(plan);
    const int chart = AddChart(rows, columns);
    ExpectSound();
    StoreChart(chart, plan);
    ExpectSound();
    kept.push_back(plan);
    if (Below(2) == 0) {
      const int gone = 1 + Below(Current().NumCharts);
      DeleteChart(gone);
      kept.erase(kept.begin() + gone);
      ExpectSound();
    }
    if (Below(3) == 0) SaveAndRead();
    ASSERT_EQ(Current().NumCharts, static_cast<int>(kept.size()) - 1);
    for (int shown = 1; shown <= Current().NumCharts; ++shown) {
      const SeatPlan again = LoadChart(shown);
      ASSERT_EQ(again.labels, kept[static_cast<std::size_t>(shown)].labels);
      ExpectEverybodyOnce(again);
    }
    if (testing::Test::HasFailure()) return;
  }
}

// The roster changes under a kept chart: who is new stands in the list, who is gone nowhere.
TEST_F(SeatingWalkTest, StudentsWhoComeGoAndAreRenamedKeepTheirSeats) {
  Enrol(6);
  for (int i = 1; i <= 6; ++i) ReDim(At(i).Marks, 0);
  SeatPlan plan = EmptyPlan(3, 2);
  FillAsSorted(plan);
  StoreChart(AddChart(3, 2), plan);
  At(2).lastname = "Renamed";
  Current().Students.erase(Current().Students.begin() + 4);
  --Current().NumStudents;
  EnrolStudent("New", "X", "77");
  Student& fresh = At(6);
  ReDim(fresh.Marks, 0);
  ReDim(fresh.SeatRow, 1, i16{-1});
  ReDim(fresh.SeatColumn, 1, i16{-1});
  const SeatPlan shown = LoadChart(1);
  ExpectEverybodyOnce(shown);
  EXPECT_EQ(shown.At({1, 0}), "Renamed, X");
  EXPECT_EQ(shown.At({2, 1}), "");  // the fourth sat there
  EXPECT_EQ(shown.unseated, Cards{"New, X"});
  StoreChart(1, shown);
  EXPECT_EQ(LoadChart(1), shown);
  ExpectSound();
}

}  // namespace
}  // namespace tallyroll
