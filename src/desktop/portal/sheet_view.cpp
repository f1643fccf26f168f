// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/sheet_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/paper/heard_page.h"

namespace tallyroll {
namespace {

constexpr double kTwipsPerInch = 1440;
// Of a sheet that is fitted into a very small or a very large room.
constexpr double kLeastZoom = 0.1, kGreatestZoom = 3;

}  // namespace

// Nothing below it is painted with it: a shadow that is blended there takes longer than the sheet.
SheetView::SheetView(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

// A report lets waiting events run while it is drawn, and one of them may ask for another page:
// that is drawn when this one is done, never in the middle of it.
void SheetView::ShowSheet(const PictureBox& box, const QSize& room) {
  if (drawing_ || !box.Draw) return;
  drawing_ = true;
  while (shown_ != LookOf(box, room)) {
    shown_ = LookOf(box, room);
    sheet_ = Draw(box, shown_.zoom);
    setFixedSize(sheet_.deviceIndependentSize().toSize());
    update();
  }
  drawing_ = false;
}

SheetView::Look SheetView::LookOf(const PictureBox& box, const QSize& room) const {
  Look look{box.Revision, box.Zoom, box.SheetWidth, box.SheetHeight};
  if (box.Fit == SheetFit::kZoom || box.SheetWidth <= 0 || box.SheetHeight <= 0) return look;
  look.zoom = room.width() / (box.SheetWidth * logicalDpiX() / kTwipsPerInch);
  if (box.Fit == SheetFit::kPage)
    look.zoom =
        std::min(look.zoom, room.height() / (box.SheetHeight * logicalDpiY() / kTwipsPerInch));
  look.zoom = std::clamp(look.zoom, kLeastZoom, kGreatestZoom);
  return look;
}

QPixmap SheetView::Draw(const PictureBox& box, double zoom) {
  const double ratio = devicePixelRatioF();
  const QSizeF size(box.SheetWidth * logicalDpiX() / kTwipsPerInch * zoom,
                    box.SheetHeight * logicalDpiY() / kTwipsPerInch * zoom);
  QPixmap pixmap((size * ratio).toSize());
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::white);
  if (pixmap.isNull()) return pixmap;
  QPainter painter(&pixmap);
  ScaleToTwips(painter, *this);
  painter.scale(zoom, zoom);
  const Sheet sheet{box.SheetWidth, box.SheetHeight, box.SheetWidth, box.SheetHeight};
  HeardPage target(sheet, &painter);
  box.Draw(target);
  words_ = target.Words();
  return pixmap;
}

// A picture of a fraction of pixels ends a part of one before its widget does.
void SheetView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), Qt::white);
  painter.drawPixmap(0, 0, sheet_);
}

}  // namespace tallyroll
