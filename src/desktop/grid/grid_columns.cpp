// SPDX-License-Identifier: GPL-3.0-or-later
// How wide the columns are, and how large it all is, as the user sets them.
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>

#include "desktop/grid/grid_widget.h"

namespace tallyroll {
namespace {

constexpr int kGrip = 3;  // pixels to both sides of a border
constexpr int kNarrowest = 14;
constexpr double kZoomStep = 1.1;
constexpr double kWheelStep = 120;

double TwipsOfPixels(int pixels, int logical_dpi, double font_points) {
  return pixels * 1000.0 / PixelsOfTwips(1000, logical_dpi, font_points);
}

}  // namespace

void GridWidget::ApplyFonts() {
  fonts_ = GridFonts(font(), kept_.zoom());
  updateGeometry();
  if (!grid_) return;
  Measure();
  ClampView();
  SetScrollBars();
  prints_ = PrintsOfView();
  viewport()->update();
}

// The column whose right border lies there, within the heads; -1 is none.
int GridWidget::BorderAt(const QPoint& place) const {
  if (!grid_ || place.y() < 0 || place.y() >= rows_.FixedSize()) return -1;
  for (const Band& column : columns_.Visible(grid_->LeftCol, viewport()->width()))
    if (std::abs(column.start + column.size - 1 - place.x()) <= kGrip) return column.index;
  return -1;
}

bool GridWidget::TakeBorder(const QPoint& place) {
  const int col = BorderAt(place);
  if (col < 0) return false;
  resizing_ = {col, place.x(), columns_.SizeOf(col)};
  return true;
}

void GridWidget::DrawBorder(const QPoint& place) {
  const int width = std::max(resizing_.width + place.x() - resizing_.from, kNarrowest);
  if (width == columns_.SizeOf(resizing_.col)) return;
  const double twips = TwipsOfPixels(width, logicalDpiX(), fonts_.points);
  kept_.SetWidth(*grid_, resizing_.col, static_cast<int>(std::lround(twips)));
  ApplyFonts();
}

void GridWidget::mouseReleaseEvent(QMouseEvent* event) {
  resizing_ = {};
  QAbstractScrollArea::mouseReleaseEvent(event);
}

void GridWidget::SetZoom(double zoom) {
  kept_.SetZoom(zoom);
  ApplyFonts();
  if (grid_) ShowCell(grid_->Row, grid_->Col);
  UpdateFromGrid();
}

void GridWidget::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
  SetZoom(kept_.zoom() * std::pow(kZoomStep, event->angleDelta().y() / kWheelStep));
  event->accept();
}

bool GridWidget::IsZoomKey(const QKeyEvent& event) {
  const int key = event.key();
  return (event.modifiers() & Qt::ControlModifier) && !(event.modifiers() & Qt::AltModifier) &&
         (key == Qt::Key_Plus || key == Qt::Key_Equal || key == Qt::Key_Minus || key == Qt::Key_0);
}

void GridWidget::ZoomBy(const QKeyEvent& event) {
  if (event.key() == Qt::Key_0) return SetZoom(1);
  SetZoom(event.key() == Qt::Key_Minus ? kept_.zoom() / kZoomStep : kept_.zoom() * kZoomStep);
}

}  // namespace tallyroll
