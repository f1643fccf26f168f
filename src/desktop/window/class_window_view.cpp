// SPDX-License-Identifier: GPL-3.0-or-later
// A class window on the screen: toolbar, grid and status bar of one Form1.
#include "desktop/window/class_window_view.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QCursor>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMenu>
#include <QSettings>
#include <QVBoxLayout>

#include "base/number_text.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/grid/grid_accessibility.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/panel/panel_words.h"
#include "desktop/panel/side_panel.h"
#include "desktop/panel/status_line.h"
#include "desktop/window/appearance_menu.h"
#include "desktop/window/asked_menu.h"
#include "desktop/window/menu_view.h"
#include "desktop/window/message_moment.h"
#include "desktop/window/panel_follower.h"
#include "desktop/window/toolbar_view.h"
#include "find/type_ahead.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr double kWidthForPanel = 1240, kHeightForPanel = 480;

QString PanelKey() {
  return QStringLiteral("Panel/Shown");
}

// The current cell as one number.
int PlaceOf(const Grid& grid, int row) {
  return row * grid.Cols() + grid.Col;
}
int PlaceOf(const Grid& grid) {
  return PlaceOf(grid, grid.Row);
}

// That of the window's slot; the one that is never handed out while it has none.
const Class& ClassOf(const Form1& form) {
  return Classes[static_cast<std::size_t>(LeadingNumber(form.Tag))];
}

}  // namespace

ClassWindowView::ClassWindowView(Form1& form)
    : form_(&form), wants_panel_(QSettings().value(PanelKey(), true).toBool()) {
  menu_ = new MenuView(form.menu, this);
  AddAppearanceMenu(*menu_->Action(QStringLiteral("mnuScreens"))->menu());
  setWidget(MakePage());

  // The window's own menu would claim Ctrl+W and Ctrl+F4 beside the entry that stands for them.
  for (QAction* action : systemMenu()->actions()) action->setShortcuts(QList<QKeySequence>());
  auto* switch_focus = new QAction(this);
  switch_focus->setShortcut(Qt::Key_F6);
  switch_focus->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  addAction(switch_focus);
  connect(switch_focus, &QAction::triggered, this, &ClassWindowView::SwitchFocus);

  moment_ = new MessageMoment(
      [this] { return mdiArea() != nullptr && mdiArea()->currentSubWindow() == this; },
      [this] { EndStatus(); }, this);
  connect(menu_, &MenuView::Pressed, this, &ClassWindowView::MenuPressed);
  connect(toolbar_, &ToolbarView::Pressed, this, &ClassWindowView::ToolPressed);
  connect(grid_, &GridWidget::currentCellChanged, this, [this] {
    if (form_ != nullptr) typed_.MovedTo(PlaceOf(form_->Grid1));
    TellAtCurrentCell(*grid_, {});  // the cell tells its own state again
  });
  connect(grid_, &GridWidget::hovered, this, &ClassWindowView::PointAt);
  // Queued: a Portal that the double click opens must not run inside the mouse event.
  connect(grid_, &GridWidget::cellDoubleClicked, this, &ClassWindowView::CellChosen,
          Qt::QueuedConnection);
  ConnectPanel();
  Sync();
}

QWidget* ClassWindowView::MakePage() {
  auto* page = new QWidget(this);
  toolbar_ = new ToolbarView(form_->Toolbar2, page);
  grid_ = new GridWidget(page);
  grid_->setObjectName(QStringLiteral("Grid1"));
  grid_->setAccessibleName(tr("Students and grades"));
  grid_->Keep(QStringLiteral("Form1.Grid1"));
  grid_->SetGrid(&form_->Grid1);
  panel_ = new SidePanel(page);
  panel_->hide();
  status_ = new StatusLine(page);
  status_->TakeDensities(MakeDensityMenu(status_));

  auto* middle = new QHBoxLayout;
  middle->setSpacing(0);
  middle->addWidget(grid_, 1);
  middle->addWidget(panel_);
  auto* rows = new QVBoxLayout(page);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(toolbar_);
  rows->addLayout(middle, 1);
  rows->addWidget(status_);
  page->setFocusProxy(grid_);
  return page;
}

void ClassWindowView::ConnectPanel() {
  follower_ = new PanelFollower(*form_, *panel_, *status_, this);
  connect(grid_, &GridWidget::currentCellChanged, follower_, &PanelFollower::Follow);
  connect(status_, &StatusLine::PanelPressed, this, &ClassWindowView::TogglePanel);
  connect(panel_, &SidePanel::GradePointed, this, &ClassWindowView::GoToGrade);
  connect(panel_, &SidePanel::GradeChosen, this, [this](int grade) {
    if (form_ == nullptr) return;
    GoToGrade(grade);
    grid_->setFocus();  // where the keys go on when the Portal is left
    Q_EMIT CellChosen(form_->Grid1.Row, form_->Grid1.Col);
  });
  connect(panel_, &SidePanel::MethodAsked, this, [this] {
    if (form_ == nullptr) return;
    const auto* below = panel_->findChild<QWidget*>(QStringLiteral("make_up"));
    menu_->PopUp(QStringLiteral("mnuequalW"), below->mapToGlobal(QPoint(0, below->height())));
  });
}

// The cell of a grade in the current row.
void ClassWindowView::GoToGrade(int grade) {
  if (form_ == nullptr) return;
  grid_->MoveTo(form_->Grid1.Row, grade + form_->Grid1.FixedCols - 1);
}

