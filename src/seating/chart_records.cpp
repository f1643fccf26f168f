// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/chart_records.h"

#include <algorithm>
#include <limits>
#include <map>

#include "base/text.h"
#include "store/class_defaults.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

template <typename T>
void Take(List<T>& list, int item) {
  if (UpperBound(list) >= item) list.erase(list.begin() + item);
}

// A list that a file left too short is filled up first.
void GiveSeat(Student& student, int chart, Seat seat) {
  for (List<i16>* list : {&student.SeatRow, &student.SeatColumn})
    if (UpperBound(*list) < chart) ReDimPreserve(*list, chart, kNotSeated);
  const auto at = static_cast<std::size_t>(chart);
  student.SeatRow[at] = static_cast<i16>(seat.row);
  student.SeatColumn[at] = static_cast<i16>(seat.column);
}

// Cells by their text; of several with the same text the first of the first column counts.
std::map<std::string, Seat, std::less<>> SeatsByLabel(const SeatPlan& plan) {
  std::map<std::string, Seat, std::less<>> seats;
  for (int column = 0; column < plan.columns; ++column) {
    for (int row = 0; row < plan.rows; ++row) {
      const std::string_view label = Trim(plan.At({row, column}));
      if (!label.empty()) seats.emplace(label, Seat{row, column});
    }
  }
  return seats;
}

i16 ItemOf(const List<i16>& list, int item, i16 fallback) {
  return UpperBound(list) >= item ? list[static_cast<std::size_t>(item)] : fallback;
}

}  // namespace

Seat SeatOf(const Student& student, int chart) {
  const Seat seat{ItemOf(student.SeatRow, chart, kNotSeated),
                  ItemOf(student.SeatColumn, chart, kNotSeated)};
  return seat.row < 0 || seat.column < 0 ? Seat{} : seat;
}

SeatPlan LoadChart(int chart) {
  const Class& c = Current();
  const int rows = std::clamp<int>(ItemOf(c.ChartRows, chart, 1), 1, kMostSeatRows);
  const int columns = std::clamp<int>(ItemOf(c.ChartColumns, chart, 1), 1, kMostSeatColumns);
  SeatPlan plan = EmptyPlan(rows, columns);
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    const Seat seat = SeatOf(student, chart);
    if (plan.Holds(seat) && plan.At(seat).empty())
      plan.At(seat) = SeatLabel(student);
    else
      plan.unseated.push_back(SeatLabel(student));
  }
  return plan;
}

int AddChart(int rows, int columns) {
  Class& c = Current();
  if (c.NumCharts == std::numeric_limits<i16>::max()) return 0;
  const int chart = ++c.NumCharts;
  ReDimPreserve(c.ChartRows, chart);
  ReDimPreserve(c.ChartColumns, chart);
  c.ChartRows[static_cast<std::size_t>(chart)] = static_cast<i16>(rows);
  c.ChartColumns[static_cast<std::size_t>(chart)] = static_cast<i16>(columns);
  for (int i = 1; i <= c.NumStudents; ++i) {
    Student& student = c.Students[static_cast<std::size_t>(i)];
    GiveSeat(student, chart, {});
  }
  c.Changed = kTrue;
  return chart;
}

void StoreChart(int chart, const SeatPlan& plan) {
  Class& c = Current();
  auto seats = SeatsByLabel(plan);
  for (int i = 1; i <= c.NumStudents; ++i) {
    Student& student = c.Students[static_cast<std::size_t>(i)];
    const auto seat = seats.find(Trim(SeatLabel(student)));
    GiveSeat(student, chart, seat == seats.end() ? Seat{} : seat->second);
    if (seat != seats.end()) seats.erase(seat);
  }
  c.Changed = kTrue;
}

void DeleteChart(int chart) {
  Class& c = Current();
  if (chart < 1 || chart > c.NumCharts) return;
  --c.NumCharts;
  Take(c.ChartRows, chart);
  Take(c.ChartColumns, chart);
  for (int i = 1; i <= c.NumStudents; ++i) {
    Take(c.Students[static_cast<std::size_t>(i)].SeatRow, chart);
    Take(c.Students[static_cast<std::size_t>(i)].SeatColumn, chart);
  }
  c.Changed = kTrue;
}

int StudentsWithoutLabel() {
  const Class& c = Current();
  std::map<std::string, int> shared;
  for (int i = 1; i <= c.NumStudents; ++i)
    ++shared[SeatLabel(c.Students[static_cast<std::size_t>(i)])];
  int without = 0;
  for (const auto& [label, students] : shared) without += label.empty() ? students : students - 1;
  return without;
}

}  // namespace tallyroll
