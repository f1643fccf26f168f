// SPDX-License-Identifier: GPL-3.0-or-later
// A class window on the screen: toolbar, grid and status bar of one Form1.
#pragma once

#include <QMdiSubWindow>

#include "desktop/basics/typed_ahead.h"
#include "desktop/window/spoken_status.h"
#include "shell/form1.h"

namespace tallyroll {

class GridWidget;
class MenuView;
class MessageMoment;
class PanelFollower;
class SidePanel;
class StatusLine;
class ToolbarView;

class ClassWindowView : public QMdiSubWindow {
  Q_OBJECT

 public:
  explicit ClassWindowView(Form1& form);

  // Null once the class has been let go.
  Form1* form() const { return form_; }
  MenuView& menu() const { return *menu_; }

  // Shows what the class window says now; writes differences only.
  void Sync();
  // What the highlighted menu entry does; empty shows the window's own status again.
  void ShowHint(const QString& hint);
  // Drops down a menu below its toolbar button.
  void PopUpMenu(const QString& menu);
  // Shows or hides the side panel, whatever room there is; the wish is kept.
  void TogglePanel();
  // The class is about to go, and this window after it.
  void LetGo();

 Q_SIGNALS:
  void MenuPressed(const QString& entry);
  void ToolPressed(const QString& key);
  void CellChosen(int row, int col);  // by a double click or by Enter
  void CloseAsked();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString Title() const;
  QString Notice() const;
  void EndStatus();
  void PointAt();
  QWidget* MakePage();
  void ConnectPanel();
  bool HasRoomForPanel() const;
  void FitPanel();
  void GoToGrade(int grade);
  void GoToTyped();
  void SwitchFocus();

  Form1* form_;
  Grid no_grid_;  // shown between LetGo and the end
  MenuView* menu_;
  ToolbarView* toolbar_;
  GridWidget* grid_;
  SidePanel* panel_;
  StatusLine* status_;
  PanelFollower* follower_;
  TypedAhead typed_;  // the beginning of a student's name
  bool wants_panel_;
  bool insists_on_panel_ = false;  // in a window without room for it
  MessageMoment* moment_;
  SpokenStatus spoken_;
  QString hint_;
};

}  // namespace tallyroll
