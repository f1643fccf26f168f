// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/keyboard_round.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <algorithm>
#include <map>

#include "desktop/letter/rich_text_edit.h"
#include "tests/desktop/reading_order.h"

namespace tallyroll {
namespace {

using TabStops = QList<QWidget*>;

// A toolbar is one place, to which F6 leads; its arrows go on from there.
bool IsTabStop(const QWidget& window, const QWidget& widget) {
  if (qobject_cast<const QMdiSubWindow*>(&widget)) return false;
  if (qobject_cast<const QToolBar*>(widget.parentWidget())) return false;
  return widget.isVisible() && widget.isEnabled() && widget.window() == &window &&
         (widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy();
}

void ReadInOrder(QWidget& widget, TabStops& order);

void ReadInOrder(QLayout& layout, TabStops& order) {
  for (QLayoutItem* item : ItemsInReadingOrder(layout)) {
    if (item->widget()) ReadInOrder(*item->widget(), order);
    if (item->layout()) ReadInOrder(*item->layout(), order);
  }
}

void ReadInOrder(QWidget& widget, TabStops& order) {
  order << &widget;
  if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
    order << tabs->tabBar();
    if (QWidget* page = tabs->currentWidget()) ReadInOrder(*page, order);
  } else if (auto* pages = qobject_cast<QStackedWidget*>(&widget)) {
    if (QWidget* page = pages->currentWidget()) ReadInOrder(*page, order);
  } else if (auto* windows = qobject_cast<QMdiArea*>(&widget)) {
    if (QMdiSubWindow* front = windows->currentSubWindow()) ReadInOrder(*front->widget(), order);
  } else if (auto* area = qobject_cast<QScrollArea*>(&widget)) {
    if (area->widget()) ReadInOrder(*area->widget(), order);
  } else if (widget.layout()) {
    ReadInOrder(*widget.layout(), order);
  }
}

TabStops StopsOf(QWidget& window) {
  TabStops stops;
  for (auto* each : window.findChildren<QWidget*>())
    if (IsTabStop(window, *each)) stops << each;
  return stops;
}

QString NamesOf(const TabStops& stops) {
  QStringList names;
  for (const QWidget* each : stops) {
    const QString name = each->objectName();
    names << (name.isEmpty() ? QLatin1String(each->metaObject()->className()) : name);
  }
  return names.join(QLatin1String(", "));
}

// One round of the key, from the focus until it comes to a place for the second time. In a letter
// the key is a tab of the text, and with Ctrl it goes on.
TabStops RoundOf(QWidget& window, qsizetype most) {
  TabStops round;
  constexpr int kMostCells = 2000;  // where the key goes through a table cell by cell
  for (qsizetype i = 0; i <= most + kMostCells; ++i) {
    QWidget* here = window.focusWidget();
    const bool stays = !round.isEmpty() && here == round.last();
    if (!here || (round.contains(here) && !stays)) return round;
    if (!stays) round << here;
    const bool in_letter = qobject_cast<const RichTextEdit*>(here) != nullptr;
    QTest::keyClick(here, Qt::Key_Tab, in_letter ? Qt::ControlModifier : Qt::NoModifier);
    QCoreApplication::processEvents();
  }
  return round;
}

// Captions

QString CaptionOf(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget))
    return label->buddy() && label->buddy()->isEnabled() ? label->text() : QString();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
  return {};
}

QString PlainCaption(QString caption) {
  return caption.remove(QLatin1Char('&')).simplified();
}

void AddFaults(const QStringList& captions, QStringList& faults) {
  std::map<QString, QString> taken;
  for (const QString& caption : captions) {
    const QString letter = QKeySequence::mnemonic(caption).toString();
    if (letter.isEmpty()) continue;
    if (const auto [at, first] = taken.emplace(letter, caption); !first)
      faults << QStringLiteral("%1 and %2 share %3")
                    .arg(PlainCaption(at->second), PlainCaption(caption), letter);
  }
}

}  // namespace

QStringList TabFaults(QWidget& window) {
  TabStops stops = StopsOf(window), read;
  ReadInOrder(window, read);
  if (stops.isEmpty()) return {};
  const TabStops round = RoundOf(window, stops.size() + 1);
  QStringList faults;
  // A field that is left may put others on or off.
  const TabStops now = StopsOf(window);
  TabStops left_out;
  for (QWidget* each : stops)
    if (now.contains(each) && !round.contains(each)) left_out << each;
  if (!left_out.isEmpty()) faults << QStringLiteral("Tab leaves out ") + NamesOf(left_out);
  const auto still = std::find_if(round.begin(), round.end(),
                                  [&now](QWidget* each) { return now.contains(each); });
  if (QWidget* end = window.focusWidget(); still != round.end() && end != *still)
    faults << QStringLiteral("Tab comes back to %1, not to %2")
                  .arg(end ? NamesOf({end}) : QString(), NamesOf({*still}));
  // From the first one in reading order on.
  TabStops expected, walked = round;
  for (QWidget* each : std::as_const(read))
    if (round.contains(each) && !expected.contains(each)) expected << each;
  walked.removeIf([&](QWidget* each) { return !expected.contains(each); });
  if (!expected.isEmpty())
    std::rotate(walked.begin(), std::find(walked.begin(), walked.end(), expected.front()),
                walked.end());
  if (walked != expected)
    faults << QStringLiteral("Tab goes %1, what is read is %2")
                  .arg(NamesOf(walked), NamesOf(expected));
  return faults;
}

QStringList MnemonicFaults(const QWidget& window) {
  QStringList captions, faults;
  for (const auto* each : window.findChildren<QWidget*>()) {
    if (!each->isVisible() || !each->isEnabled() || each->window() != &window) continue;
    captions << CaptionOf(*each);
    if (const auto* tabs = qobject_cast<const QTabBar*>(each))
      for (int i = 0; i < tabs->count(); ++i) captions << tabs->tabText(i);
    if (const auto* bar = qobject_cast<const QMenuBar*>(each))
      for (const QAction* entry : bar->actions())
        if (entry->isVisible() && entry->isEnabled()) captions << entry->text();
  }
  AddFaults(captions, faults);
  for (const auto* menu : window.findChildren<QMenu*>()) {
    QStringList entries;
    for (const QAction* entry : menu->actions())
      if (entry->isVisible() && !entry->isSeparator()) entries << entry->text();
    AddFaults(entries, faults);
  }
  return faults;
}

}  // namespace tallyroll
