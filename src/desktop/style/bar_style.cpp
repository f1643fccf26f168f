// SPDX-License-Identifier: GPL-3.0-or-later
// Scroll bars and progress.
#include <QPainter>
#include <algorithm>

#include "desktop/style/controls.h"
#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

constexpr double kThumb = 5, kThumbUnderPointer = 7, kLeastThumb = 32, kProgress = 6;

// Where the thumb begins and how long it is, along the bar.
std::pair<int, int> ThumbOf(const QStyleOptionSlider& bar, const Measures& m) {
  const int length = bar.orientation == Qt::Horizontal ? bar.rect.width() : bar.rect.height();
  const qint64 range = qint64{bar.maximum} - bar.minimum;
  if (range <= 0) return {0, length};
  const auto shown = static_cast<int>(bar.pageStep * qint64{length} / (range + bar.pageStep));
  const int thumb = std::min(length, std::max(shown, m.Px(kLeastThumb)));
  return {QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                          length - thumb, bar.upsideDown),
          thumb};
}

QRect Along(const QStyleOptionSlider& bar, int start, int length) {
  if (bar.orientation == Qt::Vertical)
    return {bar.rect.left(), bar.rect.top() + start, bar.rect.width(), length};
  return QStyle::visualRect(
      bar.direction, bar.rect,
      QRect(bar.rect.left() + start, bar.rect.top(), length, bar.rect.height()));
}

}  // namespace

bool DrawScrollBar(const QStyleOptionComplex& option, StyleBrush& brush) {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(&option);
  if (!bar) return false;
  brush.painter.fillRect(bar->rect, brush.t.window);
  if (bar->maximum <= bar->minimum) return true;
  const bool on_thumb = bar->activeSubControls & QStyle::SC_ScrollBarSlider;
  const bool held = on_thumb && brush.pressed;
  const bool pointed = (on_thumb && brush.hover) || held;
  const auto [start, length] = ThumbOf(*bar, brush.m);
  const double thick = brush.m.Px(pointed ? kThumbUnderPointer : kThumb);
  QRectF thumb(Along(*bar, start, length));
  if (bar->orientation == Qt::Vertical)
    thumb = QRectF(thumb.center().x() - thick / 2, thumb.top() + 2, thick, thumb.height() - 4);
  else
    thumb = QRectF(thumb.left() + 2, thumb.center().y() - thick / 2, thumb.width() - 4, thick);
  const QColor color = held      ? brush.t.muted
                       : pointed ? Mix(brush.t.border, brush.t.text, 0.25)
                                 : brush.t.border;
  DrawBox(brush.painter, thumb, thick / 2, color);
  return true;
}

std::optional<QRect> ScrollBarPart(const QStyleOptionComplex& option, QStyle::SubControl part,
                                   const Measures& m) {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(&option);
  if (!bar) return std::nullopt;
  const auto [start, length] = ThumbOf(*bar, m);
  const int whole = bar->orientation == Qt::Horizontal ? bar->rect.width() : bar->rect.height();
  switch (part) {
    case QStyle::SC_ScrollBarGroove:
      return bar->rect;
    case QStyle::SC_ScrollBarSlider:
      return Along(*bar, start, length);
    case QStyle::SC_ScrollBarSubPage:
      return Along(*bar, 0, start);
    case QStyle::SC_ScrollBarAddPage:
      return Along(*bar, start + length, whole - start - length);
    default:
      return QRect();
  }
}

bool DrawProgress(QStyle::ControlElement element, const QStyleOption& option, StyleBrush& brush) {
  const auto* progress = qstyleoption_cast<const QStyleOptionProgressBar*>(&option);
  if (!progress) return false;
  if (element == QStyle::CE_ProgressBarLabel) return true;
  QRectF groove(progress->rect);
  const double thick = brush.m.Px(kProgress);
  groove = QRectF(groove.left(), groove.center().y() - thick / 2, groove.width(), thick);
  if (element == QStyle::CE_ProgressBarGroove) {
    DrawBox(brush.painter, groove, thick / 2, brush.t.pressed);
    return true;
  }
  const int range = progress->maximum - progress->minimum;
  if (range <= 0) return true;
  const double share = double(progress->progress - progress->minimum) / range;
  groove.setWidth(groove.width() * std::clamp(share, 0.0, 1.0));
  if (groove.width() >= 1) DrawBox(brush.painter, groove, thick / 2, brush.t.accent);
  return true;
}

}  // namespace tallyroll
