// SPDX-License-Identifier: GPL-3.0-or-later
// The frame on the screen: one menu bar, the start page, and the class windows.
#pragma once

#include <QMainWindow>
#include <functional>

#include "shell/frame_screen.h"

class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QStackedWidget;
class QVBoxLayout;

namespace tallyroll {

class ClassWindowView;
class MenuView;
class MessageMoment;
class StartPage;

// Shows `Frame`, which must be there first and stay until this window is gone.
class FrameWindow : public QMainWindow, public FrameScreen {
  Q_OBJECT

 public:
  FrameWindow();
  ~FrameWindow() override;

  void ShowFrame() override;
  void CloseFrame() override;
  void ShowWindow(Form1& window) override;
  void DestroyWindow(Form1& window) override;
  void BringToFront(Form1& window) override;
  void PopUpMenu(Form1& window, std::string_view entry) override;
  void TogglePanel(Form1& window) override;
  void Arrange(Arrangement how) override;
  void ShowAbout() override;
  std::vector<HelpTopic> HelpTopics() override;

  // On a first start: the sample class, and steps that point at what is used every day.
  void OfferTour();
  // Shows what the logic says now, in all windows; writes differences only.
  void Sync();
  // The class window in front; null while no class is open.
  ClassWindowView* Current() const;
  // The menus that the bar shows.
  MenuView& CurrentMenu() const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void AddWindowKeys();
  ClassWindowView* ViewOf(const Form1& window) const;
  void Connect(ClassWindowView* view);
  // Runs what the user asked for, unless a Portal came up in between.
  void Run(const std::function<void()>& command);
  void RunInFront(ClassWindowView* view, const std::function<void(Form1&)>& command);
  void Press(const QString& entry);  // of the frame's own menu
  void SyncStartPage();
  void FollowFront();
  void ShowHint(const QString& hint);

  QStackedWidget* pages_;
  QVBoxLayout* start_rows_;
  StartPage* start_ = nullptr;  // made when it is first shown
  QMdiArea* area_;
  QLabel* status_;              // stands below the start page
  MessageMoment* moment_;       // of what it tells
  MenuView* menu_;              // the frame's own
  const MenuView* shown_menu_;  // what the bar shows
  ClassWindowView* front_ = nullptr;
  QString hint_;
  bool may_close_ = false;
};

}  // namespace tallyroll
