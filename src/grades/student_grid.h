// SPDX-License-Identifier: GPL-3.0-or-later
// A grid with a row per student, named as the class window names them, and one column of marks.
#pragma once

#include "platform/grid.h"

namespace tallyroll {

inline constexpr int kMarkColumn = 2;

// Sizes the grid and fills it with names and ids in the order of the class; all marks are empty,
// and the current cell is the first mark.
void FillStudentGrid(Grid& grid);

}  // namespace tallyroll
