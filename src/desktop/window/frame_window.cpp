// SPDX-License-Identifier: GPL-3.0-or-later
// The frame on the screen: one menu bar, the start page, and the class windows.
#include "desktop/window/frame_window.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QStackedWidget>
#include <QStatusTipEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/basics/text_conversion.h"
#include "desktop/basics/window_places.h"
#include "desktop/window/about_box.h"
#include "desktop/window/appearance_menu.h"
#include "desktop/window/class_window_view.h"
#include "desktop/window/help_topics.h"
#include "desktop/window/menu_view.h"
#include "desktop/window/message_moment.h"
#include "desktop/window/start_page.h"
#include "desktop/window/tile_windows.h"
#include "desktop/window/tour.h"
#include "shell/current_window.h"
#include "shell/data_folder.h"
#include "shell/shell_state.h"
#include "store/safe_file.h"

namespace tallyroll {

namespace {

QString PlaceName() {
  return QStringLiteral("MDIForm1");
}

}  // namespace

FrameWindow::FrameWindow() {
  setObjectName(QStringLiteral("MDIForm1"));
  setWindowTitle(QStringLiteral("Tallyroll"));
  setContextMenuPolicy(Qt::NoContextMenu);

  auto* first = new QWidget;
  status_ = new QLabel;
  status_->setObjectName(QStringLiteral("FrameStatus"));
  status_->setMargin(3);
  start_rows_ = new QVBoxLayout(first);
  start_rows_->setContentsMargins(0, 0, 0, 0);
  start_rows_->addWidget(status_);

  moment_ = new MessageMoment([this] { return front_ == nullptr; },
                              [this] {
                                FrameForm->EndStatus();
                                Sync();
                              },
                              this);

  area_ = new QMdiArea;
  area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  pages_ = new QStackedWidget;
  pages_->addWidget(first);
  pages_->addWidget(area_);
  setCentralWidget(pages_);

  menu_ = new MenuView(FrameForm->menu, this);
  AddAppearanceMenu(*menu_->Action(QStringLiteral("mnuHelp"))->menu());
  menu_->ShowIn(menuBar());
  shown_menu_ = menu_;
  AddWindowKeys();

  connect(menu_, &MenuView::Pressed, this, &FrameWindow::Press);
  connect(area_, &QMdiArea::subWindowActivated, this, &FrameWindow::FollowFront);
  // What a Portal changes while it runs shows as soon as the program waits for the user.
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
          &FrameWindow::Sync);
  // Then it is kept as well, and each minute that a Portal takes.
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
          [] { FrameForm->KeepWork(false); });
  constexpr int kMinute = 60000;
  auto* minute = new QTimer(this);
  connect(minute, &QTimer::timeout, this, [] { FrameForm->KeepWork(true); });
  minute->start(kMinute);
  resize(1024, 700);
  RestorePlace(*this, PlaceName());
}

FrameWindow::~FrameWindow() {
  // The area tells of its windows while it goes; nobody is left to listen.
  area_->disconnect(this);
  for (QMdiSubWindow* window : area_->subWindowList()) window->disconnect(this);
}

// Beside Ctrl+W and Ctrl+Tab, which the menu and the area bring along.
void FrameWindow::AddWindowKeys() {
  const auto add = [this](const QKeySequence& key, const std::function<void()>& act) {
    auto* action = new QAction(this);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, act);
    addAction(action);
  };
  add(Qt::CTRL | Qt::Key_F4, [this] {
    if (front_ != nullptr) front_->close();
  });
  add(Qt::CTRL | Qt::Key_F6, [this] { area_->activateNextSubWindow(); });
  add(Qt::CTRL | Qt::SHIFT | Qt::Key_F6, [this] { area_->activatePreviousSubWindow(); });
}

void FrameWindow::Connect(ClassWindowView* view) {
  connect(view, &ClassWindowView::MenuPressed, this, [this, view](const QString& entry) {
    RunInFront(view, [&entry](Form1& form) { form.ClickMenu(entry.toStdString()); });
  });
  connect(view, &ClassWindowView::ToolPressed, this, [this, view](const QString& key) {
    RunInFront(view, [&key](Form1& form) { form.ClickTool(key.toStdString()); });
  });
  connect(view, &ClassWindowView::CellChosen, this, [this, view](int row, int col) {
    RunInFront(view, [row, col](Form1& form) {
      // The pointer has moved on since.
      form.Grid1.MouseRow = row;
      form.Grid1.MouseCol = col;
      form.Grid1_DblClick();
    });
  });
  // Queued: the window must not go while its own close event runs.
  connect(
      view, &ClassWindowView::CloseAsked, this,
      [this, view] { RunInFront(view, [](Form1& form) { FrameForm->CloseWindow(form); }); },
      Qt::QueuedConnection);
}

void FrameWindow::Press(const QString& entry) {
  if (entry == QLatin1String(kSampleEntry)) return Run([] { FrameForm->OpenRecent(SamplePath()); });
  Run([&entry] { FrameForm->ClickMenu(entry.toStdString()); });
}

void FrameWindow::Run(const std::function<void()>& command) {
  if (QApplication::activeModalWidget() != nullptr) return;
  command();
  Sync();
}

void FrameWindow::RunInFront(ClassWindowView* view, const std::function<void(Form1&)>& command) {
  if (view->form() == nullptr) return;
  Run([&] {
    // A press from outside (a script, a screen reader) may reach a window that lies behind.
    area_->setActiveSubWindow(view);
    command(*view->form());
  });
}

ClassWindowView* FrameWindow::Current() const {
  return front_;
}

MenuView& FrameWindow::CurrentMenu() const {
  return front_ != nullptr ? front_->menu() : *menu_;
}

