// SPDX-License-Identifier: GPL-3.0-or-later
// ScrollingBody: what stands between the menu and the buttons at the foot of a form. It is as large
// as it wants to be where there is room; on a small screen it scrolls, and the foot stays in sight.
// In a form of two panes it is the upper part of the left one, above the rows that stay.
#pragma once

#include <QGroupBox>
#include <QPointer>
#include <QScrollArea>

class QDialog;
class QGridLayout;

namespace tallyroll {

class ScrollingBody : public QScrollArea {
  Q_OBJECT

 public:
  // Moves the body of a form into one; null when the form has no foot that must stay. A menu hangs
  // at the very top, over the whole width of the window.
  static ScrollingBody* Of(QDialog& dialog);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  // Whether it is one of two panes, and not the whole form above its foot.
  bool IsPane() const { return panes_ != nullptr; }
  // What the form's least width lacks so that a pane need not scroll sideways.
  int LacksBeside() const;
  // What gets the focus otherwise than by a press is scrolled to.
  void BringIntoSight(QWidget* widget);

 private:
  explicit ScrollingBody(QDialog& dialog);
  ScrollingBody(QDialog& dialog, QGridLayout& panes);

  QGridLayout* panes_ = nullptr;  // null where the whole form scrolls
  int bar_room_ = 0;              // kept free beside a pane, so that its bar covers nothing
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

// How large the form must be that its body (null: it has none) need not scroll, nor a sheet in it
// that lacks but little.
QSize RoomWanted(const QDialog& dialog, ScrollingBody* body);

// Makes the form large enough that its body (null: it has none) need not scroll, where the screen
// has room for that. `taken` is what it wanted at most until now: only what shows anew makes it
// larger, so that a window which the user made small stays small.
void TakeRoom(QDialog& dialog, ScrollingBody* body, QSize& taken);

}  // namespace tallyroll
