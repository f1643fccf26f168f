// SPDX-License-Identifier: GPL-3.0-or-later
// The help: pages to read beside the work.
#include "desktop/window/help_window.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QStatusBar>
#include <QTextBrowser>
#include <QToolBar>

#include "desktop/basics/window_places.h"
#include "desktop/window/help_topics.h"

namespace tallyroll {

void ShowHelpTopic(QWidget* frame, int context) {
  QWidget* owner = QApplication::activeModalWidget();
  if (owner == nullptr) owner = frame;
  auto* window = owner->findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
  if (window == nullptr) window = new HelpWindow(owner);
  window->ShowTopic(context);
  window->show();
  window->raise();
  window->activateWindow();
}

HelpWindow::HelpWindow(QWidget* parent) : QMainWindow(parent, Qt::Window) {
  setWindowTitle(tr("Tallyroll Help"));
  browser_ = new QTextBrowser(this);
  browser_->setAccessibleName(tr("Help page"));
  browser_->setOpenExternalLinks(false);
  browser_->setFrameShape(QFrame::NoFrame);
  browser_->document()->setDocumentMargin(16);
  setCentralWidget(browser_);
  find_ = new QLineEdit;
  AddTools();
  statusBar()->setSizeGripEnabled(false);
  // It has a strip of its own only while it says something.
  connect(statusBar(), &QStatusBar::messageChanged, statusBar(),
          [bar = statusBar()](const QString& said) { bar->setVisible(!said.isEmpty()); });
  statusBar()->hide();
  connect(browser_, &QTextBrowser::sourceChanged, this, [this] { statusBar()->clearMessage(); });
  resize(720, 640);
  KeepOnScreen(*this);
  browser_->setFocus();
}

void HelpWindow::AddTools() {
  QToolBar* tools = addToolBar(tr("Help"));
  tools->setMovable(false);
  tools->setContextMenuPolicy(Qt::PreventContextMenu);
  const auto add = [this, tools](const QString& text, const QKeySequence& key, auto act) {
    QAction* action = tools->addAction(text);
    action->setShortcut(key);
    action->setToolTip(tr("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, act);
    return action;
  };
  add(tr("Contents"), Qt::ALT | Qt::Key_Home, [this] { ShowTopic(0); });
  QAction* back = add(tr("Back"), Qt::ALT | Qt::Key_Left, [this] { browser_->backward(); });
  QAction* forward = add(tr("Forward"), Qt::ALT | Qt::Key_Right, [this] { browser_->forward(); });
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

  tools->addSeparator();
  find_->setObjectName(QStringLiteral("find"));
  find_->setPlaceholderText(tr("Find on this page"));
  find_->setAccessibleName(tr("Find on this page"));
  find_->setClearButtonEnabled(true);
  tools->addWidget(find_);
  add(tr("Find next"), Qt::Key_F3, [this] { FindNext(); });
  connect(find_, &QLineEdit::returnPressed, this, &HelpWindow::FindNext);

  const auto add_key = [this](const QKeySequence& key, auto act) {
    auto* action = new QAction(this);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, act);
    addAction(action);
  };
  add_key(Qt::CTRL | Qt::Key_F, [this] {
    find_->setFocus(Qt::ShortcutFocusReason);
    find_->selectAll();
  });
  add_key(Qt::Key_Escape, [this] { close(); });
}

void HelpWindow::ShowTopic(int context) {
  browser_->setSource(HelpPage(context));
}

bool HelpWindow::FindNext() {
  statusBar()->clearMessage();
  const QString words = find_->text();
  if (words.isEmpty()) return false;
  if (browser_->find(words)) return true;
  const QTextCursor place = browser_->textCursor();
  browser_->moveCursor(QTextCursor::Start);
  if (browser_->find(words)) return true;
  browser_->setTextCursor(place);
  statusBar()->showMessage(tr("\"%1\" is not on this page.").arg(words));
  return false;
}

}  // namespace tallyroll
