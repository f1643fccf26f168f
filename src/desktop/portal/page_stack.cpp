// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/page_stack.h"

namespace tallyroll {

PageStack::PageStack(QWidget* parent) : QStackedWidget(parent) {
  connect(this, &QStackedWidget::currentChanged, this, [this] { updateGeometry(); });
}

QSize PageStack::sizeHint() const {
  return currentWidget() ? currentWidget()->sizeHint() : QStackedWidget::sizeHint();
}

QSize PageStack::minimumSizeHint() const {
  return currentWidget() ? currentWidget()->minimumSizeHint() : QStackedWidget::minimumSizeHint();
}

bool PageStack::hasHeightForWidth() const {
  return currentWidget() && currentWidget()->hasHeightForWidth();
}

int PageStack::heightForWidth(int width) const {
  return currentWidget() ? currentWidget()->heightForWidth(width) : -1;
}

}  // namespace tallyroll
