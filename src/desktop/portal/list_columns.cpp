// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/list_columns.h"

#include <QApplication>
#include <QListWidget>
#include <QPainter>
#include <algorithm>

#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr int kGap = 16;
constexpr int kMargin = 4;

// Where the text begins, from the left edge of the line: behind its box to tick, if it has one.
int TextLeft(const QStyleOptionViewItem& line, const QStyle& style) {
  if (!(line.features & QStyleOptionViewItem::HasCheckIndicator))
    return style.pixelMetric(QStyle::PM_FocusFrameHMargin, &line, line.widget) + 1;
  const QRect box = style.subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &line, line.widget);
  return box.right() - line.rect.left() + 2 * kMargin;
}

QFont CountFont() {
  return FontFor(QApplication::font(), TextUse::kChip);
}

// Of the number with its ground, 0 without one.
int CountWidth(int count) {
  if (count <= 0) return 0;
  return QFontMetrics(CountFont()).horizontalAdvance(QString::number(count)) + 3 * kMargin;
}

void PaintCount(QPainter& painter, const QStyleOptionViewItem& option, int count) {
  const Tokens t = TokensOf(option.palette);
  const int width = CountWidth(count), height = QFontMetrics(CountFont()).height() + 2;
  const QRect chip(option.rect.right() - width - kMargin, option.rect.center().y() - height / 2 + 1,
                   width, height);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(t.danger_soft);
  painter.drawRoundedRect(chip, kMargin, kMargin);
  painter.setFont(CountFont());
  painter.setPen(t.danger);
  painter.drawText(chip, Qt::AlignCenter, QString::number(count));
  painter.restore();
}

}  // namespace

void ListColumns::Measure(const QListWidget& list) {
  const QFontMetrics metrics(list.font());
  QList<int> widths;
  for (int row = 0; row < list.count(); ++row) {
    const QStringList parts = list.item(row)->text().split(QLatin1Char('\t'));
    widths.resize(std::max(widths.size(), parts.size()));
    for (qsizetype i = 0; i < parts.size(); ++i)
      widths[i] = std::max(widths[i], metrics.horizontalAdvance(parts[i]));
  }
  starts_ = {0};
  for (const int width : std::as_const(widths)) starts_ << starts_.last() + width + kGap;
}

void ListColumns::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  PaintWords(painter, option, index);
  if (const int count = index.data(kCountRole).toInt(); count > 0)
    PaintCount(*painter, option, count);
}

void ListColumns::PaintWords(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  QStyleOptionViewItem line = option;
  initStyleOption(&line, index);
  if (!line.text.contains(QLatin1Char('\t')))
    return QStyledItemDelegate::paint(painter, option, index);
  const QStringList parts = std::exchange(line.text, QString()).split(QLatin1Char('\t'));
  const QStyle& style = line.widget ? *line.widget->style() : *QApplication::style();
  style.drawControl(QStyle::CE_ItemViewItem, &line, painter, line.widget);
  const int left = TextLeft(line, style);
  const bool selected = line.state & QStyle::State_Selected;
  const auto role = selected ? QPalette::HighlightedText : QPalette::Text;
  painter->setPen(line.palette.color(role));
  painter->setFont(line.font);
  for (int i = 0; i < parts.size(); ++i) {
    const QRect place = line.rect.adjusted(left + Start(i), 0, 0, 0);
    painter->drawText(place, Qt::AlignVCenter | Qt::TextSingleLine, parts[i]);
  }
}

QSize ListColumns::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  const int count = CountWidth(index.data(kCountRole).toInt());
  const auto columns = index.data().toString().count(QLatin1Char('\t')) + 1;
  if (columns == 1) return size + QSize(count, 0);
  QStyleOptionViewItem line = option;
  initStyleOption(&line, index);
  const QStyle& style = line.widget ? *line.widget->style() : *QApplication::style();
  size.setWidth(TextLeft(line, style) + Start(static_cast<int>(columns)) + kMargin + count);
  return size;
}

}  // namespace tallyroll
