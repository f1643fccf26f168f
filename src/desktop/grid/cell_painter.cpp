// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/cell_painter.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"
#include "desktop/basics/text_conversion.h"

namespace tallyroll {
namespace {

// Of the plan, but for the two least ones, which are pixels.
constexpr int kLeastMargin = 3;
constexpr int kLeastCenteredMargin = 1;
constexpr double kUsualMargin = 8;
constexpr double kGutter = 30;  // for the number before a name
constexpr double kBehindGutter = 2;
constexpr double kChipPadding = 5;
constexpr double kChipMargin = 4;
constexpr double kChipRadius = 4;

bool IsIdColumn(const Grid& grid, int col) {
  for (int row = 0; row < grid.FixedRows; ++row)
    if (Trim(grid.TextMatrix(row, col)) == "ID") return true;
  return false;
}

bool IsZero(std::string_view text) {
  return Trim(text) == "0";
}

}  // namespace

int RoomForText(int cell_width, ColumnAlign align) {
  return cell_width - 2 * (align == ColumnAlign::kCenter ? kLeastCenteredMargin : kLeastMargin);
}

std::optional<NumberedText> NumberedIn(const Grid& grid, int row, int col) {
  if (row < grid.FixedRows || row >= grid.Rows() || col >= grid.FixedCols) return std::nullopt;
  const std::string_view text = grid.TextMatrix(row, col);
  if (text.size() < 4 || text.front() != ' ') return std::nullopt;
  const std::size_t end = text.find(' ', 1);
  if (end == std::string_view::npos || end + 1 >= text.size()) return std::nullopt;
  const std::string_view number = text.substr(1, end - 1);
  if (number != PlainNumberText(row - grid.FixedRows + 1)) return std::nullopt;
  return NumberedText{number, TrimRight(text.substr(end + 1))};
}

int WidthWanted(const Grid& grid, const GridFonts& fonts, int row, int col) {
  if (const auto numbered = NumberedIn(grid, row, col))
    return fonts.Px(kGutter + kBehindGutter) + fonts.bold.WidthOf(numbered->name);
  const std::string_view text = grid.TextMatrix(row, col);
  if (row < grid.FixedRows) return fonts.chip.WidthOf(Trim(text));
  return fonts.plain.WidthOf(TrimRight(text));
}

int CellPainter::XOf(const CellFont& font, std::string_view text, const Place& place) const {
  const int least = place.align == ColumnAlign::kCenter ? kLeastCenteredMargin : kLeastMargin;
  const int room = place.cell.width() - place.indent;
  const int width = font.WidthOf(text);
  // A text too wide for the usual margins takes the least ones first.
  const int margin = std::clamp((room - width) / 2, least, fonts_.Px(kUsualMargin));
  const int left = place.cell.left() + place.indent;
  if (place.align == ColumnAlign::kRight) return left + std::max(room - width - margin, least);
  if (place.align == ColumnAlign::kCenter) return left + std::max((room - width) / 2, least);
  return left + margin;
}

void CellPainter::Text(const CellFont& font, const QColor& color, std::string_view text,
                       const Place& place) {
  if (text.empty()) return;
  painter_.setPen(color);
  const QRect& cell = place.cell;
  const int y = cell.top() + (cell.height() - 1 - font.Height()) / 2 + font.Ascent();
  const int x = XOf(font, text, place);
  const int room = RoomForText(cell.width() - place.indent, place.align);
  if (font.WidthOf(text) <= room) return font.Draw(painter_, QPointF(x, y), text);
  painter_.setFont(font.font());
  painter_.drawText(QPointF(x, y), font.Elided(text, room));
}

bool CellPainter::Chip(const ChipLook& look, std::string_view text, const Place& place) {
  const QRect& cell = place.cell;
  const int width = fonts_.chip.WidthOf(text);
  const int padding = std::min(fonts_.Px(kChipPadding), (cell.width() - 3 - width) / 2);
  if (padding < 1) return false;
  const int height = std::min(fonts_.chip.Height() + 1, cell.height() - 3);
  const int whole = width + 2 * padding;
  const int margin = std::min(fonts_.Px(kChipMargin), (cell.width() - 1 - whole) / 2);
  int left = cell.left() + margin;
  if (place.align == ColumnAlign::kRight) left = cell.right() - margin - whole;
  if (place.align == ColumnAlign::kCenter) left = cell.left() + (cell.width() - 1 - whole) / 2;
  const QRect chip(left, cell.top() + (cell.height() - 1 - height) / 2, whole, height);
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(look.ground);
  painter_.drawRoundedRect(chip, fonts_.Px(kChipRadius), fonts_.Px(kChipRadius));
  painter_.setRenderHint(QPainter::Antialiasing, false);
  Text(fonts_.chip, look.text, text, {chip.adjusted(0, 0, 0, 1), ColumnAlign::kCenter});
  return true;
}

void CellPainter::Underline(std::string_view text, const Place& place) {
  const int x = XOf(fonts_.plain, text, place);
  const int y = place.cell.top() + (place.cell.height() - 1 - fonts_.plain.Height()) / 2 +
                fonts_.plain.Ascent() + 2;
  painter_.fillRect(x, y, fonts_.plain.WidthOf(text), 1, colors_.tokens().text);
}

void CellPainter::Mark(int row, int col, const CellNote& note, const QRect& cell) {
  const std::string_view text = TrimRight(grid_.TextMatrix(row, col));
  if (text.empty()) return;
  const Place place{cell, grid_.ColAlignment(col)};
  const CellStyle style = grid_.Style(row, col);
  const CellLook& look = colors_.Look(style);
  const ChipLook chip = colors_.ChipOf(note.mark);
  if (style != CellStyle::kInWork && chip.ground.isValid() && Chip(chip, text, place)) return;
  if (note.mark == CellMark::kFailing || style == CellStyle::kFailing)
    return Text(fonts_.bold, colors_.Look(CellStyle::kFailing).text, text, place);
  if (note.mark == CellMark::kMuted) return Text(fonts_.plain, colors_.tokens().muted, text, place);
  if (style == CellStyle::kTotal)
    return IsZero(text) ? Text(fonts_.plain, colors_.tokens().muted, text, place)
                        : Text(fonts_.bold, look.text, text, place);
  Text(look.bold ? fonts_.bold : fonts_.plain, look.text, text, place);
  if (note.mark == CellMark::kAbove) Underline(text, place);
}

// Of a column whose names have numbers before them, so that names and head begin at one edge.
int CellPainter::IndentOf(int col) const {
  return NumberedIn(grid_, grid_.FixedRows, col) ? fonts_.Px(kGutter + kBehindGutter) : 0;
}

void CellPainter::Pinned(int row, int col, bool in_work, const QRect& cell) {
  const Tokens& t = colors_.tokens();
  const bool muted = NoteOf(grid_.Notes, row, col).mark == CellMark::kMuted;
  if (const auto numbered = NumberedIn(grid_, row, col)) {
    const QRect gutter(cell.left(), cell.top(), fonts_.Px(kGutter), cell.height());
    Text(fonts_.small, t.muted, numbered->number, {gutter, ColumnAlign::kRight});
    return Text(in_work ? fonts_.bold : fonts_.plain, t.text, numbered->name,
                {cell, ColumnAlign::kLeft, fonts_.Px(kGutter + kBehindGutter)});
  }
  const std::string_view text = TrimRight(grid_.TextMatrix(row, col));
  const bool id = IsIdColumn(grid_, col);
  const bool strong = in_work && !id && grid_.ColAlignment(col) == ColumnAlign::kLeft && col == 0;
  const QColor color = id || muted ? t.muted : colors_.Look(grid_.Style(row, col)).text;
  Text(strong ? fonts_.bold : fonts_.plain, color, text, {cell, grid_.ColAlignment(col)});
}

void CellPainter::Head(int row, int col, bool in_work, const QRect& cell) {
  const Tokens& t = colors_.tokens();
  const bool last = row == grid_.FixedRows - 1;
  std::string_view text = Trim(grid_.TextMatrix(row, col));
  // A pinned column is named over its values, on the line of the codes.
  if (last && text.empty() && col < grid_.FixedCols && row > 0)
    text = Trim(grid_.TextMatrix(row - 1, col));
  const std::string above =
      last && grid_.Notes.AboveHead ? grid_.Notes.AboveHead(col) : std::string();
  const std::string below =
      last && grid_.Notes.BelowHead ? grid_.Notes.BelowHead(col) : std::string();
  const CellMark mark = NoteOf(grid_.Notes, row, col).mark;
  const ColumnAlign align = grid_.ColAlignment(col);
  const bool fits = fonts_.bold.WidthOf(text) <= RoomForText(cell.width(), align);
  const CellFont& font = fits ? fonts_.bold : fonts_.chip;
  const int lines = font.Height() + (above.empty() && below.empty() ? 0 : fonts_.small.Height());
  int y = cell.top() + (cell.height() - 1 - lines) / 2;
  const auto line = [&](const CellFont& with, const QColor& color, std::string_view words) {
    if (words.empty()) return;
    const QRect strip(cell.left(), y, cell.width(), with.Height() + 1);
    Text(with, color, words, {strip, align, IndentOf(col)});
    y += with.Height();
  };
  const bool rest = mark == CellMark::kNoSchool;
  line(fonts_.small, t.muted, above);
  if (mark == CellMark::kToday && !in_work) {
    const QRect strip(cell.left(), y, cell.width(), font.Height() + 1);
    painter_.fillRect(strip.adjusted(1, 0, -2, 0), t.accent_soft);
  }
  line(font, in_work || mark == CellMark::kToday ? t.focus : rest ? t.muted : t.text, text);
  line(fonts_.small, t.muted, below);
}

void CellPainter::GroupHead(std::string_view text, const QRect& cell) {
  Text(fonts_.small, colors_.tokens().muted, Trim(text), {cell, ColumnAlign::kCenter});
}

}  // namespace tallyroll
