// SPDX-License-Identifier: GPL-3.0-or-later
// A seating chart as it lies on the table: a label on each seat and a list of those who have none.
// Rows of a classroom run from the board to the back; each is a column of the chart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/records.h"

namespace tallyroll {

inline constexpr int kMostSeatRows = 15;     // seats in a row of the classroom
inline constexpr int kMostSeatColumns = 13;  // rows of the classroom
inline constexpr int kWideChart = 12;        // from so many rows on ...
inline constexpr int kMostSeatsInWide = 11;  // ... each has at most so many seats

// How many seats a row may have in a classroom of so many rows.
int MostSeatsPerRow(int columns);

// A cell of the chart, counted from 0; row 0 is at the board.
struct Seat {
  int row = -1;
  int column = -1;

  bool taken() const { return row >= 0; }
  friend bool operator==(const Seat&, const Seat&) = default;
};

// Whether a card shows the ID in place of the name.
bool CardsShowIds();

// What stands on a student's card, and by which the card finds its student again: the ID, or 12
// characters of the last and 10 of the first name, as NameMode asks.
std::string SeatLabel(const Student& student);

struct SeatPlan {
  int rows = 0;
  int columns = 0;
  std::vector<std::string> labels;    // by column, in each from row 0 on; empty on a free seat
  std::vector<std::string> unseated;  // the list beside the chart

  bool Holds(Seat seat) const;
  const std::string& At(Seat seat) const { return labels[Index(seat)]; }
  std::string& At(Seat seat) { return labels[Index(seat)]; }
  friend bool operator==(const SeatPlan&, const SeatPlan&) = default;

 private:
  std::size_t Index(Seat seat) const {
    return static_cast<std::size_t>(seat.column) * static_cast<std::size_t>(rows) +
           static_cast<std::size_t>(seat.row);
  }
};

SeatPlan EmptyPlan(int rows, int columns);

// The seats in the order in which a chart is filled: one classroom row after the other, each from
// the back to the board.
std::vector<Seat> SeatsInOrder(const SeatPlan& plan);

// What a drag does. Each says whether anything moved.
// From the list onto a seat: who sat there goes back to the list.
bool SeatFromList(SeatPlan& plan, std::size_t line, Seat to);
// From seat to seat: on a taken one the two change places.
bool MoveCard(SeatPlan& plan, Seat from, Seat to);
// From a seat back to the list.
bool Unseat(SeatPlan& plan, Seat from);

// Whose each of these cards is; 0 for no card, and where several students' cards read alike, since
// then nobody can say.
std::vector<int> StudentsOfCards(const Class& c, const std::vector<std::string>& labels);

}  // namespace tallyroll
