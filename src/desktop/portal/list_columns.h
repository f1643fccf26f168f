// SPDX-License-Identifier: GPL-3.0-or-later
// Paints the lines of a list whose columns are parted by tabs, or that are all codes with what they
// stand for ("HW  - Homework"), each column as wide as its longest, the number that a line may have
// at its end, and the word that its form wants as a chip.
#pragma once

#include <QList>
#include <QStyledItemDelegate>

class QListWidget;

namespace tallyroll {

class ListColumns : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // The number at the end of a line.
  static constexpr int kCountRole = Qt::UserRole;

  // After each fill.
  void Measure(const QListWidget& list);
  // Where a column begins.
  int Start(int column) const { return starts_.value(column); }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void PaintWords(QPainter* painter, const QStyleOptionViewItem& option,
                  const QModelIndex& index) const;

  QStringList PartsOf(const QString& line) const;

  QList<int> starts_{0};
  bool codes_ = false;
};

}  // namespace tallyroll
