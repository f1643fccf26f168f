// SPDX-License-Identifier: GPL-3.0-or-later
// Windows within the frame.
#include <QPainter>

#include "desktop/style/controls.h"
#include "desktop/style/glyphs.h"
#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

constexpr double kTitleButton = 32;

struct TitleButton {
  QStyle::SubControl part;
  QStyle::StandardPixmap icon;
};

// From the right.
QList<TitleButton> ButtonsOf(const QStyleOptionTitleBar& bar) {
  QList<TitleButton> buttons;
  const bool minimised = bar.titleBarState & Qt::WindowMinimized;
  const bool maximised = bar.titleBarState & Qt::WindowMaximized;
  if (bar.titleBarFlags & Qt::WindowSystemMenuHint)
    buttons << TitleButton{QStyle::SC_TitleBarCloseButton, QStyle::SP_TitleBarCloseButton};
  if (!maximised && (bar.titleBarFlags & Qt::WindowMaximizeButtonHint))
    buttons << TitleButton{QStyle::SC_TitleBarMaxButton, QStyle::SP_TitleBarMaxButton};
  if ((maximised && (bar.titleBarFlags & Qt::WindowMaximizeButtonHint)) ||
      (minimised && (bar.titleBarFlags & Qt::WindowMinimizeButtonHint)))
    buttons << TitleButton{QStyle::SC_TitleBarNormalButton, QStyle::SP_TitleBarNormalButton};
  if (!minimised && (bar.titleBarFlags & Qt::WindowMinimizeButtonHint))
    buttons << TitleButton{QStyle::SC_TitleBarMinButton, QStyle::SP_TitleBarMinButton};
  return buttons;
}

void DrawWindowButton(StyleBrush& b, const QStyleOptionComplex& option, const QRect& place,
                      QStyle::SubControl part, QStyle::StandardPixmap icon, const QColor& color) {
  const bool active = option.activeSubControls & part;
  if (active && (b.hover || b.pressed))
    DrawBox(b.painter, QRectF(place).adjusted(2, 2, -2, -2), 4,
            b.pressed ? b.t.pressed : b.t.hover);
  QRectF glyph(0, 0, b.m.Px(16), b.m.Px(16));
  glyph.moveCenter(QRectF(place).center());
  DrawGlyph(b.painter, glyph, icon, color);
}

}  // namespace

bool DrawTitleBar(const QStyleOptionComplex& option, StyleBrush& brush) {
  const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(&option);
  if (!bar) return false;
  const bool front = bar->titleBarState & QStyle::State_Active;
  const QColor words = front ? brush.t.text : brush.t.muted;
  brush.painter.fillRect(bar->rect, front ? brush.t.raised : brush.t.header);
  DrawRule(brush.painter, QRect(bar->rect.left(), bar->rect.bottom(), bar->rect.width(), 1),
           brush.t.line);
  const auto part = [&](QStyle::SubControl which) {
    return brush.style.subControlRect(QStyle::CC_TitleBar, bar, which, brush.widget);
  };
  if ((bar->titleBarFlags & Qt::WindowSystemMenuHint) && !bar->icon.isNull()) {
    QRect icon(0, 0, brush.m.Px(16), brush.m.Px(16));
    icon.moveCenter(part(QStyle::SC_TitleBarSysMenu).center());
    bar->icon.paint(&brush.painter, icon);
  }
  brush.painter.save();
  brush.painter.setFont(FontFor(brush.painter.font(), TextUse::kHeading));
  brush.painter.setPen(words);
  const QRect label = part(QStyle::SC_TitleBarLabel);
  const QString title =
      brush.painter.fontMetrics().elidedText(bar->text, Qt::ElideRight, label.width());
  brush.painter.drawText(label, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, title);
  brush.painter.restore();
  for (const TitleButton& button : ButtonsOf(*bar))
    DrawWindowButton(brush, option, part(button.part), button.part, button.icon, words);
  return true;
}

std::optional<QRect> TitleBarPart(const QStyleOptionComplex& option, QStyle::SubControl part,
                                  const Measures& m) {
  const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(&option);
  if (!bar) return std::nullopt;
  const QList<TitleButton> buttons = ButtonsOf(*bar);
  const int width = m.Px(kTitleButton);
  const QRect& whole = bar->rect;
  if (part == QStyle::SC_TitleBarSysMenu)
    return QRect(whole.left(), whole.top(), width, whole.height());
  if (part == QStyle::SC_TitleBarLabel)
    return whole.adjusted(width, 0, -width * static_cast<int>(buttons.size()), 0);
  for (int i = 0; i < buttons.size(); ++i)
    if (buttons[i].part == part)
      return QRect(whole.right() + 1 - width * (i + 1), whole.top(), width, whole.height());
  return QRect();
}

bool DrawWindowButtons(const QStyleOptionComplex& option, StyleBrush& brush) {
  const std::pair<QStyle::SubControl, QStyle::StandardPixmap> buttons[] = {
      {QStyle::SC_MdiMinButton, QStyle::SP_TitleBarMinButton},
      {QStyle::SC_MdiNormalButton, QStyle::SP_TitleBarNormalButton},
      {QStyle::SC_MdiCloseButton, QStyle::SP_TitleBarCloseButton}};
  for (const auto& [part, icon] : buttons) {
    if (!(option.subControls & part)) continue;
    const QRect place =
        brush.style.subControlRect(QStyle::CC_MdiControls, &option, part, brush.widget);
    DrawWindowButton(brush, option, place, part, icon, brush.t.text);
  }
  return true;
}

}  // namespace tallyroll
