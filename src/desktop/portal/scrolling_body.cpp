// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/scrolling_body.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QEvent>
#include <QMenuBar>
#include <algorithm>

#include "desktop/basics/window_places.h"
#include "desktop/style/program_style.h"

namespace tallyroll {
namespace {

// What of the body is always seen.
constexpr QSize kLeast(320, 120);

bool IsFoot(const QLayoutItem& item) {
  const QLayout* row = const_cast<QLayoutItem&>(item).layout();
  const QWidget* pages = const_cast<QLayoutItem&>(item).widget();
  return (row && row->objectName() == QLatin1String("foot")) ||
         (pages && pages->objectName() == QLatin1String("actions"));
}

// A length that was chosen beside the usual font.
int Scaled(double length) {
  const auto* style = qobject_cast<const ProgramStyle*>(QApplication::style());
  return style ? style->measures().Px(length) : static_cast<int>(length);
}

void HangMenu(QLayout& layout, QMenuBar& menu) {
  constexpr double kBelowMenu = 8;
  layout.setMenuBar(&menu);
  QMargins margins = layout.contentsMargins();
  margins.setTop(Scaled(kBelowMenu));
  layout.setContentsMargins(margins);
}

void Append(QBoxLayout& layout, QLayoutItem& item) {
  if (QLayout* row = item.layout()) return layout.addLayout(row);
  layout.addItem(&item);
}

}  // namespace

ScrollingBody* ScrollingBody::Of(QDialog& dialog) {
  auto* whole = qobject_cast<QVBoxLayout*>(dialog.layout());
  if (!whole) return nullptr;
  auto* menu = dialog.findChild<QMenuBar*>();
  if (menu) whole->removeWidget(menu);
  const bool has_foot = whole->count() >= 2 && IsFoot(*whole->itemAt(whole->count() - 1));
  auto* body = has_foot ? new ScrollingBody(dialog) : nullptr;
  if (menu) HangMenu(*dialog.layout(), *menu);
  return body;
}

ScrollingBody::ScrollingBody(QDialog& dialog) : QScrollArea(&dialog) {
  auto* whole = static_cast<QVBoxLayout*>(dialog.layout());
  const QMargins margins = whole->contentsMargins();
  const int spacing = whole->spacing();
  QLayoutItem* foot = whole->takeAt(whole->count() - 1);

  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  // Within the dialog from the start, so that Tab goes on in its order.
  auto* body = new QWidget(viewport());
  setWidget(body);
  body->setLayout(whole);
  whole->setContentsMargins(0, 0, 0, 0);

  auto* rows = new QVBoxLayout(&dialog);
  rows->setContentsMargins(margins);
  rows->setSpacing(spacing);
  rows->addWidget(this, 1);
  Append(*rows, *foot);
}

QSize ScrollingBody::sizeHint() const {
  return widget()->sizeHint();
}

QSize ScrollingBody::minimumSizeHint() const {
  return widget()->minimumSizeHint().boundedTo(kLeast);
}

void ScrollingBody::BringIntoSight(QWidget* focused) {
  if (!focused || !widget()->isAncestorOf(focused)) return;
  if (QApplication::mouseButtons() == Qt::NoButton) ensureWidgetVisible(focused);
}

void SparePane::setVisible(bool wanted) {
  wanted_ = wanted;
  if (window_ != window()) {
    if (window_) window_->removeEventFilter(this);
    window_ = window();
    window_->installEventFilter(this);
  }
  QGroupBox::setVisible(wanted && HasRoom());
}

bool SparePane::HasRoom() const {
  constexpr double kLeastWindow = 860;
  return window()->width() >= Scaled(kLeastWindow);
}

bool SparePane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window_ && event->type() == QEvent::Resize && wanted_ && isHidden() == HasRoom())
    QGroupBox::setVisible(HasRoom());
  return QGroupBox::eventFilter(watched, event);
}

void TakeRoom(QDialog& dialog, const ScrollingBody* body) {
  if (!dialog.layout()) return;  // of a form that could not be read
  const QLayout& layout = *dialog.layout();
  QSize least = layout.totalMinimumSize();
  if (body) {
    const QSize whole = body->widget()->minimumSizeHint();
    const QMargins margins = layout.contentsMargins();
    least.setWidth(std::max(least.width(), whole.width() + margins.left() + margins.right()));
    least.rheight() += whole.height() - body->minimumSizeHint().height();
  }
  dialog.resize(least.expandedTo(dialog.size()));
  KeepOnScreen(dialog);
}

}  // namespace tallyroll
