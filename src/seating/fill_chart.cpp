// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/fill_chart.h"

#include <utility>

#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

// An empty card would look like a free seat.
void Place(SeatPlan& plan, Seat seat, std::string card) {
  if (card.empty())
    plan.unseated.push_back(std::move(card));
  else
    plan.At(seat) = std::move(card);
}

std::string LabelOf(int student) {
  return SeatLabel(Current().Students[static_cast<std::size_t>(student)]);
}

// A draw that hits somebody who sits already is drawn again.
int DrawStudent(List<bool>& seat_taken) {
  const int students = Current().NumStudents;
  for (;;) {
    const int drawn = static_cast<int>(students * Platform().Random()) + 1;
    if (seat_taken[static_cast<std::size_t>(drawn)]) continue;
    seat_taken[static_cast<std::size_t>(drawn)] = true;
    return drawn;
  }
}

}  // namespace

void FillAsSorted(SeatPlan& plan) {
  int student = 1;
  for (const Seat seat : SeatsInOrder(plan)) {
    if (student > Current().NumStudents) break;
    Place(plan, seat, LabelOf(student++));
  }
  while (student <= Current().NumStudents) plan.unseated.push_back(LabelOf(student++));
}

void FillAtRandom(SeatPlan& plan) {
  int remain = Current().NumStudents;
  List<bool> seat_taken(static_cast<std::size_t>(remain) + 1);
  for (const Seat seat : SeatsInOrder(plan)) {
    if (remain-- == 0) break;
    Place(plan, seat, LabelOf(DrawStudent(seat_taken)));
  }
  for (int i = 1; i <= Current().NumStudents; ++i)
    if (!seat_taken[static_cast<std::size_t>(i)]) plan.unseated.push_back(LabelOf(i));
}

void FillByHand(SeatPlan& plan) {
  for (int i = 1; i <= Current().NumStudents; ++i) plan.unseated.push_back(LabelOf(i));
}

}  // namespace tallyroll
