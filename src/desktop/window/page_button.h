// SPDX-License-Identifier: GPL-3.0-or-later
// A button of the start page: an icon, a title, and below it what the title leaves out.
#pragma once

#include <QCommandLinkButton>

namespace tallyroll {

class PageButton : public QCommandLinkButton {
  Q_OBJECT

 public:
  // A card stands by itself; a line stands in a card with others.
  enum class Kind { kCard, kLine };
  PageButton(Kind kind, const QString& icon, QWidget* parent = nullptr);

  // A third line, behind the description of a line.
  void SetFacts(const QString& facts);
  QString facts() const { return facts_; }

  // How far its corners are rounded.
  int Corner() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int Px(double of_plan) const;
  void PaintGround(QPainter& painter) const;
  void PaintIcon(QPainter& painter, const QRect& tile) const;

  Kind kind_;
  QString icon_;
  QString facts_;
};

// What lies between a card's edge and the lines in it.
inline constexpr int kPageCardMargin = 6;

// The ground that lines stand on.
class PageCard : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tallyroll