ClassWindowView* FrameWindow::ViewOf(const Form1& window) const {
  for (QMdiSubWindow* sub_window : area_->subWindowList()) {
    auto* view = static_cast<ClassWindowView*>(sub_window);
    if (view->form() == &window) return view;
  }
  return nullptr;
}

void FrameWindow::FollowFront() {
  auto* view = static_cast<ClassWindowView*>(area_->currentSubWindow());
  if (view == nullptr || view->form() == nullptr || view == front_) return;
  front_ = view;
  front_->form()->Activate();
  Sync();
}

// A program that starts with a class spares the page until its windows are closed.
void FrameWindow::SyncStartPage() {
  if (start_ == nullptr) {
    start_ = new StartPage(FrameForm->menu);
    start_rows_->insertWidget(0, start_, 1);
    connect(start_, &StartPage::Pressed, this, &FrameWindow::Press);
  }
  start_->Sync();
}

void FrameWindow::Sync() {
  ListOpenWindows();
  menu_->Sync();
  if (front_ == nullptr && (start_ != nullptr || isVisible())) SyncStartPage();
  for (QMdiSubWindow* window : area_->subWindowList())
    static_cast<ClassWindowView*>(window)->Sync();
  pages_->setCurrentIndex(front_ != nullptr ? 1 : 0);
  moment_->Follow(FrameForm->MessagesTold);
  const QString status = hint_.isEmpty() ? FromText(FrameForm->StatusText) : hint_;
  if (status != status_->text()) status_->setText(status);
  if (shown_menu_ == &CurrentMenu()) return;
  shown_menu_ = &CurrentMenu();
  shown_menu_->ShowIn(menuBar());
}

void FrameWindow::ShowFrame() {
  // Where no class follows, the page is there from the first picture on.
  if (FrameForm->CommandFile.empty()) SyncStartPage();
  show();
  raise();
  QTimer::singleShot(0, this, &FrameWindow::Sync);
}

void FrameWindow::OfferTour() {
  if (front_ != nullptr || !isVisible() || !PathExists(SamplePath())) return;
  connect(new Tour(*this), &Tour::SampleWanted, this,
          [this] { Press(QString::fromLatin1(kSampleEntry)); });
}

void FrameWindow::CloseFrame() {
  may_close_ = true;
  close();
}

void FrameWindow::ShowWindow(Form1& window) {
  const bool alone = area_->subWindowList().isEmpty();
  auto* view = new ClassWindowView(window);
  Connect(view);
  area_->addSubWindow(view);
  pages_->setCurrentWidget(area_);
  view->resize(view->sizeHint().expandedTo(QSize(640, 420)));
  if (alone) {
    view->showMaximized();
  } else {
    view->show();
  }
  area_->setActiveSubWindow(view);
  view->widget()->setFocus();  // the grid, rather than the first button
  FollowFront();
}

void FrameWindow::DestroyWindow(Form1& window) {
  ClassWindowView* view = ViewOf(window);
  if (view == nullptr) return;
  const bool maximised = view->isMaximized();
  if (view == front_) front_ = nullptr;
  if (shown_menu_ == &view->menu()) {
    shown_menu_ = menu_;
    menu_->ShowIn(menuBar());
  }
  view->LetGo();
  area_->removeSubWindow(view);
  view->deleteLater();
  if (front_ == nullptr && !area_->subWindowList().isEmpty()) {
    area_->setActiveSubWindow(area_->subWindowList(QMdiArea::ActivationHistoryOrder).last());
    FollowFront();
  }
  if (front_ != nullptr && maximised) front_->showMaximized();
  Sync();
}

void FrameWindow::BringToFront(Form1& window) {
  if (ClassWindowView* view = ViewOf(window)) area_->setActiveSubWindow(view);
  FollowFront();
}

void FrameWindow::PopUpMenu(Form1& window, std::string_view entry) {
  if (ClassWindowView* view = ViewOf(window)) view->PopUpMenu(FromText(entry));
}

void FrameWindow::TogglePanel(Form1& window) {
  if (ClassWindowView* view = ViewOf(window)) view->TogglePanel();
}

void FrameWindow::Arrange(Arrangement how) {
  if (how == Arrangement::kCascade) {
    area_->cascadeSubWindows();
  } else {
    TileWindows(*area_, how == Arrangement::kTileHorizontal ? Qt::Vertical : Qt::Horizontal);
  }
  // A window that left the whole frame for its part of it has lost the focus.
  if (front_ == nullptr) return;
  area_->setActiveSubWindow(front_);
  front_->widget()->setFocus();
}

void FrameWindow::ShowAbout() {
  ShowAboutBox(this);
}

std::vector<HelpTopic> FrameWindow::HelpTopics() {
  std::vector<HelpTopic> topics;
  for (const int context : HelpContexts())
    topics.push_back({context, ToText(HelpTitle(context)).value_or(std::string())});
  return topics;
}

void FrameWindow::closeEvent(QCloseEvent* event) {
  if (!may_close_) {
    may_close_ = FrameForm->QueryUnload();
    if (may_close_) FrameForm->Unload();
  }
  event->setAccepted(may_close_);
  if (!may_close_) return;
  SavePlace(*this, PlaceName());
  // The help window, when it is still open, does not keep the program.
  QCoreApplication::quit();
}

bool FrameWindow::event(QEvent* event) {
  if (event->type() != QEvent::StatusTip) return QMainWindow::event(event);
  ShowHint(static_cast<QStatusTipEvent*>(event)->tip());
  return true;
}

void FrameWindow::ShowHint(const QString& hint) {
  if (front_ != nullptr) {
    front_->ShowHint(hint);
    return;
  }
  hint_ = hint;
  Sync();
}

}  // namespace tallyroll
