// SPDX-License-Identifier: GPL-3.0-or-later
// What a teacher wishes for the seats of single students, and which wishes a seating meets.
#pragma once

#include <string>
#include <vector>

#include "seating/seating_chart.h"

namespace tallyroll {

enum class WishKind {
  kFront,          // in the third of the room at the board
  kBack,           // in the last third
  kApart,          // not next to the other, diagonally neither
  kBeside,         // side by side with the other
  kKeepSeat,       // where the student sits on the last chart
  kNewNeighbours,  // side by side with nobody who was that on the last chart
};

struct Wish {
  WishKind kind = WishKind::kFront;
  int student = 0;  // Students index
  int other = 0;    // of kApart and kBeside

  friend bool operator==(const Wish&, const Wish&) = default;
};

// Where each student sits; element 0 is not used.
using SeatsOfStudents = std::vector<Seat>;

// The room that wishes are about: its size, and who sat where on the last chart.
struct Classroom {
  int rows = 0;
  int columns = 0;
  SeatsOfStudents before;  // as many as there are students, from 1 on

  int Students() const { return static_cast<int>(before.size()) - 1; }
  int Seats() const { return rows * columns; }
};

// Who sat side by side with a student on the last chart: two at the most.
std::vector<int> NeighboursBefore(const Classroom& room, int student);

// The room of a new chart of the class in work. The last chart is the one with the highest number.
Classroom RoomOfNewChart(int rows, int columns);

bool IsMet(const Wish& wish, const Classroom& room, const SeatsOfStudents& seats);

// "Abrams, Ann: beside Baker, Bo"
std::string WishText(const Wish& wish);

// Which wishes cannot all be met, and why, in the teacher's words: one line a contradiction. Not
// everything impossible is found, but what is named is impossible.
std::vector<std::string> Contradictions(const std::vector<Wish>& wishes, const Classroom& room);

}  // namespace tallyroll
