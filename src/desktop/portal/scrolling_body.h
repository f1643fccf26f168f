// SPDX-License-Identifier: GPL-3.0-or-later
// ScrollingBody: what stands between the menu and the buttons at the foot of a form. It is as large
// as it wants to be where there is room; on a small screen it scrolls, and the foot stays in sight.
#pragma once

#include <QScrollArea>

class QDialog;

namespace tallyroll {

class ScrollingBody : public QScrollArea {
  Q_OBJECT

 public:
  // Moves the body of a form into one; null when the form has no foot that must stay.
  static ScrollingBody* Of(QDialog& dialog);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  // What gets the focus otherwise than by a press is scrolled to.
  void BringIntoSight(QWidget* widget);

 private:
  explicit ScrollingBody(QDialog& dialog);
};

// How large the form must be that its body (null: it has none) need not scroll, nor a sheet in it
// that lacks but little.
QSize RoomWanted(const QDialog& dialog, ScrollingBody* body);

// Makes the form large enough that its body (null: it has none) need not scroll, where the screen
// has room for that. `taken` is what it wanted at most until now: only what shows anew makes it
// larger, so that a window which the user made small stays small.
void TakeRoom(QDialog& dialog, ScrollingBody* body, QSize& taken);

}  // namespace tallyroll
