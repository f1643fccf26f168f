// SPDX-License-Identifier: GPL-3.0-or-later
// Draws what stands in one cell of a grid; the ground below it is another's.
#pragma once

#include <QPainter>
#include <optional>
#include <string_view>

#include "desktop/grid/cell_font.h"
#include "desktop/grid/grid_colors.h"
#include "platform/grid.h"

namespace tallyroll {

// Pixels for text in a cell. A centred one is cut only where it meets the lines: a day's number
// fits its narrow column.
int RoomForText(int cell_width, ColumnAlign align);

// " 7 Dawson, Eric" in the seventh row of the students: a number and a name.
struct NumberedText {
  std::string_view number;
  std::string_view name;
};
std::optional<NumberedText> NumberedIn(const Grid& grid, int row, int col);

// How wide a cell must be so that its text is not cut, but for the room around it.
int WidthWanted(const Grid& grid, const GridFonts& fonts, int row, int col);

class CellPainter {
 public:
  CellPainter(QPainter& painter, const Grid& grid, const GridColors& colors, const GridFonts& fonts)
      : painter_(painter), grid_(grid), colors_(colors), fonts_(fonts) {}

  // A cell behind the heads, its note told already.
  void Mark(int row, int col, const CellNote& note, const QRect& cell);
  // A name or an ID; those of the row in work are stronger.
  void Pinned(int row, int col, bool in_work, const QRect& cell);
  // The head of a column, with its small lines.
  void Head(int row, int col, bool in_work, const QRect& cell);
  // A heading over several columns.
  void GroupHead(std::string_view text, const QRect& cell);

 private:
  struct Place {
    QRect cell;
    ColumnAlign align = ColumnAlign::kLeft;
    int indent = 0;  // from the left, before the margin
  };
  void Text(const CellFont& font, const QColor& color, std::string_view text, const Place& place);
  bool Chip(const ChipLook& look, std::string_view text, const Place& place);
  void Underline(std::string_view text, const Place& place);
  int XOf(const CellFont& font, std::string_view text, const Place& place) const;
  int IndentOf(int col) const;

  QPainter& painter_;
  const Grid& grid_;
  const GridColors& colors_;
  const GridFonts& fonts_;
};

}  // namespace tallyroll
