// SPDX-License-Identifier: GPL-3.0-or-later
// The toolbar of a class window.
#include "desktop/window/toolbar_view.h"

#include <QAction>
#include <QEvent>

#include "desktop/basics/palette_icon.h"
#include "desktop/basics/text_conversion.h"

namespace tallyroll {

namespace {

// Buttons that begin a group, beside the gap that the data has after the file's: grades,
// attendance, what is made of them, and the program's.
bool BeginsGroup(std::string_view key) {
  return key == "Grades" || key == "Attendance" || key == "View" || key == "Exit";
}

}  // namespace

ToolbarView::ToolbarView(const std::vector<ToolButton>& buttons, QWidget* parent)
    : QToolBar(parent), buttons_(&buttons) {
  setObjectName(QStringLiteral("Toolbar2"));
  setAccessibleName(tr("Toolbar"));
  setIconSize(QSize(24, 24));
  for (const ToolButton& button : buttons) AddButton(button);
  DrawIcons();
  Sync();
}

void ToolbarView::AddButton(const ToolButton& button) {
  if (button.key.empty()) {
    actions_.push_back(addSeparator());
    return;
  }
  if (BeginsGroup(button.key)) addSeparator();
  const QString key = FromText(button.key);
  QAction* action = addAction(FromText(button.tip));
  action->setObjectName(key);
  action->setStatusTip(FromText(button.tip));
  connect(
      action, &QAction::triggered, this, [this, key] { Q_EMIT Pressed(key); },
      Qt::QueuedConnection);
  QWidget* widget = widgetForAction(action);
  widget->setAccessibleName(FromText(button.tip));
  widget->setFocusPolicy(Qt::TabFocus);
  actions_.push_back(action);
}

void ToolbarView::Sync() {
  if (buttons_ == nullptr) return;
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    if (!actions_[i]->isSeparator()) actions_[i]->setEnabled((*buttons_)[i].enabled);
  }
}

void ToolbarView::FocusFirst() {
  for (QAction* action : actions_) {
    if (action->isSeparator() || !action->isEnabled() || !widgetForAction(action)->isVisible())
      continue;
    widgetForAction(action)->setFocus(Qt::TabFocusReason);
    return;
  }
}

void ToolbarView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) DrawIcons();
  QToolBar::changeEvent(event);
}

void ToolbarView::DrawIcons() {
  for (QAction* action : actions_) {
    if (!action->isSeparator()) action->setIcon(PaletteIcon(action->objectName(), palette()));
  }
}

}  // namespace tallyroll
