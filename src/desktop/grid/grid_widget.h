// SPDX-License-Identifier: GPL-3.0-or-later
// Shows a Grid in place: nothing is copied, only the cells in view are painted.
#pragma once

#include <QAbstractScrollArea>
#include <optional>

#include "desktop/grid/grid_layout.h"
#include "desktop/grid/grid_painter.h"
#include "desktop/grid/kept_grid.h"
#include "platform/grid.h"

namespace tallyroll {

class GridWidget : public QAbstractScrollArea {
  Q_OBJECT
  // Whether the last column takes the room that the others leave, as in a table of words.
  Q_PROPERTY(bool lastColumnFills READ LastColumnFills WRITE SetLastColumnFills)

 public:
  explicit GridWidget(QWidget* parent = nullptr);
  ~GridWidget() override;

  // The grid must outlive its time here; null shows nothing.
  void SetGrid(Grid* grid);
  Grid* grid() const { return grid_; }

  // Shows what changed since the last time. While Redraw is off nothing happens.
  void UpdateFromGrid();

  // Under this name its widths and its size are kept between runs.
  void Keep(const QString& name);
  bool LastColumnFills() const { return last_column_fills_; }
  void SetLastColumnFills(bool on) { last_column_fills_ = on; }
  // In one sentence, what will stand here; shown while the grid has no row behind its heads.
  void SetEmptyText(const QString& text);
  // The same whatever the grid holds; empty for nothing.
  void SetNotice(const QString& text);
  // What of the two is shown now.
  QString NoticeShown() const;

  // Whether Enter and the blank stand for a double click on the current cell. Off, Enter is left
  // to the dialog.
  void SetEnterDoubleClicks(bool on) { enter_double_clicks_ = on; }

  // Moves the current cell as a user does, and shows it.
  void MoveTo(int row, int col);

  // The cell's place in the viewport; empty when it is hidden. A merged heading is one place.
  QRect CellRect(int row, int col) const;
  // The cell under a place of the viewport; -1 outside.
  struct Cell {
    int row = -1;
    int col = -1;
  };
  Cell CellAt(const QPoint& place) const;
  // Whether the text is wider than its cell, so that its end does not show.
  bool IsCut(int row, int col) const;
  // What is selected with Shift, otherwise the current cell.
  CellRange Range() const;
  // 1 is the usual size.
  void SetZoom(double zoom);
  double Zoom() const { return kept_.zoom(); }

  // What a screen reader adds to the current cell.
  void SetTold(const QString& told) { told_ = told; }
  const QString& Told() const { return told_; }

  QSize sizeHint() const override;
  // With all its columns and room for a scroll bar.
  int WholeWidth() const;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  // All of these come only from the user.
  void cellClicked(int row, int col);
  void cellDoubleClicked(int row, int col);
  void currentCellChanged(int row, int col);
  void hovered(int row, int col);  // -1, -1 when the pointer has left
  void listAsked();                // F4 or Alt+Down: what may be chosen in the current cell

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // What of the grid stands on the screen now.
  struct Shown {
    std::uint64_t revision = 0;
    int row = -1;
    int col = -1;
    int top_row = -1;
    int left_col = -1;
  };
  // A column whose border is drawn along.
  struct Resizing {
    int col = -1;
    int from = 0;   // where it was taken hold of
    int width = 0;  // and how wide the column was
  };

  bool Measure();
  bool MeasureIfChanged();
  void ClampView();
  void SetScrollBars();
  void ShowCell(int row, int col);
  void ScrollPixels(int dx, int dy);
  void ApplyFonts();
  void ShowFocus();
  void UpdateCells(const CellRange& cells);
  void UpdateCross(int row, int col);
  void UpdateWhatChanged();
  std::vector<std::size_t> PrintsOfView() const;
  void Hover(const QPoint& place);
  void SetHover(const Cell& cell);
  void PointAt(const QPoint& place);
  void Extend(bool with_shift);
  void CopyRange() const;
  // Ctrl with plus, minus or 0.
  static bool IsZoomKey(const QKeyEvent& event);
  void ZoomBy(const QKeyEvent& event);
  QString ToolTipOf(int row, int col) const;
  int BorderAt(const QPoint& place) const;
  bool TakeBorder(const QPoint& place);
  void DrawBorder(const QPoint& place);
  void DoubleClick(int row, int col);
  void ShowToolTip(const QPoint& place, const QPoint& global);
  std::optional<Cell> TargetOf(const QKeyEvent& event) const;
  int PageStep(int direction) const;
  int EdgeOf(const GridAxis& axis, int direction) const;

  Grid* grid_ = nullptr;
  KeptGrid kept_;
  QString empty_text_;
  QString notice_;
  Resizing resizing_;
  std::optional<Cell> anchor_;       // where the selection with Shift began
  std::optional<QPoint> pointer_;    // in the viewport
  Cell hover_;                       // what it rests on
  std::vector<std::size_t> prints_;  // of the cells in view, as they are painted
  bool enter_double_clicks_ = true;
  bool last_column_fills_ = false;
  bool setting_bars_ = false;
  bool moving_ = false;        // by what the user did, not by the logic
  bool pressed_here_ = false;  // a first press, which a double click needs
  Shown shown_;
  std::uint64_t measured_ = 0;
  GridAxis rows_;
  GridAxis columns_;
  int natural_width_ = 0;  // of the columns as the logic set them
  GridFonts fonts_;
  GridColors colors_;
  QString told_;
};

}  // namespace tallyroll
