// SPDX-License-Identifier: GPL-3.0-or-later
// A menu bar's data drawn as Qt menus.
#include "desktop/window/menu_view.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include "desktop/basics/text_conversion.h"
#include "shell/disabled_reason.h"

namespace tallyroll {

MenuView::MenuView(const Menu& menu, QWidget* parent)
    : QObject(parent), menu_(&menu), parent_(parent) {
  const std::vector<MenuEntry>& entries = menu.entries();
  std::vector<QMenu*> open;  // the menu that entries of each level go into
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const auto level = static_cast<std::size_t>(entries[i].level);
    const bool has_menu = i + 1 < entries.size() && entries[i + 1].level > entries[i].level;
    open.resize(level);
    QAction* action = AddEntry(entries[i], has_menu, open.empty() ? nullptr : open.back());
    actions_.push_back(action);
    if (has_menu) open.push_back(action->menu());
  }
  Sync();
}

QAction* MenuView::AddEntry(const MenuEntry& entry, bool has_menu, QMenu* in) {
  if (entry.name.empty() && !has_menu) return in->addSeparator();
  QAction* action = nullptr;
  if (has_menu) {
    auto* drops = new QMenu(in != nullptr ? static_cast<QWidget*>(in) : parent_);
    drops->setToolTipsVisible(true);  // why an entry is off
    action = drops->menuAction();
  } else {
    action = new QAction(this);
    const QString name = FromText(entry.name);
    connect(
        action, &QAction::triggered, this, [this, name] { Q_EMIT Pressed(name); },
        Qt::QueuedConnection);
  }
  action->setObjectName(FromText(entry.name));
  action->setShortcut(QKeySequence(FromText(entry.shortcut)));
  action->setMenuRole(QAction::NoRole);
  if (in != nullptr) in->addAction(action);
  return action;
}

void MenuView::ShowIn(QMenuBar* bar) const {
  bar->clear();
  if (menu_ == nullptr) return;
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    if (menu_->entries()[i].level == 0) bar->addAction(actions_[i]);
  }
}

void MenuView::Sync() {
  if (menu_ == nullptr) return;
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    const MenuEntry& entry = menu_->entries()[i];
    QAction* action = actions_[i];
    action->setVisible(entry.visible);
    if (action->isSeparator()) continue;
    if (const QString text = FromText(entry.caption); text != action->text()) action->setText(text);
    action->setStatusTip(FromText(entry.status));
    action->setEnabled(entry.enabled);
    action->setToolTip(entry.enabled ? QString() : FromText(DisabledReason(*menu_, entry.name)));
    if (entry.checked) action->setCheckable(true);
    action->setChecked(entry.checked);
  }
}

QAction* MenuView::Action(const QString& name) const {
  for (QAction* action : actions_) {
    if (action->objectName() == name) return action;
  }
  return nullptr;
}

void MenuView::PopUp(const QString& name, const QPoint& place) const {
  const QAction* heading = Action(name);
  if (heading != nullptr && heading->menu() != nullptr) heading->menu()->popup(place);
}

}  // namespace tallyroll
