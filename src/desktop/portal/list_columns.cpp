// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/list_columns.h"

#include <QApplication>
#include <QListWidget>
#include <QPainter>
#include <algorithm>
#include <utility>

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

QFont ChipFont() {
  return FontFor(QApplication::font(), TextUse::kChip);
}

// With its ground.
int ChipWidth(const QString& text) {
  return QFontMetrics(ChipFont()).horizontalAdvance(text) + 3 * kMargin;
}

int CountWidth(int count) {
  return count > 0 ? ChipWidth(QString::number(count)) : 0;
}

// In the middle of a line's height.
void PaintChip(QPainter& painter, const QRect& line, int left, const QString& text,
               const QColor& ground, const QColor& color) {
  const int height = QFontMetrics(ChipFont()).height() + 2;
  const QRect chip(left, line.center().y() - height / 2 + 1, ChipWidth(text), height);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRoundedRect(chip, kMargin, kMargin);
  painter.setFont(ChipFont());
  painter.setPen(color);
  painter.drawText(chip, Qt::AlignCenter, text);
  painter.restore();
}

void PaintCount(QPainter& painter, const QStyleOptionViewItem& option, int count) {
  const Tokens t = TokensOf(QGuiApplication::palette());
  PaintChip(painter, option.rect, option.rect.right() - CountWidth(count) - kMargin,
            QString::number(count), t.danger_soft, t.danger);
}

// The word that a form wants as a chip where it ends a line of the list; empty on any other line.
QString ChipWord(const QStyleOptionViewItem& line) {
  const QString word = line.widget ? line.widget->property("chipWord").toString() : QString();
  return !word.isEmpty() && line.text.endsWith(QLatin1Char(' ') + word) ? word : QString();
}

QColor WordsColor(const QStyleOptionViewItem& line) {
  const bool selected = line.state & QStyle::State_Selected;
  return line.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
}

void PaintWithChip(QPainter& painter, QStyleOptionViewItem line, const QString& word) {
  const Tokens t = TokensOf(QGuiApplication::palette());
  const QStyle& style = *line.widget->style();
  const QString whole = std::exchange(line.text, QString());
  style.drawControl(QStyle::CE_ItemViewItem, &line, &painter, line.widget);
  const int left = line.rect.left() + TextLeft(line, style);
  const int room = line.rect.right() - left - ChipWidth(word) - 2 * kMargin;
  const QString words =
      line.fontMetrics.elidedText(whole.chopped(word.size() + 1), Qt::ElideRight, room);
  painter.setPen(WordsColor(line));
  painter.setFont(line.font);
  painter.drawText(line.rect.adjusted(left - line.rect.left(), 0, 0, 0),
                   Qt::AlignVCenter | Qt::TextSingleLine, words);
  const int behind = left + line.fontMetrics.horizontalAdvance(words) + 2 * kMargin;
  PaintChip(painter, line.rect, behind, word, t.header, t.muted);
}

// "HW" and "-  Homework"; nothing for a line that is no such pair. The blanks between them were
// counted for letters of one width.
QStringList CodeAndName(const QString& line) {
  constexpr qsizetype kLongestCode = 2;
  const qsizetype dash = line.indexOf(QLatin1String(" -"));
  const QString code = line.left(dash).trimmed(), name = line.mid(dash + 2).trimmed();
  if (dash < 1 || code.size() > kLongestCode || name.isEmpty()) return {};
  return {code, QLatin1String("-  ") + name};
}

bool AreCodes(const QListWidget& list) {
  for (int row = 0; row < list.count(); ++row)
    if (CodeAndName(list.item(row)->text()).isEmpty()) return false;
  return list.count() > 0;
}

}  // namespace

QStringList ListColumns::PartsOf(const QString& line) const {
  return codes_ ? CodeAndName(line) : line.split(QLatin1Char('\t'));
}

void ListColumns::Measure(const QListWidget& list) {
  codes_ = AreCodes(list);
  const QFontMetrics metrics(list.font());
  QList<int> widths;
  for (int row = 0; row < list.count(); ++row) {
    const QStringList parts = PartsOf(list.item(row)->text());
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
  if (const QString word = ChipWord(line); !word.isEmpty())
    return PaintWithChip(*painter, line, word);
  const QStringList parts = PartsOf(line.text);
  if (parts.size() < 2) return QStyledItemDelegate::paint(painter, option, index);
  line.text.clear();
  const QStyle& style = line.widget ? *line.widget->style() : *QApplication::style();
  style.drawControl(QStyle::CE_ItemViewItem, &line, painter, line.widget);
  const int left = TextLeft(line, style);
  painter->setPen(WordsColor(line));
  painter->setFont(line.font);
  for (int i = 0; i < parts.size(); ++i) {
    QRect place = line.rect.adjusted(left + Start(i), 0, 0, 0);
    const bool number = codes_ && i == 0 && !parts[i].isEmpty() && parts[i].front().isDigit();
    if (number) place.setWidth(Start(1) - kGap);
    const Qt::Alignment side = number ? Qt::AlignRight : Qt::AlignLeft;
    painter->drawText(place, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine,
                      parts[i]);
  }
}

QSize ListColumns::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  const int count = CountWidth(index.data(kCountRole).toInt());
  const auto columns = PartsOf(index.data().toString()).size();
  if (columns < 2) return size + QSize(count, 0);
  QStyleOptionViewItem line = option;
  initStyleOption(&line, index);
  const QStyle& style = line.widget ? *line.widget->style() : *QApplication::style();
  size.setWidth(TextLeft(line, style) + Start(static_cast<int>(columns)) + kMargin + count);
  return size;
}

}  // namespace tallyroll
