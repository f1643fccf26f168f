// SPDX-License-Identifier: GPL-3.0-or-later
// A menu bar's data drawn as Qt menus.
#pragma once

#include <QAction>
#include <QObject>
#include <QPoint>
#include <QString>
#include <vector>

#include "shell/menu.h"

class QMenu;
class QMenuBar;
class QWidget;

namespace tallyroll {

class MenuView : public QObject {
  Q_OBJECT

 public:
  // The menus belong to `parent`; the data must live until LetGo.
  MenuView(const Menu& menu, QWidget* parent);

  // Puts the menus into the bar, in place of what stood there.
  void ShowIn(QMenuBar* bar) const;
  // Shows what the data says now; writes differences only.
  void Sync();
  // The data is about to go.
  void LetGo() { menu_ = nullptr; }

  // The action of that entry; null when there is none.
  QAction* Action(const QString& name) const;
  // Drops down the menu of that heading below `place`; without such a menu nothing happens.
  void PopUp(const QString& name, const QPoint& place) const;

 Q_SIGNALS:
  // An entry was pressed. Comes after the press has answered, so that whoever pressed it (a screen
  // reader, a script) does not wait until the Portal behind it is left.
  void Pressed(const QString& name);

 private:
  QAction* AddEntry(const MenuEntry& entry, bool has_menu, QMenu* in);

  const Menu* menu_;
  QWidget* parent_;
  std::vector<QAction*> actions_;  // as the entries stand; a menu's own action for its heading
};

}  // namespace tallyroll
