// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/wishes.h"

#include <algorithm>
#include <cstdlib>

#include "seating/chart_records.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kThirds = 3;

int RowsOfZone(const Classroom& room) {
  return (room.rows + kThirds - 1) / kThirds;
}

bool SideBySide(Seat a, Seat b) {
  return a.row == b.row && std::abs(a.column - b.column) == 1;
}

bool Touch(Seat a, Seat b) {
  return std::abs(a.row - b.row) <= 1 && std::abs(a.column - b.column) <= 1;
}

bool SatSideBySide(const Classroom& room, std::size_t a, std::size_t b) {
  const Seat one = room.before[a], other = room.before[b];
  return one.taken() && other.taken() && SideBySide(one, other);
}

bool HasNewNeighbours(const Classroom& room, const SeatsOfStudents& seats, std::size_t student) {
  for (std::size_t other = 1; other < seats.size(); ++other) {
    if (seats[other].taken() && SideBySide(seats[student], seats[other]) &&
        SatSideBySide(room, student, other)) {
      return false;
    }
  }
  return true;
}

}  // namespace

std::vector<int> NeighboursBefore(const Classroom& room, int student) {
  std::vector<int> neighbours;
  for (int other = 1; other <= room.Students(); ++other)
    if (SatSideBySide(room, static_cast<std::size_t>(student), static_cast<std::size_t>(other)))
      neighbours.push_back(other);
  return neighbours;
}

Classroom RoomOfNewChart(int rows, int columns) {
  const Class& c = Current();
  Classroom room{rows, columns, {}};
  room.before.resize(static_cast<std::size_t>(c.NumStudents) + 1);
  if (c.NumCharts == 0) return room;
  for (int i = 1; i <= c.NumStudents; ++i) {
    const auto at = static_cast<std::size_t>(i);
    room.before[at] = SeatOf(c.Students[at], c.NumCharts);
  }
  return room;
}

bool IsMet(const Wish& wish, const Classroom& room, const SeatsOfStudents& seats) {
  const auto student = static_cast<std::size_t>(wish.student);
  const auto other = static_cast<std::size_t>(wish.other);
  const Seat seat = seats[student];
  switch (wish.kind) {
    case WishKind::kFront:
      return seat.taken() && seat.row < RowsOfZone(room);
    case WishKind::kBack:
      return seat.taken() && seat.row >= room.rows - RowsOfZone(room);
    case WishKind::kApart:
      return !seat.taken() || !seats[other].taken() || !Touch(seat, seats[other]);
    case WishKind::kBeside:
      return seat.taken() && seats[other].taken() && SideBySide(seat, seats[other]);
    case WishKind::kKeepSeat:
      return !room.before[student].taken() || seat == room.before[student];
    case WishKind::kNewNeighbours:
      return !seat.taken() || HasNewNeighbours(room, seats, student);
  }
  return true;
}

std::string WishText(const Wish& wish) {
  const auto label = [](int student) {
    return SeatLabel(Current().Students[static_cast<std::size_t>(student)]);
  };
  std::string who = label(wish.student) + ": ";
  switch (wish.kind) {
    case WishKind::kFront:
      return who + "at the front";
    case WishKind::kBack:
      return who + "at the back";
    case WishKind::kApart:
      return who + "apart from " + label(wish.other);
    case WishKind::kBeside:
      return who + "beside " + label(wish.other);
    case WishKind::kKeepSeat:
      return who + "keeps the seat";
    case WishKind::kNewNeighbours:
      return who + "not the last neighbour again";
  }
  return who;
}

}  // namespace tallyroll
