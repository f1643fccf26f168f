// SPDX-License-Identifier: GPL-3.0-or-later
// TotalFigure: a label for a sum that must be 100, large, with "of 100" beside it. It turns from
// red to green when it is reached, and tells what is missing.
#pragma once

#include <QLabel>

namespace tallyroll {

class TotalFigure : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  // What is missing is told beside it, to the eye as to a screen reader.
  void Show(const QString& figure);
  bool IsReached() const;
  // "15 missing", "5 too much"; empty when it is reached or no number.
  QString Remainder() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tallyroll
