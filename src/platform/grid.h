// SPDX-License-Identifier: GPL-3.0-or-later
// Grid: a table with fixed rows and columns, filled by the logic and shown in place.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/short_text.h"
#include "platform/controls.h"
#include "platform/grid_notes.h"

namespace tallyroll {

// What a cell's colour says. Screens choose the colours, light and dark, and never let the
// colour say it alone: a failing mark is also bold.
enum class CellStyle : std::uint8_t { kPlain, kFailing, kInWork, kTotal, kShaded };

enum class ColumnAlign : std::uint8_t { kLeft, kCenter, kRight };

// Rows and columns count from 0, the fixed ones included. Widths and heights are twips (1,440 to
// the inch) and scale with the screen and the font.
class Grid : public Control {
 public:
  static constexpr int kDefaultColWidth = 960;
  static constexpr int kDefaultRowHeight = 300;

  int Rows() const { return rows_; }
  int Cols() const { return cols_; }
  // Changes the size; what stands in rows and columns that remain is kept.
  void SetSize(int rows, int cols);

  std::string_view TextMatrix(int row, int col) const { return cells_[Index(row, col)]; }
  void SetTextMatrix(int row, int col, std::string_view text);
  // Empties every cell, style and height; the size, the widths and the fixed ones stay.
  void Clear();

  CellStyle Style(int row, int col) const;
  void SetStyle(int row, int col, CellStyle style);

  int ColWidth(int col) const { return columns_[static_cast<std::size_t>(col)].width; }
  void SetColWidth(int col, int twips);  // 0 hides the column
  ColumnAlign ColAlignment(int col) const { return columns_[static_cast<std::size_t>(col)].align; }
  void SetColAlignment(int col, ColumnAlign align);
  int RowHeight(int row) const { return heights_[static_cast<std::size_t>(row)]; }
  void SetRowHeight(int row, int twips);  // 0 hides the row
  // Neighbours with the same text in a merged row read as one heading.
  bool MergeRow(int row) const { return row == merged_row_; }
  void SetMergeRow(int row);  // -1 is none

  // Told to the screen when the fill is done: while Redraw is off nothing is painted anew.
  bool Redraw() const { return redraw_; }
  void SetRedraw(bool on);
  // Rises with every change that shows; a screen that saw this number is up to date.
  std::uint64_t Revision() const { return revision_; }

  int FixedRows = 1;
  int FixedCols = 1;
  int Row = 1;  // the current cell
  int Col = 1;
  int TopRow = 1;  // the first row and column shown behind the fixed ones
  int LeftCol = 1;
  int MouseRow = -1;  // the cell under the pointer, set before a mouse event; -1 outside
  int MouseCol = -1;
  // A second, smaller line of a cell, where the screen shows cells as cards; may be null.
  std::function<std::string(int row, int col)> SmallLine;
  GridNotes Notes;
  // What the notes are made from has changed, and no text with it.
  void NotesChanged() { Touch(); }

 private:
  struct Column {
    int width = kDefaultColWidth;
    ColumnAlign align = ColumnAlign::kLeft;
  };
  std::size_t Index(int row, int col) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) +
           static_cast<std::size_t>(col);
  }
  void Touch() { ++revision_; }

  int rows_ = 0;
  int cols_ = 0;
  int merged_row_ = -1;
  bool redraw_ = true;
  std::uint64_t revision_ = 0;
  std::vector<ShortText> cells_;
  std::vector<CellStyle> styles_;  // empty until the first cell gets a style
  std::vector<Column> columns_;
  std::vector<int> heights_;
};

}  // namespace tallyroll