// Beside a narrow table the panel would take what the marks need.
bool ClassWindowView::HasRoomForPanel() const {
  return width() >= PanelPx(*this, kWidthForPanel) && height() >= PanelPx(*this, kHeightForPanel);
}

void ClassWindowView::FitPanel() {
  if (HasRoomForPanel()) insists_on_panel_ = false;
  const bool shown = wants_panel_ && (HasRoomForPanel() || insists_on_panel_);
  if (panel_->isVisibleTo(panel_->parentWidget()) == shown) return;
  panel_->setVisible(shown);
  Sync();  // what tells of it: the menu's tick, the button of the status line
}

void ClassWindowView::TogglePanel() {
  if (panel_->isAncestorOf(focusWidget())) grid_->setFocus();
  wants_panel_ = insists_on_panel_ = !panel_->isVisibleTo(panel_->parentWidget());
  QSettings().setValue(PanelKey(), wants_panel_);
  FitPanel();
}

void ClassWindowView::resizeEvent(QResizeEvent* event) {
  QMdiSubWindow::resizeEvent(event);
  FitPanel();
}

void ClassWindowView::keyPressEvent(QKeyEvent* event) {
  const bool names = form_ != nullptr && grid_->hasFocus() && ClassOf(*form_).NumStudents > 0;
  if (!names || !typed_.Take(*event, PlaceOf(form_->Grid1)))
    return QMdiSubWindow::keyPressEvent(event);
  GoToTyped();
}

// To the row of the student whose name or ID begins with what is typed.
void ClassWindowView::GoToTyped() {
  const Class& c = ClassOf(*form_);
  std::vector<std::string> lines;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(c.NumStudents); ++i)
    lines.push_back(PlainName(c.Students[i]) + "\t" + c.Students[i].id);
  const Grid& grid = form_->Grid1;
  const int line = LineToGoTo(typed_.typed(), lines, grid.Row - grid.FixedRows);
  if (line >= 0) {
    form_->EndStatus();
    typed_.LeadsTo(PlaceOf(grid, line + grid.FixedRows));
    grid_->MoveTo(line + grid.FixedRows, grid.Col);
  } else if (!typed_.typed().empty()) {
    QApplication::beep();
    form_->ShowStatus("No student begins with \"" + typed_.typed() + "\".");
  }
  Sync();
}

void ClassWindowView::Sync() {
  if (form_ == nullptr) return;
  const bool panel = panel_->isVisibleTo(panel_->parentWidget());
  form_->menu.Check("mnupanel", panel);
  menu_->Sync();
  toolbar_->Sync();
  grid_->SetNotice(Notice());
  grid_->UpdateFromGrid();
  if (const QString title = Title(); title != windowTitle()) setWindowTitle(title);
  moment_->Follow(form_->MessagesTold);
  spoken_.Follow(*grid_, form_->MessagesTold, FromText(form_->StatusText));
  status_->ShowMessage(hint_.isEmpty() ? FromText(form_->StatusText) : hint_);
  status_->ShowChanged(ClassOf(*form_).Changed != kFalse);
  status_->ShowPanel(panel);
  follower_->Follow();
}

// What will stand in a class that has nothing yet, and the way there.
QString ClassWindowView::Notice() const {
  const Class& c = ClassOf(*form_);
  if (form_->Tag.empty()) return {};
  if (c.NumStudents == 0)
    return tr("No students yet - double click on the head above to enter one");
  if (c.NumInstruments == 0)
    return tr("No grades yet - double click on Testing Instruments to enter one");
  return {};
}

// An asterisk marks what is not saved yet.
QString ClassWindowView::Title() const {
  const QString caption = FromText(form_->Caption);
  return ClassOf(*form_).Changed != kFalse ? caption + QLatin1Char('*') : caption;
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
  follower_->LetGo();
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

// The entries are the menu's own, so they are enabled with it. A head moves the column alone, a
// name the row alone.
void ClassWindowView::contextMenuEvent(QContextMenuEvent* event) {
  if (form_ == nullptr) return;
  const bool keyboard = event->reason() == QContextMenuEvent::Keyboard;
  const Grid& grid = form_->Grid1;
  AskedCell cell{grid.Row, grid.Col};
  if (!keyboard) {
    const auto [row, col] = grid_->CellAt(grid_->viewport()->mapFromGlobal(event->globalPos()));
    cell = {row, col};
  }
  AskedMenu asked(*form_, *menu_, cell, this);
  if (asked.isEmpty()) return QMdiSubWindow::contextMenuEvent(event);
  grid_->MoveTo(cell.row < grid.FixedRows ? grid.Row : cell.row,
                cell.col < grid.FixedCols ? grid.Col : cell.col);
  const QPoint below = grid_->viewport()->mapToGlobal(grid_->CellRect(cell.row, cell.col).center());
  const QAction* taken = asked.exec(keyboard ? below : event->globalPos());
  if (taken != nullptr && taken == asked.double_click()) Q_EMIT CellChosen(cell.row, cell.col);
}

void ClassWindowView::PointAt() {
  if (form_ == nullptr) return;
  form_->Grid1_MouseMove();
  Sync();
}

// From the table to the toolbar, to what can be pressed in the panel, and back.
void ClassWindowView::SwitchFocus() {
  if (grid_->hasFocus()) return toolbar_->FocusFirst();
  const QWidget* before = focusWidget();
  if (toolbar_->isAncestorOf(before) && panel_->isVisible()) panel_->FocusFirst();
  if (focusWidget() == before) grid_->setFocus(Qt::ShortcutFocusReason);
}

}  // namespace tallyroll
