// SPDX-License-Identifier: GPL-3.0-or-later
// Where the cells of a Grid stand, in pixels. No painting here, so it is tested by itself.
#pragma once

#include <QFontMetrics>
#include <QRect>
#include <vector>

#include "platform/grid.h"

namespace tallyroll {

// One row or column that can be seen, and its place along its direction.
struct Band {
  int index = 0;
  int start = 0;
  int size = 0;
};

// Rows or columns of a grid: the fixed ones always stand at the start, the others behind them
// from the first one shown.
class GridAxis {
 public:
  GridAxis() = default;
  GridAxis(std::vector<int> sizes, int fixed);

  int Count() const { return static_cast<int>(offsets_.size()) - 1; }
  int Fixed() const { return fixed_; }
  int SizeOf(int index) const { return Offset(index + 1) - Offset(index); }
  int FixedSize() const { return Offset(fixed_); }
  int TotalSize() const { return offsets_.back(); }

  // Start of a row or column when `first` is the first one behind the fixed ones.
  int Start(int index, int first) const;
  // The row or column at a place; -1 behind the last.
  int At(int place, int first) const;
  // The farthest first one that leaves no room behind the last.
  int LastFirst(int extent) const;
  // The first one to show so that `index` is seen whole, with as little movement as possible.
  int FirstToShow(int index, int first, int extent) const;
  // Those that can be seen within `extent`, hidden ones left out.
  std::vector<Band> Visible(int first, int extent) const;
  // The same with one of another size; with one that is at least so large, unless it is hidden.
  GridAxis With(int index, int size) const;
  GridAxis WithLeast(int index, int size) const;
  // The same with the last one that shows so large that all fill `extent`.
  GridAxis Filling(int extent) const;
  // The next one in a direction that is neither fixed nor hidden; `from` when there is none.
  int Next(int from, int step) const;

  friend bool operator==(const GridAxis&, const GridAxis&) = default;

 private:
  int Offset(int index) const { return offsets_[static_cast<std::size_t>(index)]; }

  std::vector<int> offsets_{0};
  int fixed_ = 0;
};

// Pixels for a number of twips. The widths were chosen for a font of 8.25 points, so they grow
// with the font as with the screen.
int PixelsOfTwips(int twips, int logical_dpi, double font_points);

GridAxis RowsOf(const Grid& grid, int logical_dpi, double font_points, int text_height);
GridAxis ColumnsOf(const Grid& grid, int logical_dpi, double font_points);

}  // namespace tallyroll
