// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/seat_by_wishes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <set>

namespace tallyroll {
namespace {

using Generator = std::mt19937;

int Below(Generator& generator, std::size_t bound) {
  return static_cast<int>(generator() % bound);
}

SeatsOfStudents RandomSeats(Generator& generator, int rows, int columns, int students) {
  std::vector<int> places(static_cast<std::size_t>(rows * columns));
  std::iota(places.begin(), places.end(), 0);
  std::shuffle(places.begin(), places.end(), generator);
  SeatsOfStudents seats(static_cast<std::size_t>(students) + 1);
  for (std::size_t i = 1; i < seats.size() && i <= places.size(); ++i)
    seats[i] = {places[i - 1] % rows, places[i - 1] / rows};
  return seats;
}

// Wishes that a seating meets, all of them.
std::vector<Wish> WishesMetBy(const SeatsOfStudents& planted, const Classroom& room,
                              Generator& generator) {
  std::vector<Wish> wishes;
  const auto students = static_cast<std::size_t>(room.Students());
  const std::size_t wanted = 5 + generator() % 26;
  while (wishes.size() < wanted) {
    Wish wish{static_cast<WishKind>(Below(generator, 6)), 1 + Below(generator, students), 0};
    if (wish.kind == WishKind::kApart || wish.kind == WishKind::kBeside) {
      wish.other = 1 + Below(generator, students);
      if (wish.other == wish.student) continue;
    }
    const bool there = std::find(wishes.begin(), wishes.end(), wish) != wishes.end();
    if (!there && IsMet(wish, room, planted)) wishes.push_back(wish);
  }
  return wishes;
}

TEST(SeatByWishes, FindsAPlantedSeatingNearlyAlways) {
  Generator generator(5);
  int perfect = 0;
  for (std::uint32_t number = 0; number < 1000; ++number) {
    const Classroom room{6, 6, RandomSeats(generator, 6, 6, 30)};
    const auto wishes = WishesMetBy(RandomSeats(generator, 6, 6, 30), room, generator);
    const WishedSeating seating = SeatByWishes(room, wishes, number);
    for (const Wish& wish : wishes) {
      const bool unmet =
          std::find(seating.unmet.begin(), seating.unmet.end(), wish) != seating.unmet.end();
      ASSERT_NE(IsMet(wish, room, seating.seats), unmet);
    }
    perfect += seating.unmet.empty() ? 1 : 0;
  }
  EXPECT_GE(perfect, 950);
}

TEST(SeatByWishes, TheSameNumberGivesTheSameSeating) {
  Generator generator(1);
  const Classroom room{5, 6, RandomSeats(generator, 5, 6, 25)};
  const std::vector<Wish> wishes = {{WishKind::kApart, 1, 2}, {WishKind::kFront, 3}};
  EXPECT_EQ(SeatByWishes(room, wishes, 4711).seats, SeatByWishes(room, wishes, 4711).seats);
  EXPECT_NE(SeatByWishes(room, wishes, 4711).seats, SeatByWishes(room, wishes, 4712).seats);
}

TEST(SeatByWishes, NobodySitsTwiceAndAllSeatsAreUsed) {
  Generator generator(2);
  const Classroom room{3, 3, RandomSeats(generator, 3, 3, 12)};
  const WishedSeating seating = SeatByWishes(room, {{WishKind::kFront, 11}}, 9);
  std::set<std::pair<int, int>> seats;
  for (std::size_t i = 1; i < seating.seats.size(); ++i)
    if (seating.seats[i].taken()) seats.insert({seating.seats[i].row, seating.seats[i].column});
  EXPECT_EQ(seats.size(), 9u);
  EXPECT_TRUE(seating.unmet.empty());
}

TEST(SeatByWishes, WhatCannotBeMetIsListed) {
  const Classroom room{6, 2, SeatsOfStudents(3)};
  const Wish front{WishKind::kFront, 1, 0}, back{WishKind::kBack, 1, 0};
  EXPECT_EQ(SeatByWishes(room, {front, back}, 1).unmet.size(), 1u);
}

TEST(SeatByWishes, AClassWithoutStudentsIsSeatedAtOnce) {
  EXPECT_EQ(SeatByWishes({1, 1, SeatsOfStudents(1)}, {}, 1).seats.size(), 1u);
}

}  // namespace
}  // namespace tallyroll
