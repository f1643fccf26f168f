// SPDX-License-Identifier: GPL-3.0-or-later
// The words and figures of the side panel: labels, so that a reader finds each of them.
#pragma once

#include <QLabel>

#include "platform/grid_notes.h"

namespace tallyroll {

// Pixels for a length that was chosen beside a font of 13 pixels.
int PanelPx(const QWidget& widget, double length);

// A label of that "textUse", which is cut with an ellipsis where it is too long.
class PanelWords : public QLabel {
 public:
  explicit PanelWords(const char* use, QWidget* parent = nullptr);

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A small heading over a figure. A reader is told both as one.
class PanelFigure : public QWidget {
 public:
  // `name` is the object's, by which tests know the value.
  PanelFigure(const QString& name, const QString& heading, QLabel* value);

  void Show(const QString& value);

 private:
  QString heading_;
  QLabel* value_;
};

// A word on a coloured ground, as a cell of the class shows it.
class PanelChip : public QLabel {
 public:
  using QLabel::QLabel;

  // `large` is as tall as a figure.
  void Show(const QString& text, CellMark mark, bool large);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QFont ChipFont() const;

  CellMark mark_ = CellMark::kNone;
  bool large_ = false;
};

// The initials of a student on a disc.
class PanelDisc : public QLabel {
 public:
  using QLabel::QLabel;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tallyroll
