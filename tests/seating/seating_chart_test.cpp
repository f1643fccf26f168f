// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/seating_chart.h"

#include "tests/seating/seating_test.h"

namespace tallyroll {
namespace {

class SeatingChartTest : public SeatingTest {};

TEST_F(SeatingChartTest, ACardShowsTwelveAndTenCharacters) {
  Student student;
  student.lastname = "Featherstonehaugh";
  student.firstname = "Bartholomew ";
  EXPECT_EQ(SeatLabel(student), "Featherstone, Bartholome");
}

TEST_F(SeatingChartTest, NamesAreTrimmedAfterTheyAreCut) {
  Student student;
  student.lastname = "van der Wal  zu X";  // the twelfth character is a blank
  student.firstname = " Jo  ";
  EXPECT_EQ(SeatLabel(student), "van der Wal, Jo");
}

TEST_F(SeatingChartTest, FromMode73OnACardShowsTheId) {
  Student student;
  student.lastname = "Abrams";
  student.firstname = "Ann";
  student.id = " 42 ";
  NameMode = 73;
  EXPECT_EQ(SeatLabel(student), "42");
  NameMode = 82;
  EXPECT_EQ(SeatLabel(student), "42");
  NameMode = 68;
  EXPECT_EQ(SeatLabel(student), "Abrams, Ann");
  NameMode = 57;
  EXPECT_EQ(SeatLabel(student), "Abrams, Ann");
}

TEST_F(SeatingChartTest, ThirteenRowsAllowElevenSeatsEach) {
  EXPECT_EQ(MostSeatsPerRow(1), 15);
  EXPECT_EQ(MostSeatsPerRow(11), 15);
  EXPECT_EQ(MostSeatsPerRow(12), 11);
  EXPECT_EQ(MostSeatsPerRow(13), 11);
}

TEST_F(SeatingChartTest, SeatsAreFilledFromTheBackOfTheFirstRow) {
  const std::vector<Seat> seats = SeatsInOrder(EmptyPlan(2, 2));
  EXPECT_EQ(seats, (std::vector<Seat>{{1, 0}, {0, 0}, {1, 1}, {0, 1}}));
}

TEST_F(SeatingChartTest, AStudentFromTheListTakesAFreeSeat) {
  SeatPlan plan = EmptyPlan(1, 2);
  plan.unseated = {"A", "B"};
  EXPECT_TRUE(SeatFromList(plan, 1, {0, 0}));
  EXPECT_EQ(plan.labels, (Cards{"B", ""}));
  EXPECT_EQ(plan.unseated, Cards{"A"});
}

TEST_F(SeatingChartTest, OnATakenSeatTheOccupantGoesBackToTheList) {
  SeatPlan plan = EmptyPlan(1, 1);
  plan.labels = {"Z"};
  plan.unseated = {"A", "B"};
  EXPECT_TRUE(SeatFromList(plan, 0, {0, 0}));
  EXPECT_EQ(plan.labels, Cards{"A"});
  EXPECT_EQ(plan.unseated, (Cards{"B", "Z"}));
}

TEST_F(SeatingChartTest, FromSeatToSeatTheOldOneIsFree) {
  SeatPlan plan = EmptyPlan(1, 2);
  plan.labels = {"A", ""};
  EXPECT_TRUE(MoveCard(plan, {0, 0}, {0, 1}));
  EXPECT_EQ(plan.labels, (Cards{"", "A"}));
}

TEST_F(SeatingChartTest, OnATakenSeatTheTwoChangePlaces) {
  SeatPlan plan = EmptyPlan(2, 1);
  plan.labels = {"A", "B"};
  EXPECT_TRUE(MoveCard(plan, {0, 0}, {1, 0}));
  EXPECT_EQ(plan.labels, (Cards{"B", "A"}));
}

TEST_F(SeatingChartTest, WhatMovesNothingSaysSo) {
  SeatPlan plan = EmptyPlan(1, 2);
  plan.labels = {"A", ""};
  const SeatPlan before = plan;
  EXPECT_FALSE(MoveCard(plan, {0, 0}, {0, 0}));
  EXPECT_FALSE(MoveCard(plan, {0, 1}, {0, 0}));
  EXPECT_FALSE(MoveCard(plan, {0, 0}, {0, 2}));
  EXPECT_FALSE(MoveCard(plan, {0, 0}, {-1, 0}));
  EXPECT_FALSE(SeatFromList(plan, 0, {0, 1}));
  EXPECT_FALSE(Unseat(plan, {0, 1}));
  EXPECT_EQ(plan, before);
}

// An ID on such a card would be somebody else's as often as not.
TEST_F(SeatingChartTest, NobodyCanSayWhoseACardIsThatReadsLikeAnother) {
  EnrolStudent("Li", "Bo", "1");
  EnrolStudent("Ng", "Bo", "2");
  EnrolStudent("Li", "Bo", "3");
  EXPECT_EQ(StudentsOfCards(Current(), {"Ng, Bo", "Li, Bo", "", "Li, Jo", "Ng, Bo"}),
            (std::vector<int>{2, 0, 0, 0, 2}));
}

}  // namespace
}  // namespace tallyroll
