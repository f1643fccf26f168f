// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/card_drag.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimerEvent>
#include <utility>

namespace tallyroll {
namespace {

constexpr int kEdge = 24;          // pixels in which a card makes the area scroll
constexpr int kScrollEvery = 120;  // ms
constexpr int kMargin = 8;

QString CardFormat() {
  return QStringLiteral("application/x-tallyroll-card");
}

int StepAt(int place, int extent) {
  return place < kEdge ? -1 : place >= extent - kEdge ? 1 : 0;
}

}  // namespace

QPixmap CardPicture(const QWidget& widget, const QString& text) {
  const QSize size =
      widget.fontMetrics().size(Qt::TextSingleLine, text) + QSize(2 * kMargin, 2 * kMargin);
  QPixmap picture(size * widget.devicePixelRatioF());
  picture.setDevicePixelRatio(widget.devicePixelRatioF());
  picture.fill(widget.palette().color(QPalette::Base));
  QPainter painter(&picture);
  painter.setFont(widget.font());
  painter.setPen(widget.palette().color(QPalette::Text));
  const QRect card(QPoint(), size);
  painter.drawRect(card.adjusted(0, 0, -1, -1));
  painter.drawText(card, Qt::AlignCenter, text);
  return picture;
}

CardDrag::CardDrag(QAbstractScrollArea& area, const QString& name) : QObject(&area), area_(area) {
  setObjectName(name);
  area.viewport()->installEventFilter(this);
  area.viewport()->setAcceptDrops(true);
}

// Only a card of the same window can be put down here.
bool CardDrag::IsOurs(const QDropEvent& event) const {
  const auto* source = qobject_cast<const QWidget*>(event.source());
  return source && source->window() == area_.window() && event.mimeData()->hasFormat(CardFormat());
}

bool CardDrag::Moved(const QMouseEvent& event) {
  const QPoint place = event.position().toPoint();
  const bool far = (place - pressed_).manhattanLength() >= QApplication::startDragDistance();
  if (card_.isNull() || !(event.buttons() & Qt::LeftButton) || !far) return false;
  auto* drag = new QDrag(area_.viewport());
  auto* data = new QMimeData;
  data->setData(CardFormat(), objectName().toUtf8());
  drag->setMimeData(data);
  const QPixmap card = std::exchange(card_, {});
  drag->setPixmap(card);
  drag->setHotSpot(QRect(QPoint(), card.deviceIndependentSize().toSize()).center());
  drag->exec(Qt::MoveAction);
  return true;
}

void CardDrag::HangOver(const QPoint& place) {
  hanging_ = place;
  const QSize size = area_.viewport()->size();
  const bool at_edge =
      StepAt(place.x(), size.width()) != 0 || StepAt(place.y(), size.height()) != 0;
  if (!at_edge)
    scrolling_.stop();
  else if (!scrolling_.isActive())
    scrolling_.start(kScrollEvery, this);
}

void CardDrag::timerEvent(QTimerEvent* /*event*/) {
  const QSize size = area_.viewport()->size();
  QScrollBar& across = *area_.horizontalScrollBar();
  QScrollBar& down = *area_.verticalScrollBar();
  across.setValue(across.value() + StepAt(hanging_.x(), size.width()) * across.singleStep());
  down.setValue(down.value() + StepAt(hanging_.y(), size.height()) * down.singleStep());
}

bool CardDrag::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      const auto& press = static_cast<const QMouseEvent&>(*event);
      pressed_ = press.position().toPoint();
      card_ = press.button() == Qt::LeftButton ? picture(pressed_) : QPixmap();
      break;
    }
    case QEvent::MouseButtonRelease:
      card_ = {};
      break;
    case QEvent::MouseMove: {
      // Short of a drag the area must not choose the next line: that would be another card.
      const auto& move = static_cast<const QMouseEvent&>(*event);
      const bool held = !card_.isNull() && (move.buttons() & Qt::LeftButton);
      if (Moved(move) || held) return true;
      break;
    }
    case QEvent::DragEnter:
    case QEvent::DragMove: {
      auto& move = static_cast<QDropEvent&>(*event);
      if (!IsOurs(move)) return false;
      HangOver(move.position().toPoint());
      move.acceptProposedAction();
      return true;
    }
    case QEvent::DragLeave:
      scrolling_.stop();
      return true;
    case QEvent::Drop: {
      auto& drop = static_cast<QDropEvent&>(*event);
      scrolling_.stop();
      if (!IsOurs(drop)) return false;
      drop.acceptProposedAction();
      dropped(drop.mimeData()->data(CardFormat()).toStdString(), drop.position().toPoint());
      return true;
    }
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace tallyroll
