// SPDX-License-Identifier: GPL-3.0-or-later
// What the frame shows while no class is open: how to begin, and the recent files.
#pragma once

#include <QWidget>
#include <vector>

#include "shell/menu.h"

class QLabel;
class QVBoxLayout;

namespace tallyroll {

class PageButton;

// The one way to begin that no menu has.
inline constexpr char kSampleEntry[] = "sample";

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
  void showEvent(QShowEvent* event) override;

 private:
  QVBoxLayout* MakeBeginnings();
  QVBoxLayout* MakeRecent();
  void AddButton(PageButton* button, const QString& entry, QVBoxLayout* column);
  PageButton* AddBeginning(const QString& entry, const QString& icon, const QString& title,
                           const QString& description, QVBoxLayout* column);
  void TellFacts();

  const Menu& menu_;
  QLabel* no_recent_ = nullptr;
  PageButton* beginnings_ = nullptr;  // the first of them
  PageButton* sample_ = nullptr;
  std::vector<PageButton*> recent_;
};

}  // namespace tallyroll
