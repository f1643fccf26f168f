// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/wishes.h"

#include "seating/seat_by_wishes.h"
#include "tests/seating/seating_test.h"

namespace tallyroll {
namespace {

class WishesTest : public SeatingTest {
 protected:
  WishesTest() { Enrol(6); }
  // Two students sit at `a` and `b`, the last chart was empty.
  static bool Met(WishKind kind, Seat a, Seat b = {}) {
    const Classroom room{6, 4, SeatsOfStudents(3)};
    return IsMet({kind, 1, 2}, room, {{}, a, b});
  }
};

// Of six seats in a row the first two are the front and the last two the back.
TEST_F(WishesTest, TheFrontIsTheThirdAtTheBoard) {
  EXPECT_TRUE(Met(WishKind::kFront, {0, 3}));
  EXPECT_TRUE(Met(WishKind::kFront, {1, 0}));
  EXPECT_FALSE(Met(WishKind::kFront, {2, 0}));
  EXPECT_FALSE(Met(WishKind::kFront, {}));
  EXPECT_FALSE(Met(WishKind::kBack, {3, 0}));
  EXPECT_TRUE(Met(WishKind::kBack, {4, 0}));
}

TEST_F(WishesTest, ApartIsNotEvenDiagonallyBeside) {
  EXPECT_FALSE(Met(WishKind::kApart, {2, 2}, {2, 3}));
  EXPECT_FALSE(Met(WishKind::kApart, {2, 2}, {3, 3}));
  EXPECT_FALSE(Met(WishKind::kApart, {2, 2}, {3, 2}));
  EXPECT_TRUE(Met(WishKind::kApart, {2, 2}, {4, 2}));
  EXPECT_TRUE(Met(WishKind::kApart, {2, 2}, {}));
}

TEST_F(WishesTest, BesideIsSideBySide) {
  EXPECT_TRUE(Met(WishKind::kBeside, {2, 2}, {2, 1}));
  EXPECT_FALSE(Met(WishKind::kBeside, {2, 2}, {3, 2}));
  EXPECT_FALSE(Met(WishKind::kBeside, {2, 2}, {2, 0}));
  EXPECT_FALSE(Met(WishKind::kBeside, {2, 2}, {}));
}

TEST_F(WishesTest, AKeptSeatIsThatOfTheLastChart) {
  const Classroom room{2, 2, {{}, {1, 1}, {}}};
  EXPECT_TRUE(IsMet({WishKind::kKeepSeat, 1}, room, {{}, {1, 1}, {}}));
  EXPECT_FALSE(IsMet({WishKind::kKeepSeat, 1}, room, {{}, {1, 0}, {}}));
  // Who had no seat has none to keep.
  EXPECT_TRUE(IsMet({WishKind::kKeepSeat, 2}, room, {{}, {}, {0, 0}}));
}

TEST_F(WishesTest, TheLastNeighbourIsWhoSatSideBySide) {
  const Classroom room{2, 3, {{}, {0, 0}, {0, 1}, {1, 0}}};
  const Wish wish{WishKind::kNewNeighbours, 1};
  EXPECT_FALSE(IsMet(wish, room, {{}, {1, 2}, {1, 1}, {}}));
  EXPECT_TRUE(IsMet(wish, room, {{}, {1, 2}, {0, 2}, {1, 1}}));
}

TEST_F(WishesTest, TheRoomIsThatOfTheLastChart) {
  AddChart(1, 1);
  AddChart(2, 2);
  At(3).SeatRow[1] = At(3).SeatColumn[1] = 0;
  At(4).SeatRow[2] = At(4).SeatColumn[2] = 1;
  const Classroom room = RoomOfNewChart(3, 3);
  EXPECT_FALSE(room.before[3].taken());
  EXPECT_EQ(room.before[4], (Seat{1, 1}));
  EXPECT_EQ(room.Students(), 6);
}

TEST_F(WishesTest, ContradictionsAreNamed) {
  const Classroom room{6, 2, SeatsOfStudents(7)};
  EXPECT_EQ(Contradictions({{WishKind::kFront, 1}, {WishKind::kBack, 1}}, room),
            Cards{"Aa, X: at the front; Aa, X: at the back"});
  EXPECT_EQ(Contradictions({{WishKind::kApart, 1, 2}, {WishKind::kBeside, 2, 1}}, room),
            Cards{"Aa, X: apart from Ba, X; Ba, X: beside Aa, X"});
  EXPECT_EQ(Contradictions({{WishKind::kBeside, 1, 1}}, room),
            Cards{"Aa, X: beside Aa, X, the same student"});
  EXPECT_EQ(
      Contradictions(
          {{WishKind::kBeside, 1, 2}, {WishKind::kBeside, 1, 3}, {WishKind::kBeside, 4, 1}}, room),
      Cards{"Aa, X: beside Ba, X and Ca, X and Da, X, but a seat has two sides"});
  EXPECT_EQ(Contradictions({{WishKind::kBeside, 1, 2}}, {6, 1, SeatsOfStudents(7)}),
            Cards{"Aa, X: beside Ba, X, but the room has one row"});
}

// Two rows of six seats have four seats at the front.
TEST_F(WishesTest, MoreStudentsThanSeatsAtTheFrontAreAContradiction) {
  std::vector<Wish> wishes;
  for (int i = 1; i <= 5; ++i) wishes.push_back({WishKind::kFront, i});
  EXPECT_EQ(Contradictions(wishes, {6, 2, SeatsOfStudents(7)}),
            Cards{"5 students at the front, but there are 4 seats"});
}

TEST_F(WishesTest, AKeptSeatContradictsWhatItCannotMeet) {
  const Classroom room{6, 2, {{}, {5, 0}, {5, 1}, {6, 0}, {}, {}, {}}};
  EXPECT_EQ(Contradictions({{WishKind::kKeepSeat, 1}, {WishKind::kFront, 1}}, room),
            Cards{"Aa, X: at the front, but the seat is to be kept"});
  EXPECT_EQ(Contradictions({{WishKind::kKeepSeat, 3}}, room),
            Cards{"Ca, X: keeps the seat, but the new chart does not have it"});
  EXPECT_EQ(Contradictions({{WishKind::kBeside, 1, 2}, {WishKind::kNewNeighbours, 2}}, room),
            Cards{"Aa, X: beside Ba, X; Ba, X: not the last neighbour again"});
}

TEST_F(WishesTest, WhatCanBeMetIsNoContradiction) {
  const Classroom room{6, 3, {{}, {0, 0}, {0, 2}, {}, {}, {}, {}}};
  EXPECT_EQ(Contradictions({{WishKind::kKeepSeat, 1},
                            {WishKind::kFront, 1},
                            {WishKind::kBeside, 1, 3},
                            {WishKind::kBack, 4},
                            {WishKind::kApart, 1, 4},
                            {WishKind::kNewNeighbours, 2}},
                           room),
            Cards{});
}

}  // namespace
}  // namespace tallyroll
