// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/cell_list.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "desktop/basics/key_mapping.h"
#include "desktop/grid/grid_colors.h"
#include "desktop/grid/grid_widget.h"

namespace tallyroll {
namespace {

constexpr int kArrowWidth = 6, kArrowHeight = 3;
constexpr int kRing = 2;
constexpr int kIntoArrow = 10;  // from the right, where the style has its arrow

}  // namespace

void CellList::StandIn(GridWidget& grid) {
  if (grid_ == &grid) return;
  grid_ = &grid;
  for (QScrollBar* bar : {grid.horizontalScrollBar(), grid.verticalScrollBar()}) {
    connect(bar, &QScrollBar::valueChanged, this, &CellList::Place);
    connect(bar, &QScrollBar::rangeChanged, this, &CellList::Place);
  }
  connect(&grid, &GridWidget::listAsked, this, [this] {
    if (isVisible()) showPopup();
  });
  QAbstractItemView& lines = *view();
  lines.setMinimumWidth(lines.sizeHintForColumn(0) + 2 * lines.frameWidth());
  lines.installEventFilter(this);
}

// A cell out of sight takes the list along, a cell cut at the edge cuts it too.
void CellList::Place() {
  const Grid* cells = grid_ ? grid_->grid() : nullptr;
  if (!cells) return;
  const QWidget& seen = *grid_->viewport();
  QRect place = grid_->CellRect(cells->Row, cells->Col) & seen.rect();
  if (place.isEmpty()) return move(-width(), 0);
  place.moveTopLeft(seen.mapTo(parentWidget(), place.topLeft()));
  setGeometry(place);
  raise();
}

// The toolkit would look for a line that begins with the letter.
bool CellList::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view() && event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (CharacterOf(key)) {
      hidePopup();
      QKeyEvent to_cell(key.type(), key.key(), key.modifiers(), key.text());
      QCoreApplication::sendEvent(this, &to_cell);
      return true;
    }
  }
  return QComboBox::eventFilter(watched, event);
}

// A key moves through the list only while it is dropped: the toolkit would choose the next line.
void CellList::keyPressEvent(QKeyEvent* event) {
  if (KeyOf(*event) == Key::kF4) return showPopup();
  event->ignore();
}

// The whole cell is the arrow: there is no room for a field beside it.
void CellList::mousePressEvent(QMouseEvent* event) {
  QMouseEvent on_arrow(event->type(), QPointF(width() - kIntoArrow, height() / 2.0),
                       event->globalPosition(), event->button(), event->buttons(),
                       event->modifiers());
  QComboBox::mousePressEvent(&on_arrow);
}

void CellList::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const CellLook look = GridColors(palette()).Look(CellStyle::kInWork);
  painter.fillRect(rect(), look.background);
  painter.setPen(QPen(look.text, kRing, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
  painter.setPen(look.text);
  painter.drawText(rect(), Qt::AlignCenter, currentText());
  const QPointF tip(width() - kArrowWidth / 2.0 - 1, height() - 2);
  const QPointF arrow[] = {tip, tip + QPointF(-kArrowWidth / 2.0, -kArrowHeight),
                           tip + QPointF(kArrowWidth / 2.0, -kArrowHeight)};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.text);
  painter.drawPolygon(arrow, 3);
}

// The text is painted; a field would cut it in so narrow a place.
void CellList::resizeEvent(QResizeEvent* event) {
  QComboBox::resizeEvent(event);
  if (lineEdit()) lineEdit()->hide();
}

// The wheel is the grid's, which scrolls below.
void CellList::wheelEvent(QWheelEvent* event) {
  if (grid_) QCoreApplication::sendEvent(grid_->viewport(), event);
}

}  // namespace tallyroll
