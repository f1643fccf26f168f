// SPDX-License-Identifier: GPL-3.0-or-later
// The ways of filling a new chart of the class in work. Who finds no seat goes to the list.
#pragma once

#include "seating/seating_chart.h"

namespace tallyroll {

// In the order of the students.
void FillAsSorted(SeatPlan& plan);
// By the platform's random numbers, each student as likely on each seat.
void FillAtRandom(SeatPlan& plan);
// Nobody sits: the teacher deals the cards.
void FillByHand(SeatPlan& plan);

}  // namespace tallyroll
