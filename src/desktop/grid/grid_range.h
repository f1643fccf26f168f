// SPDX-License-Identifier: GPL-3.0-or-later
// A rectangle of cells that was selected, and what the clipboard gets of it.
#pragma once

#include <string>

#include "platform/grid.h"

class QMimeData;

namespace tallyroll {

// Both ends are included; the usual range is one cell.
struct CellRange {
  int top = 0;
  int left = 0;
  int bottom = -1;
  int right = -1;

  bool Contains(int row, int col) const {
    return row >= top && row <= bottom && col >= left && col <= right;
  }
  bool IsOneCell() const { return top == bottom && left == right; }
  int Count() const {
    return bottom < top || right < left ? 0 : (bottom - top + 1) * (right - left + 1);
  }

  friend bool operator==(const CellRange&, const CellRange&) = default;
};

CellRange RangeBetween(int row, int col, int other_row, int other_col);

// The cells as a table: for a sheet a tab between cells and a line for a row, for a letter HTML.
// Hidden rows and columns are left out. The caller owns it.
QMimeData* TableOf(const Grid& grid, const CellRange& range);

}  // namespace tallyroll
