// SPDX-License-Identifier: GPL-3.0-or-later
// Paints the visible cells of a Grid straight from its bytes.
#pragma once

#include <QPainter>
#include <vector>

#include "desktop/grid/cell_painter.h"
#include "desktop/grid/grid_layout.h"
#include "desktop/grid/grid_range.h"

namespace tallyroll {

// The columns with the room that is left behind them, up to `width`, given to texts on the left
// that their columns would cut, column by column; `set` are those that a user has set.
GridAxis WidenedForTexts(const Grid& grid, const GridAxis& columns, const GridFonts& fonts,
                         int width, const std::vector<bool>& set = {});

// What is painted: the grid, where its cells stand, how they look, and what the user does there.
struct GridPicture {
  const Grid& grid;
  const GridAxis& rows;
  const GridAxis& columns;
  const GridColors& colors;
  const GridFonts& fonts;
  bool focused = false;
  CellRange range = {};  // what is selected
  int hover_row = -1;
  int hover_col = -1;
  QString empty = {};         // what will stand here, while nothing does
  bool framed_right = false;  // it ends at its frame, not at a bar
};

// The columns that a heading of the merged row spans, as far as they can be seen.
struct HeadingSpan {
  int first = 0;  // positions in the visible columns
  int last = 0;
};
std::vector<HeadingSpan> MergedSpans(const Grid& grid, const std::vector<Band>& columns);

// Paints what lies in `area` of a view of that size.
void PaintGrid(QPainter& painter, const GridPicture& picture, const QSize& view, const QRect& area);

// How far the shade reaches that pinned columns throw on those beneath them.
int ShadeWidth(const GridFonts& fonts);

}  // namespace tallyroll
