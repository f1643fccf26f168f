// SPDX-License-Identifier: GPL-3.0-or-later
// What mouse and keyboard do in the grid.
#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "desktop/basics/key_mapping.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/grid/grid_widget.h"

namespace tallyroll {
namespace {

// Ctrl+Ins copies elsewhere; here it adds students.
bool IsCopyKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_C && event.modifiers() == Qt::ControlModifier;
}

}  // namespace

bool GridWidget::event(QEvent* event) {
  // An arrow key that reached the edge stays in the grid instead of moving the focus.
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (grid_ && (TargetOf(key) || IsCopyKey(key) || IsZoomKey(key))) event->accept();
  }
  return QAbstractScrollArea::event(event);
}

bool GridWidget::viewportEvent(QEvent* event) {
  if (grid_ && event->type() == QEvent::ToolTip) {
    const auto& help = static_cast<const QHelpEvent&>(*event);
    ShowToolTip(help.pos(), help.globalPos());
    return true;
  }
  if (grid_ && event->type() == QEvent::Leave) {
    grid_->MouseRow = grid_->MouseCol = -1;
    pointer_.reset();
    SetHover({});
    Q_EMIT hovered(-1, -1);
  }
  return QAbstractScrollArea::viewportEvent(event);
}

// What the Portal tells of the cell, otherwise a text that is cut.
QString GridWidget::ToolTipOf(int row, int col) const {
  if (grid_->Notes.Tip)
    if (const QString tip = FromText(grid_->Notes.Tip(row, col)); !tip.isEmpty()) return tip;
  if (IsCut(row, col)) return FromText(grid_->TextMatrix(row, col));
  return FromText(NoteOf(grid_->Notes, row, col).words);
}

void GridWidget::ShowToolTip(const QPoint& place, const QPoint& global) {
  MeasureIfChanged();
  const Cell cell = CellAt(place);
  const QString text = cell.row < 0 ? QString() : ToolTipOf(cell.row, cell.col);
  if (text.isEmpty()) return QToolTip::hideText();
  QToolTip::showText(global, text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")),
                     viewport(), CellRect(cell.row, cell.col));
}

void GridWidget::PointAt(const QPoint& place) {
  MeasureIfChanged();
  const Cell cell = CellAt(place);
  grid_->MouseRow = cell.row;
  grid_->MouseCol = cell.col;
}

void GridWidget::mousePressEvent(QMouseEvent* event) {
  if (!grid_ || event->button() != Qt::LeftButton) return;
  pressed_here_ = true;
  PointAt(event->position().toPoint());
  if (TakeBorder(event->position().toPoint())) return;
  const int row = grid_->MouseRow, col = grid_->MouseCol;
  if (row < 0) return;
  if (row >= grid_->FixedRows && col >= grid_->FixedCols) {
    Extend(event->modifiers() & Qt::ShiftModifier);
    MoveTo(row, col);
  }
  Q_EMIT cellClicked(row, col);
}

void GridWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!grid_) return;
  const QPoint place = event->position().toPoint();
  PointAt(place);
  pointer_ = place;
  if (resizing_.col >= 0) return DrawBorder(place);
  viewport()->setCursor(BorderAt(place) >= 0 ? Qt::SplitHCursor : Qt::ArrowCursor);
  SetHover({grid_->MouseRow, grid_->MouseCol});
  Q_EMIT hovered(grid_->MouseRow, grid_->MouseCol);
}

void GridWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  // The second press on something that made way for this grid is a first press here.
  if (!pressed_here_) return mousePressEvent(event);
  if (!grid_ || event->button() != Qt::LeftButton) return;
  PointAt(event->position().toPoint());
  // A border that is clicked twice goes back to where it was made.
  if (const int col = BorderAt(event->position().toPoint()); col >= 0) {
    resizing_ = {};
    kept_.ForgetWidth(*grid_, col);
    return ApplyFonts();
  }
  if (grid_->MouseRow >= 0) Q_EMIT cellDoubleClicked(grid_->MouseRow, grid_->MouseCol);
}

