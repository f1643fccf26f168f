// SPDX-License-Identifier: GPL-3.0-or-later
// The toolbar of a class window.
#include "desktop/window/toolbar_view.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <algorithm>

#include "desktop/basics/palette_icon.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/style/appearance.h"

namespace tallyroll {

namespace {

// With less room than this the words would press the icons together.
constexpr int kWidthForWords = 1060, kHeightForWords = 520;

// Buttons that begin a group, beside the gap that the data has after the file's: grades,
// attendance, and what is made of them.
bool BeginsGroup(std::string_view key) {
  return key == "Grades" || key == "Attendance" || key == "View";
}

// What stands below the icon; the tip says it in full.
QString WordOf(std::string_view key) {
  constexpr std::pair<std::string_view, const char*> kWords[] = {
      {"Student", "Add"},        {"Roster", "Students"}, {"Grades", "New Grade"},
      {"Cgrades", "Edit Grade"}, {"Eatt", "Edit Att."},  {"View", "Student"},
      {"Average", "Averages"},   {"Graph", "Statistics"}};
  for (const auto& [of, word] : kWords)
    if (of == key) return QString::fromLatin1(word);
  return FromText(key);
}

// Why a button cannot be pressed: what its class lacks.
QString ReasonOf(const QString& key) {
  const auto is_one_of = [&key](std::initializer_list<const char*> keys) {
    return std::any_of(keys.begin(), keys.end(),
                       [&key](const char* each) { return key == QLatin1String(each); });
  };
  if (is_one_of({"Cgrades", "Average", "Graph"}))
    return QObject::tr("This class has no grade yet.");
  if (is_one_of({"Eatt"})) return QObject::tr("This class has no attendance yet.");
  if (is_one_of({"View"})) return QObject::tr("This class has no grade and no attendance yet.");
  return QObject::tr("This class has no student yet.");
}

}  // namespace

ToolbarView::ToolbarView(const std::vector<ToolButton>& buttons, QWidget* parent)
    : QToolBar(parent), buttons_(&buttons) {
  setObjectName(QStringLiteral("Toolbar2"));
  setAccessibleName(tr("Toolbar"));
  // What shows the buttons that have no room.
  if (auto* more = findChild<QWidget*>(QStringLiteral("qt_toolbar_ext_button")))
    more->setAccessibleName(tr("More buttons"));
  for (const ToolButton& button : buttons) AddButton(button);
  DrawIcons();
  Sync();
  ShowWords();
  if (Appearance* appearance = Appearance::Instance())
    connect(appearance, &Appearance::WordsChanged, this, &ToolbarView::ShowWords);
}

void ToolbarView::AddButton(const ToolButton& button) {
  if (button.key.empty()) {
    actions_.push_back(addSeparator());
    return;
  }
  if (BeginsGroup(button.key)) addSeparator();
  if (button.key == "Exit") AddRoom();
  const QString key = FromText(button.key);
  QAction* action = addAction(FromText(button.tip));
  action->setObjectName(key);
  action->setIconText(WordOf(button.key));
  action->setToolTip(FromText(button.tip));
  action->setStatusTip(FromText(button.tip));
  connect(
      action, &QAction::triggered, this, [this, key] { Q_EMIT Pressed(key); },
      Qt::QueuedConnection);
  QWidget* widget = widgetForAction(action);
  widget->setAccessibleName(FromText(button.tip));
  widget->setFocusPolicy(Qt::TabFocus);
  actions_.push_back(action);
}

// What leaves the class stands apart, at the far end.
void ToolbarView::AddRoom() {
  auto* room = new QWidget;
  room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  addWidget(room);
}

// The words need room of their own; where the window has none the icons stand alone.
void ToolbarView::ShowWords() {
  const Appearance* appearance = Appearance::Instance();
  const QSize room = window()->size();
  const bool shown = (appearance == nullptr || appearance->WordsInToolbar()) &&
                     width() >= kWidthForWords && room.height() >= kHeightForWords;
  const auto wanted = shown ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly;
  if (toolButtonStyle() != wanted) setToolButtonStyle(wanted);
}

void ToolbarView::resizeEvent(QResizeEvent* event) {
  QToolBar::resizeEvent(event);
  ShowWords();
}

// A window that changes its height alone leaves the toolbar as large as it is.
void ToolbarView::showEvent(QShowEvent* event) {
  QToolBar::showEvent(event);
  window()->installEventFilter(this);
  ShowWords();
}

bool ToolbarView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window() && event->type() == QEvent::Resize) ShowWords();
  return QToolBar::eventFilter(watched, event);
}

void ToolbarView::contextMenuEvent(QContextMenuEvent* event) {
  Appearance* appearance = Appearance::Instance();
  if (appearance == nullptr) return;
  QMenu menu(this);
  QAction* words = menu.addAction(tr("&Words in the Toolbar"));
  words->setCheckable(true);
  words->setChecked(appearance->WordsInToolbar());
  if (menu.exec(event->globalPos()) == words) appearance->SetWordsInToolbar(words->isChecked());
}

void ToolbarView::Sync() {
  if (buttons_ == nullptr) return;
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    QAction* action = actions_[i];
    if (action->isSeparator()) continue;
    const ToolButton& button = (*buttons_)[i];
    action->setEnabled(button.enabled);
    const QString tip = FromText(button.tip);
    action->setToolTip(button.enabled ? tip
                                      : tip + QLatin1Char('\n') + ReasonOf(action->objectName()));
  }
}

void ToolbarView::FocusFirst() {
  for (QAction* action : actions_) {
    if (action->isSeparator() || !action->isEnabled() || !widgetForAction(action)->isVisible())
      continue;
    widgetForAction(action)->setFocus(Qt::TabFocusReason);
    return;
  }
}

void ToolbarView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) DrawIcons();
  QToolBar::changeEvent(event);
}

void ToolbarView::DrawIcons() {
  for (QAction* action : actions_) {
    if (!action->isSeparator()) action->setIcon(PaletteIcon(action->objectName(), palette()));
  }
}

}  // namespace tallyroll
