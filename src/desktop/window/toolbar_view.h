// SPDX-License-Identifier: GPL-3.0-or-later
// The toolbar of a class window.
#pragma once

#include <QString>
#include <QToolBar>
#include <vector>

#include "shell/form1.h"

namespace tallyroll {

class ToolbarView : public QToolBar {
  Q_OBJECT

 public:
  // The data must live until LetGo.
  ToolbarView(const std::vector<ToolButton>& buttons, QWidget* parent);

  // Shows what the data says now; writes differences only.
  void Sync();
  void LetGo() { buttons_ = nullptr; }
  // Gives the focus to the first button that can be pressed.
  void FocusFirst();

 Q_SIGNALS:
  // Comes after the press has answered, as a menu's does.
  void Pressed(const QString& key);

 protected:
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddButton(const ToolButton& button);
  void AddRoom();
  void ShowWords();
  void DrawIcons();

  const std::vector<ToolButton>* buttons_;
  std::vector<QAction*> actions_;  // as the buttons stand
};

}  // namespace tallyroll
