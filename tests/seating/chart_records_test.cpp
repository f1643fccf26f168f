// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/chart_records.h"

#include <random>
#include <set>

#include "seating/fill_chart.h"
#include "tests/seating/seating_test.h"

namespace tallyroll {
namespace {

class ChartRecordsTest : public SeatingTest {
 protected:
  static int Keep(const SeatPlan& plan) {
    const int chart = AddChart(plan.rows, plan.columns);
    StoreChart(chart, plan);
    return chart;
  }
};

TEST_F(ChartRecordsTest, AKeptChartIsTheSameWhenItIsShownAgain) {
  Enrol(4);
  SeatPlan plan = EmptyPlan(3, 2);
  FillAsSorted(plan);
  EXPECT_EQ(Keep(plan), 1);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(At(1).SeatRow, (List<i16>{0, 2}));
  EXPECT_EQ(At(1).SeatColumn, (List<i16>{0, 0}));
  EXPECT_EQ(At(4).SeatRow, (List<i16>{0, 2}));
  EXPECT_EQ(At(4).SeatColumn, (List<i16>{0, 1}));
  EXPECT_EQ(LoadChart(1), plan);
}

TEST_F(ChartRecordsTest, WhoHasNoSeatGetsMinusOneTwice) {
  Enrol(3);
  SeatPlan plan = EmptyPlan(1, 2);
  FillAsSorted(plan);
  Keep(plan);
  EXPECT_EQ(At(3).SeatRow, (List<i16>{0, -1}));
  EXPECT_EQ(At(3).SeatColumn, (List<i16>{0, -1}));
  EXPECT_EQ(LoadChart(1).unseated, Cards{"Ca, X"});
}

TEST_F(ChartRecordsTest, OfTwoWithTheSameLabelTheFirstHasTheSeat) {
  EnrolStudent("Li", "Bo", "1");
  EnrolStudent("Li", "Bo", "2");
  SeatPlan plan = EmptyPlan(1, 2);
  FillAsSorted(plan);
  Keep(plan);
  EXPECT_EQ(SeatOf(At(1), 1), (Seat{0, 0}));
  EXPECT_FALSE(SeatOf(At(2), 1).taken());
  EXPECT_EQ(StudentsWithoutLabel(), 1);
}

TEST_F(ChartRecordsTest, AStudentWithoutIdIsNotTakenForAFreeSeat) {
  EnrolStudent("Li", "Bo", "");
  NameMode = 73;
  Keep(EmptyPlan(1, 1));
  EXPECT_FALSE(SeatOf(At(1), 1).taken());
  EXPECT_EQ(StudentsWithoutLabel(), 1);
}

TEST_F(ChartRecordsTest, AStudentWithoutAFirstNameKeepsTheSeat) {
  EnrolStudent("Smith", "", "1");
  SeatPlan plan = EmptyPlan(1, 1);
  FillAsSorted(plan);
  Keep(plan);
  EXPECT_EQ(SeatOf(At(1), 1), (Seat{0, 0}));
}

TEST_F(ChartRecordsTest, ASecondChartLeavesTheFirstAsItIs) {
  Enrol(2);
  SeatPlan first = EmptyPlan(1, 2), second = EmptyPlan(2, 1);
  FillAsSorted(first);
  FillAsSorted(second);
  Keep(first);
  EXPECT_EQ(Keep(second), 2);
  EXPECT_EQ(Current().ChartRows, (List<i16>{0, 1, 2}));
  EXPECT_EQ(Current().ChartColumns, (List<i16>{0, 2, 1}));
  EXPECT_EQ(LoadChart(1), first);
  EXPECT_EQ(LoadChart(2), second);
}

TEST_F(ChartRecordsTest, WhenTheFirstOfTwoIsDeletedTheSecondIsTheNewFirst) {
  Enrol(2);
  SeatPlan first = EmptyPlan(1, 2), second = EmptyPlan(2, 1);
  FillAsSorted(first);
  FillAsSorted(second);
  Keep(first);
  Keep(second);
  Current().Changed = kFalse;
  DeleteChart(1);
  EXPECT_EQ(Current().NumCharts, 1);
  EXPECT_EQ(Current().ChartRows, (List<i16>{0, 2}));
  EXPECT_EQ(Current().ChartColumns, (List<i16>{0, 1}));
  EXPECT_EQ(At(1).SeatRow.size(), 2u);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(LoadChart(1), second);
}

TEST_F(ChartRecordsTest, AStudentWhoWasAddedBeforeTheFirstChartHasNoSeatOnIt) {
  Enrol(1);
  At(1).SeatRow = {0, 0};  // what Add Student makes while there is no chart
  At(1).SeatColumn = {0, 0};
  EXPECT_EQ(AddChart(2, 2), 1);
  EXPECT_FALSE(SeatOf(At(1), 1).taken());
}

TEST_F(ChartRecordsTest, AForeignChartIsShownAsFarAsItGoes) {
  Enrol(3);
  AddChart(2, 2);
  Current().ChartRows[1] = 99;
  Current().ChartColumns[1] = -4;
  At(1).SeatRow[1] = 14, At(1).SeatColumn[1] = 0;
  At(2).SeatRow[1] = 15, At(2).SeatColumn[1] = 0;  // beyond the last seat that can be
  At(3).SeatRow[1] = 14, At(3).SeatColumn[1] = 0;  // where the first one sits
  const SeatPlan plan = LoadChart(1);
  EXPECT_EQ(plan.rows, 15);
  EXPECT_EQ(plan.columns, 1);
  EXPECT_EQ(plan.At({14, 0}), "Aa, X");
  EXPECT_EQ(plan.unseated, (Cards{"Ba, X", "Ca, X"}));
}

// Whatever is done, nobody is lost, nobody sits twice, and the class stays sound.
TEST_F(ChartRecordsTest, NobodyIsLostInRandomMoves) {
  Enrol(40);
  for (int i = 1; i <= 40; ++i) ReDim(At(i).Marks, 0);
  std::mt19937 generator(3);
  const auto below = [&](int bound) { return static_cast<int>(generator() % unsigned(bound)); };
  for (int round = 0; round < 60; ++round) {
    SeatPlan plan = EmptyPlan(1 + below(11), 1 + below(13));
    round % 2 == 0 ? FillAsSorted(plan) : FillByHand(plan);
    for (int move = 0; move < 50; ++move) {
      const Seat from{below(plan.rows), below(plan.columns)},
          to{below(plan.rows), below(plan.columns)};
      if (!plan.unseated.empty() && below(2) == 0)
        SeatFromList(plan, static_cast<std::size_t>(below(static_cast<int>(plan.unseated.size()))),
                     to);
      else if (below(5) == 0)
        Unseat(plan, from);
      else
        MoveCard(plan, from, to);
    }
    std::multiset<std::string> cards(plan.unseated.begin(), plan.unseated.end());
    for (const std::string& label : plan.labels)
      if (!label.empty()) cards.insert(label);
    ASSERT_EQ(cards.size(), 40u);
    ASSERT_EQ(std::set<std::string>(cards.begin(), cards.end()).size(), 40u);
    const int chart = Keep(plan);
    ASSERT_EQ(LoadChart(chart).labels, plan.labels);
    ExpectSound();
    if (below(3) == 0) DeleteChart(1 + below(Current().NumCharts));
    ExpectSound();
  }
}

}  // namespace
}  // namespace tallyroll
