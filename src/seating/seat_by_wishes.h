// SPDX-License-Identifier: GPL-3.0-or-later
// Seats a class so that as many wishes as possible are met. The same number gives the same seating.
#pragma once

#include <cstdint>

#include "seating/wishes.h"

namespace tallyroll {

struct WishedSeating {
  SeatsOfStudents seats;    // by student; not taken where the seats ran out
  std::vector<Wish> unmet;  // in the order of the wishes
};

WishedSeating SeatByWishes(const Classroom& room, const std::vector<Wish>& wishes,
                           std::uint32_t number);

// The cards of the class in work on their seats.
SeatPlan PlanOf(const Classroom& room, const WishedSeating& seating);

}  // namespace tallyroll
