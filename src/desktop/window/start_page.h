// SPDX-License-Identifier: GPL-3.0-or-later
// What the frame shows while no class is open: how to begin, and the recent files.
#pragma once

#include <QWidget>
#include <vector>

#include "shell/menu.h"

class QCommandLinkButton;
class QLabel;
class QVBoxLayout;

namespace tallyroll {

// Another picture of the frame's menu: each button presses the entry it stands for.
class StartPage : public QWidget {
  Q_OBJECT

 public:
  explicit StartPage(const Menu& menu, QWidget* parent = nullptr);

  // Shows what the menu says now; writes differences only.
  void Sync();

 Q_SIGNALS:
  // Comes after the press has answered, as a menu's does.
  void Pressed(const QString& entry);

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QCommandLinkButton* AddButton(const QString& entry, QVBoxLayout* column);
  void AddBeginning(const QString& entry, const QString& icon, const QString& title,
                    const QString& description, QVBoxLayout* column);
  void DrawIcons();

  const Menu& menu_;
  QLabel* recent_heading_;
  QLabel* no_recent_;
  std::vector<QCommandLinkButton*> beginnings_;
  std::vector<QCommandLinkButton*> recent_;
};

}  // namespace tallyroll
