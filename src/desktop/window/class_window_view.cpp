// SPDX-License-Identifier: GPL-3.0-or-later
// A class window on the screen: toolbar, grid and status bar of one Form1.
#include "desktop/window/class_window_view.h"

#include <QAction>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QCursor>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QVBoxLayout>

#include "base/number_text.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/window/appearance_menu.h"
#include "desktop/window/menu_view.h"
#include "desktop/window/message_moment.h"
#include "desktop/window/toolbar_view.h"

namespace tallyroll {

ClassWindowView::ClassWindowView(Form1& form) : form_(&form) {
  auto* page = new QWidget(this);
  menu_ = new MenuView(form.menu, this);
  AddAppearanceMenu(*menu_->Action(QStringLiteral("mnuScreens"))->menu());
  toolbar_ = new ToolbarView(form.Toolbar2, page);
  grid_ = new GridWidget(page);
  grid_->setObjectName(QStringLiteral("Grid1"));
  grid_->setAccessibleName(tr("Students and grades"));
  grid_->Keep(QStringLiteral("Form1.Grid1"));
  grid_->SetGrid(&form.Grid1);
  status_ = new QLabel(page);
  status_->setObjectName(QStringLiteral("StatusBar1"));
  status_->setMargin(3);
  status_->setTextFormat(Qt::PlainText);
  // A long status must not widen the window.
  status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

  auto* rows = new QVBoxLayout(page);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(toolbar_);
  rows->addWidget(grid_, 1);
  rows->addWidget(status_);
  page->setFocusProxy(grid_);
  setWidget(page);

  // The window's own menu would claim Ctrl+W and Ctrl+F4 beside the entry that stands for them.
  for (QAction* action : systemMenu()->actions()) action->setShortcuts(QList<QKeySequence>());
  auto* switch_focus = new QAction(this);
  switch_focus->setShortcut(Qt::Key_F6);
  switch_focus->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  addAction(switch_focus);
  connect(switch_focus, &QAction::triggered, this, &ClassWindowView::SwitchBetweenGridAndToolbar);

  moment_ = new MessageMoment(
      [this] { return mdiArea() != nullptr && mdiArea()->currentSubWindow() == this; },
      [this] { EndStatus(); }, this);
  connect(menu_, &MenuView::Pressed, this, &ClassWindowView::MenuPressed);
  connect(toolbar_, &ToolbarView::Pressed, this, &ClassWindowView::ToolPressed);
  connect(grid_, &GridWidget::hovered, this, &ClassWindowView::PointAt);
  // Queued: a Portal that the double click opens must not run inside the mouse event.
  connect(grid_, &GridWidget::cellDoubleClicked, this, &ClassWindowView::CellChosen,
          Qt::QueuedConnection);
  Sync();
}

void ClassWindowView::Sync() {
  if (form_ == nullptr) return;
  menu_->Sync();
  toolbar_->Sync();
  grid_->SetNotice(Notice());
  grid_->UpdateFromGrid();
  if (const QString title = Title(); title != windowTitle()) setWindowTitle(title);
  moment_->Follow(form_->MessagesTold);
  const QString status = hint_.isEmpty() ? FromText(form_->StatusText) : hint_;
  if (status != status_->text()) status_->setText(status);
}

// What will stand in a class that has nothing yet, and the way there.
QString ClassWindowView::Notice() const {
  const Class& c = Classes[static_cast<std::size_t>(LeadingNumber(form_->Tag))];
  if (form_->Tag.empty()) return {};
  if (c.NumStudents == 0)
    return tr("No students yet - double click on the head above to enter one");
  if (c.NumInstruments == 0)
    return tr("No grades yet - double click on Testing Instruments to enter one");
  return {};
}

// An asterisk marks what is not saved yet.
QString ClassWindowView::Title() const {
  const auto slot = static_cast<std::size_t>(LeadingNumber(form_->Tag));
  const QString caption = FromText(form_->Caption);
  return Classes[slot].Changed != kFalse ? caption + QLatin1Char('*') : caption;
}

// What the pointer rests on is told again.
void ClassWindowView::EndStatus() {
  if (form_ == nullptr) return;
  form_->EndStatus();
  const QPoint pointer = grid_->viewport()->mapFromGlobal(QCursor::pos());
  const GridWidget::Cell cell =
      grid_->viewport()->underMouse() ? grid_->CellAt(pointer) : GridWidget::Cell{};
  form_->Grid1.MouseRow = cell.row;
  form_->Grid1.MouseCol = cell.col;
  PointAt();
}

void ClassWindowView::ShowHint(const QString& hint) {
  hint_ = hint;
  Sync();
}

void ClassWindowView::PopUpMenu(const QString& menu) {
  const QWidget* below = toolbar_;
  for (const QAction* action : toolbar_->actions()) {
    if (action->objectName() == QStringLiteral("Print")) {
      below = toolbar_->widgetForAction(const_cast<QAction*>(action));
    }
  }
  menu_->PopUp(menu, below->mapToGlobal(QPoint(0, below->height())));
}

void ClassWindowView::LetGo() {
  menu_->LetGo();
  toolbar_->LetGo();
  grid_->SetGrid(&no_grid_);
  form_ = nullptr;
}

void ClassWindowView::closeEvent(QCloseEvent* event) {
  // The class is asked first; when it may go, the frame takes this window down.
  event->ignore();
  if (form_ != nullptr) Q_EMIT CloseAsked();
}

// What can be asked about the student in a row. The entries are the menu's own, so they are enabled
// with it.
void ClassWindowView::contextMenuEvent(QContextMenuEvent* event) {
  if (form_ == nullptr) return;
  const bool keyboard = event->reason() == QContextMenuEvent::Keyboard;
  GridWidget::Cell cell{form_->Grid1.Row, form_->Grid1.Col};
  if (!keyboard) cell = grid_->CellAt(grid_->viewport()->mapFromGlobal(event->globalPos()));
  const int student = cell.row - form_->Grid1.FixedRows + 1;
  if (student < 1 ||
      student > Classes[static_cast<std::size_t>(LeadingNumber(form_->Tag))].NumStudents)
    return QMdiSubWindow::contextMenuEvent(event);
  grid_->MoveTo(cell.row, std::max(cell.col, form_->Grid1.FixedCols));
  QMenu asked(this);
  asked.setObjectName(QStringLiteral("asked"));
  asked.addAction(menu_->Action(QStringLiteral("mnuexplain")));
  asked.addAction(menu_->Action(QStringLiteral("mnustudenthistory")));
  const QPoint below = grid_->viewport()->mapToGlobal(grid_->CellRect(cell.row, cell.col).center());
  asked.exec(keyboard ? below : event->globalPos());
}

void ClassWindowView::PointAt() {
  if (form_ == nullptr) return;
  form_->Grid1_MouseMove();
  Sync();
}

void ClassWindowView::SwitchBetweenGridAndToolbar() {
  if (grid_->hasFocus()) {
    toolbar_->FocusFirst();
  } else {
    grid_->setFocus(Qt::ShortcutFocusReason);
  }
}

}  // namespace tallyroll
