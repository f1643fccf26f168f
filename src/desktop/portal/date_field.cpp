// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/date_field.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <algorithm>

#include "desktop/basics/key_mapping.h"

namespace tallyroll {
namespace {

constexpr int kLeastWidth = 24;
constexpr int kIntoArrow = 10;  // from the right, where the style has its arrow

}  // namespace

DateArrow::DateArrow(QWidget* parent) : DateField(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize DateArrow::sizeHint() const {
  const int height = DateField::sizeHint().height();
  return {std::max(kLeastWidth, height * 4 / 5), height};
}

// The day that it would show is nobody's choice.
void DateArrow::resizeEvent(QResizeEvent* event) {
  DateField::resizeEvent(event);
  lineEdit()->hide();
}

void DateArrow::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space && KeyOf(*event) != Key::kF4) return event->ignore();
  const QPointF middle = rect().center();
  PressArrow(QMouseEvent(QEvent::MouseButtonPress, middle, mapToGlobal(middle), Qt::LeftButton,
                         Qt::LeftButton, Qt::NoModifier));
}

void DateArrow::mousePressEvent(QMouseEvent* event) {
  PressArrow(*event);
}

void DateArrow::PressArrow(const QMouseEvent& press) {
  QMouseEvent on_arrow(press.type(), QPointF(width() - kIntoArrow, height() / 2.0),
                       press.globalPosition(), press.button(), press.buttons(), press.modifiers());
  DateField::mousePressEvent(&on_arrow);
}

}  // namespace tallyroll
