// SPDX-License-Identifier: GPL-3.0-or-later
// Menus, and the bar they hang from.
#include <QPainter>

#include "desktop/style/controls.h"
#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

constexpr double kMenuLeft = 32, kMenuRight = 28, kMenuEdge = 16, kMenuInset = 4, kMenuRadius = 4;
constexpr double kMenuRule = 9, kBarHeight = 32;

void DrawSign(const QStyleOptionMenuItem& item, StyleBrush& b) {
  if (item.checkType == QStyleOptionMenuItem::NotCheckable) {
    if (item.icon.isNull()) return;
    QRect place(0, 0, b.m.Px(16), b.m.Px(16));
    place.moveCenter({item.rect.left() + b.m.Px(18), item.rect.center().y()});
    item.icon.paint(&b.painter, place, Qt::AlignCenter,
                    b.enabled ? QIcon::Normal : QIcon::Disabled);
    return;
  }
  if (!item.checked) return;
  QRectF box(0, 0, b.m.Px(16), b.m.Px(16));
  box.moveCenter(QPointF(item.rect.left() + b.m.Px(18), item.rect.center().y() + 0.5));
  const QColor color = b.enabled ? b.t.focus : b.t.off;
  if (item.checkType == QStyleOptionMenuItem::Exclusive)
    DrawBox(b.painter, box.adjusted(5, 5, -5, -5), 3, color);
  else
    DrawTick(b.painter, box, color);
}

void DrawMenuWords(const QStyleOptionMenuItem& item, StyleBrush& b) {
  const QRect words = item.rect.adjusted(b.m.Px(kMenuLeft), 0, -b.m.Px(kMenuEdge), 0);
  const auto tab = item.text.indexOf(QLatin1Char('\t'));
  const QString caption = tab < 0 ? item.text : item.text.left(tab);
  b.painter.save();
  b.painter.setFont(item.font);
  b.painter.setPen(b.Text());
  b.painter.drawText(
      words, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine | Qt::TextShowMnemonic, caption);
  if (tab >= 0) {
    const bool chosen = item.state & QStyle::State_Selected;
    b.painter.setPen(!b.enabled ? b.t.off : chosen ? b.t.text : b.t.muted);
    b.painter.drawText(words, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine,
                       item.text.mid(tab + 1));
  }
  b.painter.restore();
}

// Its tip stands where the keys of other lines end.
void DrawSubmenuArrow(const QStyleOptionMenuItem& item, StyleBrush& b) {
  const double size = b.m.Px(16) / 4.0;  // in quarters, so that it grows with the words
  const QRectF arrow(item.rect.right() + 1 - b.m.Px(kMenuEdge) - size, item.rect.top(), size,
                     item.rect.height());
  DrawArrow(b.painter, arrow, Qt::RightArrow, b.enabled ? b.t.muted : b.t.off, size);
}

void DrawMenuLine(const QStyleOptionMenuItem& item, StyleBrush& b) {
  b.painter.fillRect(item.rect, b.t.raised);
  if (item.menuItemType == QStyleOptionMenuItem::Separator) {
    const QRect rule(item.rect.left() + b.m.Px(8), item.rect.center().y(),
                     item.rect.width() - 2 * b.m.Px(8), 1);
    return DrawRule(b.painter, rule, b.t.line);
  }
  if (item.state & QStyle::State_Selected) {
    const int inset = b.m.Px(kMenuInset);
    DrawBox(b.painter, QRectF(item.rect).adjusted(inset, 0, -inset, 0), b.m.Px(kMenuRadius),
            b.enabled ? b.t.selection : b.t.hover);
  }
  DrawSign(item, b);
  DrawMenuWords(item, b);
  if (item.menuItemType != QStyleOptionMenuItem::SubMenu) return;
  DrawSubmenuArrow(item, b);
}

void DrawBarItem(const QStyleOptionMenuItem& item, StyleBrush& b) {
  b.painter.fillRect(item.rect, b.t.window);
  const bool open = item.state & QStyle::State_Sunken;
  if (b.enabled && (item.state & (QStyle::State_Selected | QStyle::State_Sunken)))
    DrawBox(b.painter, QRectF(item.rect).adjusted(1, 2, -1, -2), b.m.Px(kMenuRadius),
            open ? b.t.selection : b.t.hover);
  b.painter.save();
  b.painter.setPen(b.Text());
  b.painter.drawText(item.rect, Qt::AlignCenter | Qt::TextSingleLine | b.Mnemonic(item), item.text);
  b.painter.restore();
}

}  // namespace

bool DrawMenu(QStyle::ControlElement element, const QStyleOption& option, StyleBrush& brush) {
  if (element == QStyle::CE_MenuBarEmptyArea || element == QStyle::CE_MenuEmptyArea) {
    brush.painter.fillRect(option.rect,
                           element == QStyle::CE_MenuEmptyArea ? brush.t.raised : brush.t.window);
    return true;
  }
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
  if (!item) return false;
  if (element == QStyle::CE_MenuItem)
    DrawMenuLine(*item, brush);
  else if (element == QStyle::CE_MenuBarItem)
    DrawBarItem(*item, brush);
  else
    return false;
  return true;
}

std::optional<QSize> MenuSize(QStyle::ContentsType type, const QStyleOption* option,
                              const QSize& contents, const Measures& m) {
  if (type == QStyle::CT_MenuBarItem)
    return QSize(contents.width() + 2 * m.Px(kBarItemSide),
                 std::max(m.Px(kBarHeight), contents.height() + 8));
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (type != QStyle::CT_MenuItem || !item) return std::nullopt;
  if (item->menuItemType == QStyleOptionMenuItem::Separator)
    return QSize(contents.width(), m.Px(kMenuRule));
  const int before_keys = item->text.contains(QLatin1Char('\t')) ? m.Px(16) : 0;
  return QSize(contents.width() + m.Px(kMenuLeft + kMenuRight) + before_keys,
               std::max(m.MenuLine(), contents.height() + 4));
}

}  // namespace tallyroll
