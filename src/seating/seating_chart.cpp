// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/seating_chart.h"

#include <map>
#include <utility>

#include "base/text.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr i16 kFirstIdMode = 73;
constexpr std::size_t kLastNameOnCard = 12, kFirstNameOnCard = 10;

}  // namespace

int MostSeatsPerRow(int columns) {
  return columns < kWideChart ? kMostSeatRows : kMostSeatsInWide;
}

bool CardsShowIds() {
  return NameMode >= kFirstIdMode;
}

std::string SeatLabel(const Student& student) {
  if (CardsShowIds()) return std::string(Trim(student.id));
  const std::string_view last = student.lastname, first = student.firstname;
  return std::string(Trim(last.substr(0, kLastNameOnCard))) + ", " +
         std::string(Trim(first.substr(0, kFirstNameOnCard)));
}

bool SeatPlan::Holds(Seat seat) const {
  return seat.row >= 0 && seat.row < rows && seat.column >= 0 && seat.column < columns;
}

SeatPlan EmptyPlan(int rows, int columns) {
  SeatPlan plan{.rows = rows, .columns = columns, .labels = {}, .unseated = {}};
  plan.labels.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
  return plan;
}

std::vector<Seat> SeatsInOrder(const SeatPlan& plan) {
  std::vector<Seat> seats;
  seats.reserve(plan.labels.size());
  for (int column = 0; column < plan.columns; ++column)
    for (int row = plan.rows - 1; row >= 0; --row) seats.push_back({row, column});
  return seats;
}

bool SeatFromList(SeatPlan& plan, std::size_t line, Seat to) {
  if (line >= plan.unseated.size() || !plan.Holds(to)) return false;
  std::string card = std::move(plan.unseated[line]);
  plan.unseated.erase(plan.unseated.begin() + static_cast<std::ptrdiff_t>(line));
  std::swap(card, plan.At(to));
  if (!card.empty()) plan.unseated.push_back(std::move(card));
  return true;
}

bool MoveCard(SeatPlan& plan, Seat from, Seat to) {
  if (!plan.Holds(from) || !plan.Holds(to) || from == to || plan.At(from).empty()) return false;
  std::swap(plan.At(from), plan.At(to));
  return true;
}

bool Unseat(SeatPlan& plan, Seat from) {
  if (!plan.Holds(from) || plan.At(from).empty()) return false;
  plan.unseated.push_back(std::exchange(plan.At(from), {}));
  return true;
}

std::vector<int> StudentsOfCards(const Class& c, const std::vector<std::string>& labels) {
  std::map<std::string, int, std::less<>> owners;
  for (int i = 1; i <= c.NumStudents; ++i) {
    const auto [owner, alone] =
        owners.emplace(SeatLabel(c.Students[static_cast<std::size_t>(i)]), i);
    if (!alone) owner->second = 0;
  }
  std::vector<int> students;
  students.reserve(labels.size());
  for (const std::string& label : labels) {
    const auto owner = label.empty() ? owners.end() : owners.find(label);
    students.push_back(owner == owners.end() ? 0 : owner->second);
  }
  return students;
}

}  // namespace tallyroll
