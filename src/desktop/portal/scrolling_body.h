// SPDX-License-Identifier: GPL-3.0-or-later
// ScrollingBody: what stands between the menu and the buttons at the foot of a form. It is as large
// as it wants to be where there is room; on a small screen it scrolls, and the foot stays in sight.
#pragma once

#include <QGroupBox>
#include <QPointer>
#include <QScrollArea>

class QDialog;

namespace tallyroll {

class ScrollingBody : public QScrollArea {
  Q_OBJECT

 public:
  // Moves the body of a form into one; null when the form has no foot that must stay. A menu hangs
  // at the very top, over the whole width of the window.
  static ScrollingBody* Of(QDialog& dialog);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  // What gets the focus otherwise than by a press is scrolled to.
  void BringIntoSight(QWidget* widget);

 private:
  explicit ScrollingBody(QDialog& dialog);
};

// A group that a form can do without: it stands aside while the window is narrow.
class SparePane : public QGroupBox {
  Q_OBJECT

 public:
  using QGroupBox::QGroupBox;

  // Shows it as soon as there is room for it.
  void setVisible(bool wanted) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool HasRoom() const;

  QPointer<QWidget> window_;  // whose width it follows
  bool wanted_ = false;
};

// Makes the form large enough that its body (null: it has none) need not scroll, where the screen
// has room for that.
void TakeRoom(QDialog& dialog, const ScrollingBody* body);

}  // namespace tallyroll
