// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures that a form draws itself.
#pragma once

#include <QWidget>

namespace tallyroll {

// A small page and what its margins leave. It follows the fields "topmarg", "bottommarg",
// "leftmarg" and "rightmarg" of its window, which hold inches.
class MarginSheet : public QWidget {
  Q_OBJECT

 public:
  explicit MarginSheet(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  // What the margins leave of the page, within the widget.
  QRectF PrintedPart() const;

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  double Inches(const char* field) const;
};

// A coloured ground at the side of a window for the picture that stands on it.
class SideStrip : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tallyroll
