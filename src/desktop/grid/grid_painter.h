// SPDX-License-Identifier: GPL-3.0-or-later
// Paints the visible cells of a Grid straight from its bytes.
#pragma once

#include <QFont>
#include <QPainter>
#include <array>
#include <string_view>
#include <vector>

#include "desktop/grid/grid_colors.h"
#include "desktop/grid/grid_layout.h"

namespace tallyroll {

// A font with the width of each character of the code page, so that the usual text, which fits,
// is placed without asking the font engine.
class CellFont {
 public:
  CellFont() = default;
  explicit CellFont(const QFont& font);
  const QFont& font() const { return font_; }
  int WidthOf(std::string_view text) const;
  QString Elided(std::string_view text, int width) const;
  int Ascent() const { return ascent_; }
  int Height() const { return height_; }

 private:
  static constexpr float kNotMeasured = -1;
  float WidthOf(unsigned char character) const;

  QFont font_;
  mutable std::array<float, 256> widths_{};  // measured when first asked for
  int ascent_ = 0;
  int height_ = 0;
};

struct GridFonts {
  explicit GridFonts(const QFont& font);
  CellFont plain;
  CellFont bold;
};

// Pixels for text in a cell. A centred one is cut only where it meets the lines: a day's number
// fits its narrow column.
int RoomForText(int cell_width, ColumnAlign align);

// The columns with the room that is left behind them, up to `width`, given to texts on the left
// that their columns would cut, column by column.
GridAxis WidenedForTexts(const Grid& grid, const GridAxis& columns, const GridFonts& fonts,
                         int width);

// What is painted: the grid, where its cells stand, and how they look.
struct GridPicture {
  const Grid& grid;
  const GridAxis& rows;
  const GridAxis& columns;
  const GridColors& colors;
  const GridFonts& fonts;
  QColor focus_frame;  // of the current cell
};

// The columns that a heading of the merged row spans, as far as they can be seen.
struct HeadingSpan {
  int first = 0;  // positions in the visible columns
  int last = 0;
};
std::vector<HeadingSpan> MergedSpans(const Grid& grid, const std::vector<Band>& columns);

// Paints what lies in `area` of a view of that size.
void PaintGrid(QPainter& painter, const GridPicture& picture, const QSize& view, const QRect& area);

}  // namespace tallyroll