void GridWidget::DoubleClick(int row, int col) {
  // A handler asks for the cell under the pointer; with the keyboard that is the current one.
  grid_->MouseRow = row;
  grid_->MouseCol = col;
  Q_EMIT cellDoubleClicked(row, col);
}

// A move with Shift selects from where the first one began; any other ends the selection.
void GridWidget::Extend(bool with_shift) {
  const CellRange before = Range();
  if (!with_shift)
    anchor_.reset();
  else if (!anchor_)
    anchor_ = Cell{grid_->Row, grid_->Col};
  if (!before.IsOneCell()) UpdateCells(before);
}

void GridWidget::CopyRange() const {
  const CellRange range = Range();
  if (range.top < 0 || range.bottom >= grid_->Rows() || range.right >= grid_->Cols()) return;
  QGuiApplication::clipboard()->setMimeData(TableOf(*grid_, range));
}

void GridWidget::keyPressEvent(QKeyEvent* event) {
  if (!grid_) return event->ignore();
  MeasureIfChanged();
  const int key = event->key();
  const bool presses = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
  if (IsCopyKey(*event)) return CopyRange();
  if (IsZoomKey(*event)) return ZoomBy(*event);
  if (KeyOf(*event) == Key::kF4) {
    Q_EMIT listAsked();
  } else if (presses && enter_double_clicks_ && grid_->Row < grid_->Rows() &&
             grid_->Col < grid_->Cols()) {
    DoubleClick(grid_->Row, grid_->Col);
  } else if (const std::optional<Cell> target = TargetOf(*event)) {
    Extend(event->modifiers() & Qt::ShiftModifier);
    MoveTo(target->row, target->col);
  } else {
    event->ignore();
  }
}

std::optional<GridWidget::Cell> GridWidget::TargetOf(const QKeyEvent& event) const {
  if (rows_.Fixed() >= rows_.Count() || columns_.Fixed() >= columns_.Count()) return std::nullopt;
  const bool control = event.modifiers() & Qt::ControlModifier;
  const bool pages = event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown;
  // A Portal may page by months with Ctrl.
  if ((event.modifiers() & Qt::AltModifier) || (control && pages)) return std::nullopt;
  const int row = std::clamp(grid_->Row, rows_.Fixed(), rows_.Count() - 1);
  const int col = std::clamp(grid_->Col, columns_.Fixed(), columns_.Count() - 1);
  const auto step = [control, this](const GridAxis& axis, int from, int direction) {
    return control ? EdgeOf(axis, direction) : axis.Next(from, direction);
  };
  switch (event.key()) {
    case Qt::Key_Up:
      return Cell{step(rows_, row, -1), col};
    case Qt::Key_Down:
      return Cell{step(rows_, row, 1), col};
    case Qt::Key_Left:
      return Cell{row, step(columns_, col, -1)};
    case Qt::Key_Right:
      return Cell{row, step(columns_, col, 1)};
    case Qt::Key_PageUp:
      return Cell{PageStep(-1), col};
    case Qt::Key_PageDown:
      return Cell{PageStep(1), col};
    case Qt::Key_Home:
      return Cell{control ? EdgeOf(rows_, -1) : row, EdgeOf(columns_, -1)};
    case Qt::Key_End:
      return Cell{control ? EdgeOf(rows_, 1) : row, EdgeOf(columns_, 1)};
    default:
      return std::nullopt;
  }
}

int GridWidget::PageStep(int direction) const {
  const int room = std::max(viewport()->height() - rows_.FixedSize(), 1);
  int row = std::clamp(grid_->Row, rows_.Fixed(), rows_.Count() - 1);
  int passed = 0;
  for (int next = rows_.Next(row, direction); next != row; next = rows_.Next(row, direction)) {
    passed += rows_.SizeOf(next);
    if (passed > room) break;
    row = next;
  }
  return row;
}

int GridWidget::EdgeOf(const GridAxis& axis, int direction) const {
  return direction < 0 ? axis.Next(axis.Fixed() - 1, 1) : axis.Next(axis.Count(), -1);
}

}  // namespace tallyroll
