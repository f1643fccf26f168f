// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/sheet_view.h"

#include <QPainter>

#include "desktop/paper/qt_print_target.h"

namespace tallyroll {
namespace {

constexpr double kTwipsPerInch = 1440;

}  // namespace

// A report lets waiting events run while it is drawn, and one of them may ask for another page:
// that is drawn when this one is done, never in the middle of it.
void SheetView::ShowSheet(const PictureBox& box) {
  if (drawing_ || !box.Draw) return;
  drawing_ = true;
  while (shown_ != LookOf(box)) {
    shown_ = LookOf(box);
    sheet_ = Draw(box);
    setFixedSize(sheet_.deviceIndependentSize().toSize());
    update();
  }
  drawing_ = false;
}

QPixmap SheetView::Draw(const PictureBox& box) const {
  const double ratio = devicePixelRatioF();
  const QSizeF size(box.SheetWidth * logicalDpiX() / kTwipsPerInch * box.Zoom,
                    box.SheetHeight * logicalDpiY() / kTwipsPerInch * box.Zoom);
  QPixmap pixmap((size * ratio).toSize());
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::white);
  if (pixmap.isNull()) return pixmap;
  QPainter painter(&pixmap);
  ScaleToTwips(painter, *this);
  painter.scale(box.Zoom, box.Zoom);
  QtPrintTarget target({box.SheetWidth, box.SheetHeight, box.SheetWidth, box.SheetHeight},
                       &painter);
  box.Draw(target);
  return pixmap;
}

void SheetView::paintEvent(QPaintEvent* /*event*/) {
  QPainter(this).drawPixmap(0, 0, sheet_);
}

}  // namespace tallyroll
