// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tallyroll {

// A cell of the class window, by student and grade; 0 is none.
struct CellChoice {
  int student = 0;
  int grade = 0;
};

// Where a Portal of the Insight menu leads: set by the Portal as it is left, taken by the class
// window.
extern CellChoice ChosenCell;

// Puts everything above, the chosen snapshot and the found work to its start value.
void ResetInsight();

}  // namespace tallyroll
