// SPDX-License-Identifier: GPL-3.0-or-later
// The grid in which absences and lates are typed by hand, a student a row.
#pragma once

#include <functional>

#include "attendance/label_columns.h"
#include "platform/cell_typing.h"
#include "platform/portal.h"

namespace tallyroll {

inline constexpr int kAbsentColumn = 2;
inline constexpr int kLateColumn = 3;

class DirectGrid {
 public:
  // `typed` is told of each key, and answers whether the grid takes it.
  DirectGrid(Grid& grid, std::function<bool()> typed) : grid_(grid), typed_(std::move(typed)) {}

  void Declare(ControlTable& table);

  // Sizes the grid, with all figures empty, and goes to the first student.
  void LayOut(const LabelTable& labels);
  // The next key replaces what the first cell holds.
  void GoToFirst();

  // No figure is empty or a single blank.
  bool IsFilled() const;
  // Some student has neither of the two.
  bool HasBlankRow() const;

 private:
  bool KeyPress(unsigned char key);
  bool KeyDown(Key key);
  bool StepCell(int by);
  void EnterCell();

  Grid& grid_;
  std::function<bool()> typed_;
  CellTyping typing_;
};

// Refuses a period that lacks its title, its code or a figure: says so, and leads there.
void RemindOfSummary(Portal& portal, TextBox& title, TextBox& code, Grid& grid,
                     DirectGrid& figures);

}  // namespace tallyroll
