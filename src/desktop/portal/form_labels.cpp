// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/form_labels.h"

#include <QHelpEvent>
#include <QListWidget>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace tallyroll {
namespace {

constexpr int kLeastLettersShown = 12;

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  // It keeps the distances of a label.
  setSizePolicy({QSizePolicy::Ignored, QSizePolicy::Preferred, QSizePolicy::Label});
  setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeHint() const {
  return minimumSizeHint();
}

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * kLeastLettersShown, fontMetrics().height()};
}

QString ElidedLabel::Shown() const {
  return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  const auto& asked = static_cast<const QHelpEvent&>(*event);
  QToolTip::showText(asked.globalPos(), Shown() == text() ? QString() : text(), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                        isEnabled(), Shown(), foregroundRole());
}

// The list may come after it in the form.
void ListCount::showEvent(QShowEvent* event) {
  QLabel::showEvent(event);
  if (!words_.isEmpty()) return;
  words_ = text();
  const auto* list =
      window()->findChild<QListWidget*>(objectName().section(QLatin1Char('_'), 0, 0));
  if (!list) return;
  const auto count = [this, list] { setText(words_.arg(list->count())); };
  for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
    connect(list->model(), changed, this, count);
  connect(list->model(), &QAbstractItemModel::modelReset, this, count);
  count();
}

}  // namespace tallyroll
