// SPDX-License-Identifier: GPL-3.0-or-later
// Tabs, groups, and the lines of lists.
#include <QAbstractItemView>
#include <QGroupBox>
#include <QPainter>

#include "desktop/style/controls.h"
#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

constexpr double kTabUnderline = 3, kTabRadius = 4, kLineRadius = 4;
constexpr double kBelowHeading = 6;

void DrawTabShape(const QStyleOptionTab& tab, StyleBrush& b) {
  const bool front = tab.state & QStyle::State_Selected;
  const QRectF rect(tab.rect);
  if (b.hover && !front)
    DrawBox(b.painter, rect.adjusted(2, 4, -2, -4), b.m.Px(kTabRadius), b.t.hover);
  DrawRule(b.painter, QRect(tab.rect.left(), tab.rect.bottom(), tab.rect.width(), 1), b.t.line);
  if (!front) return;
  const int line = b.m.Px(kTabUnderline);
  DrawRule(b.painter,
           QRect(tab.rect.left() + b.m.Px(4), tab.rect.bottom() + 1 - line,
                 tab.rect.width() - 2 * b.m.Px(4), line),
           b.enabled ? b.t.focus : b.t.off);
}

void DrawTabWord(const QStyleOptionTab& tab, StyleBrush& b) {
  const bool front = tab.state & QStyle::State_Selected;
  b.painter.save();
  if (front) b.painter.setFont(FontFor(b.painter.font(), TextUse::kHeading));
  b.painter.setPen(!b.enabled ? b.t.off : front ? b.t.text : b.t.muted);
  b.painter.drawText(tab.rect, Qt::AlignCenter | Qt::TextSingleLine | b.Mnemonic(tab), tab.text);
  b.painter.restore();
  if (b.focus)
    DrawBox(b.painter, QRectF(tab.rect).adjusted(2, 4, -2, -5), b.m.Px(kTabRadius), QColor(),
            b.t.focus, 2);
}

QFont HeadingFont(const QWidget* widget) {
  return FontFor(widget ? widget->font() : QFont(), TextUse::kHeading);
}

}  // namespace

bool DrawTab(QStyle::ControlElement element, const QStyleOption& option, StyleBrush& brush) {
  const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(&option);
  if (!tab) return false;
  if (element == QStyle::CE_TabBarTabShape)
    DrawTabShape(*tab, brush);
  else
    DrawTabWord(*tab, brush);
  return true;
}

bool DrawGroup(const QStyleOptionComplex& option, StyleBrush& brush) {
  const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(&option);
  if (!group || (group->subControls & QStyle::SC_GroupBoxCheckBox)) return false;
  if (group->text.isEmpty()) return true;
  const QRect place = brush.style.subControlRect(QStyle::CC_GroupBox, group,
                                                 QStyle::SC_GroupBoxLabel, brush.widget);
  brush.painter.save();
  brush.painter.setFont(HeadingFont(brush.widget));
  brush.painter.setPen(brush.Text());
  brush.painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | brush.Mnemonic(*group),
                         group->text);
  brush.painter.restore();
  return true;
}

std::optional<QRect> GroupPart(const QStyleOptionComplex& option, QStyle::SubControl part,
                               const Measures& m, const QWidget* widget) {
  const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(&option);
  if (!group || (group->subControls & QStyle::SC_GroupBoxCheckBox)) return std::nullopt;
  const QFontMetrics metrics(HeadingFont(widget));
  const int heading = group->text.isEmpty() ? 0 : metrics.height();
  switch (part) {
    case QStyle::SC_GroupBoxFrame:
      return group->rect;
    case QStyle::SC_GroupBoxLabel:
      return QRect(group->rect.left(), group->rect.top(), group->rect.width(), heading);
    case QStyle::SC_GroupBoxContents:
      return group->rect.adjusted(0, heading > 0 ? heading + m.Px(kBelowHeading) : 0, 0, 0);
    default:
      return QRect();
  }
}

bool DrawLine(const QStyleOption& option, StyleBrush& brush) {
  const bool chosen = option.state & QStyle::State_Selected;
  // Clear of the ring of the list on all sides: at the list's edge the two would run into one.
  const QRectF rect = QRectF(option.rect).adjusted(1, 1, -1, -1);
  const double radius = brush.m.Px(kLineRadius);
  if (chosen)
    DrawBox(brush.painter, rect, radius, brush.enabled ? brush.t.selection : brush.t.hover);
  else if (brush.hover)
    DrawBox(brush.painter, rect, radius, brush.t.hover);
  if (brush.focus) DrawBox(brush.painter, rect, radius, QColor(), brush.t.focus, 1.5);
  return true;
}

}  // namespace tallyroll
