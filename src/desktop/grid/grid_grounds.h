// SPDX-License-Identifier: GPL-3.0-or-later
// The grounds of a grid's cells, below their texts.
#pragma once

#include "desktop/grid/grid_painter.h"

namespace tallyroll {

// Rows and columns that reach into an area.
struct GridBands {
  std::vector<Band> rows;
  std::vector<Band> columns;
};
GridBands BandsWithin(const GridPicture& picture, const QSize& view, const QRect& area);

inline int EndOf(const Band& band) {
  return band.start + band.size;
}

// The current cell is one behind the heads.
bool HasCurrentCell(const Grid& grid);

void PaintGrounds(QPainter& painter, const GridPicture& picture, const GridBands& bands,
                  const QRect& area);

}  // namespace tallyroll
