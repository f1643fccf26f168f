// SPDX-License-Identifier: GPL-3.0-or-later
// Tools: an icon with a word or without.
#include <QPaintDevice>
#include <QPainter>
#include <algorithm>

#include "desktop/style/controls.h"
#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

// What stands on a tool: a short word where the form has one. The whole stays its name.
QString WordOfTool(const QStyleOptionToolButton& tool, const QWidget* widget) {
  const QString word = widget ? widget->property("shortWord").toString() : QString();
  return word.isEmpty() ? tool.text : word;
}

bool IsMainTool(const QWidget* widget) {
  return widget && widget->property("mainTool").toBool();
}

// An icon in one colour, as it stands on the ground of the main action.
QPixmap InOneColor(const QIcon& icon, const QSize& size, const QColor& color, qreal ratio) {
  QPixmap picture = icon.pixmap(size, ratio);
  QPainter painter(&picture);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(QRect(QPoint(), size), color);
  return picture;
}

// Icon and word in the middle, as on a button.
void DrawMainTool(const QStyleOptionToolButton& tool, StyleBrush& b) {
  DrawMainGround(b, QRectF(tool.rect));
  const QFont font = FontFor(tool.font, TextUse::kHeading);
  const int gap = b.m.Px(6);
  const int word = QFontMetrics(font).size(Qt::TextShowMnemonic, tool.text).width();
  QRect icon(QPoint(), tool.iconSize);
  icon.moveCenter(tool.rect.center());
  icon.moveLeft(tool.rect.center().x() - (icon.width() + gap + word) / 2);
  b.painter.save();
  b.painter.drawPixmap(icon, InOneColor(tool.icon, tool.iconSize, b.t.on_accent,
                                        b.painter.device()->devicePixelRatioF()));
  b.painter.setFont(font);
  b.painter.setPen(b.t.on_accent);
  const QRect words(icon.right() + 1 + gap, tool.rect.top(), word + 2, tool.rect.height());
  b.painter.drawText(words, Qt::AlignVCenter | Qt::AlignLeft | b.Mnemonic(tool), tool.text);
  b.painter.restore();
}

}  // namespace

bool DrawTool(const QStyleOptionComplex& option, StyleBrush& brush) {
  const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(&option);
  if (!tool) return false;
  QStyleOptionToolButton label(*tool);
  label.text = WordOfTool(*tool, brush.widget);
  if (brush.enabled && IsMainTool(brush.widget)) {
    DrawMainTool(label, brush);
    return true;
  }
  DrawFlatGround(brush, QRectF(tool->rect).adjusted(1, 1, -1, -1));
  label.state &= ~QStyle::State_Sunken;  // its icon does not jump
  const bool has_menu = tool->features & QStyleOptionToolButton::HasMenu;
  if (has_menu) label.rect.setRight(label.rect.right() - brush.m.Px(12));
  brush.style.drawControl(QStyle::CE_ToolButtonLabel, &label, &brush.painter, brush.widget);
  if (!has_menu) return true;
  const QRectF arrow(tool->rect.right() - brush.m.Px(14), tool->rect.top(), brush.m.Px(12),
                     tool->rect.height());
  DrawArrow(brush.painter, arrow, Qt::DownArrow, brush.Text(), brush.m.Px(3.5));
  return true;
}

// The toolkit measured the whole text.
QSize ToolSize(const QStyleOption* option, const QSize& contents, const Measures& m,
               const QWidget* widget) {
  const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(option);
  const bool has_menu = tool && (tool->features & QStyleOptionToolButton::HasMenu);
  const QSize beside(m.Px(12) + (has_menu ? m.Px(12) : 0), m.Px(8));
  if (!tool || tool->toolButtonStyle == Qt::ToolButtonIconOnly) return contents + beside;
  const auto width = [](const QFontMetrics& metrics, const QString& text) {
    return metrics.size(Qt::TextShowMnemonic, text).width();
  };
  const QFontMetrics shown = IsMainTool(widget)
                                 ? QFontMetrics(FontFor(widget->font(), TextUse::kHeading))
                                 : tool->fontMetrics;
  const int word = contents.width() - width(tool->fontMetrics, tool->text) +
                   width(shown, WordOfTool(*tool, widget));
  const QSize whole = QSize(std::max(tool->iconSize.width(), word), contents.height()) + beside;
  // Drawn as a button it is as high as one, and as the choices in its row.
  return IsMainTool(widget) ? QSize(whole.width(), m.Control()) : whole;
}

}  // namespace tallyroll
