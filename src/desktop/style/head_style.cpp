// SPDX-License-Identifier: GPL-3.0-or-later
// Heads of lists with columns.
#include <QPainter>

#include "desktop/style/controls.h"
#include "desktop/style/shapes.h"

namespace tallyroll {

bool DrawHead(QStyle::ControlElement element, const QStyleOption& option, StyleBrush& brush) {
  const QRect& r = option.rect;
  brush.painter.fillRect(r, brush.hover ? brush.t.hover : brush.t.header);
  DrawRule(brush.painter, QRect(r.left(), r.bottom(), r.width(), 1), brush.t.strong_line);
  const auto* head = qstyleoption_cast<const QStyleOptionHeader*>(&option);
  const bool last = !head || head->position == QStyleOptionHeader::End ||
                    head->position == QStyleOptionHeader::OnlyOneSection;
  if (element == QStyle::CE_HeaderSection && !last) {
    const int side = option.direction == Qt::RightToLeft ? r.left() : r.right();
    const int inset = r.height() / 5;
    DrawRule(brush.painter, QRect(side, r.top() + inset, 1, r.height() - 2 * inset),
             brush.t.strong_line);
  }
  return true;
}

Qt::ArrowType SortArrow(const QStyleOption& option) {
  const auto* head = qstyleoption_cast<const QStyleOptionHeader*>(&option);
  return head && head->sortIndicator == QStyleOptionHeader::SortUp ? Qt::UpArrow : Qt::DownArrow;
}

}  // namespace tallyroll
