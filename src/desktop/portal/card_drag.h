// SPDX-License-Identifier: GPL-3.0-or-later
// CardDrag: lets the user drag what stands in a list or grid into another one of the same window.
#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QObject>
#include <QPixmap>
#include <QPoint>
#include <functional>
#include <string>

class QDropEvent;
class QMouseEvent;

namespace tallyroll {

// The picture of a card that bears a text, as `widget` would write it.
QPixmap CardPicture(const QWidget& widget, const QString& text);

// Belongs to the area it works on. While a card hangs over the area's edge, the area scrolls.
class CardDrag : public QObject {
  Q_OBJECT

 public:
  CardDrag(QAbstractScrollArea& area, const QString& name);

  // The card at a place of the viewport; null where none can be taken up.
  std::function<QPixmap(const QPoint& place)> picture;
  // What was dragged from the area of that name fell on a place of this viewport.
  std::function<void(const std::string& source, const QPoint& place)> dropped;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  bool Moved(const QMouseEvent& event);
  bool IsOurs(const QDropEvent& event) const;
  void HangOver(const QPoint& place);

  QAbstractScrollArea& area_;
  QPixmap card_;  // of the press that may become a drag
  QPoint pressed_;
  QPoint hanging_;
  QBasicTimer scrolling_;
};

}  // namespace tallyroll
