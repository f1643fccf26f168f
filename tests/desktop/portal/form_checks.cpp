// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/portal/form_checks.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <algorithm>
#include <type_traits>
#include <utility>

#include "desktop/basics/text_conversion.h"
#include "desktop/portal/form_loader.h"
#include "desktop/portal/portal_dialog.h"
#include "platform/chart.h"
#include "tests/desktop/reading_order.h"

namespace tallyroll {
namespace {

using Widgets = QList<QWidget*>;

Widgets FormWidgets(const LoadedForm& form) {
  Widgets widgets;
  for (QObject* object : form.objects)
    if (auto* widget = qobject_cast<QWidget*>(object)) widgets << widget;
  return widgets;
}

QString TextOf(const QObject& object) {
  for (const char* property : {"text", "title"})
    if (const QVariant value = object.property(property); value.isValid()) return value.toString();
  return {};
}

QStringList CheckCaptions(Portal& portal, const LoadedForm& form) {
  QStringList complaints;
  ControlTable table;
  portal.Declare(table);
  for (const auto& row : table.rows()) {
    const QString caption = std::visit(
        [](const auto* control) {
          if constexpr (requires { control->Caption; }) return LinesFromText(control->Caption);
          return QString();
        },
        row->control);
    if (caption.isEmpty()) continue;
    for (const QObject* object : form.objects)
      if (object->objectName() == FromText(row->name) && TextOf(*object) != caption)
        complaints << QStringLiteral("%1: the form says \"%2\", the struct \"%3\"")
                          .arg(object->objectName(), TextOf(*object), caption);
  }
  return complaints;
}

void AddInReadingOrder(QWidget& widget, Widgets& order);

void AddInReadingOrder(QLayout& layout, Widgets& order) {
  for (QLayoutItem* item : ItemsInReadingOrder(layout)) {
    if (item->widget()) AddInReadingOrder(*item->widget(), order);
    if (item->layout()) AddInReadingOrder(*item->layout(), order);
  }
}

void AddInReadingOrder(QWidget& widget, Widgets& order) {
  order << &widget;
  if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
    for (int i = 0; i < tabs->count(); ++i) AddInReadingOrder(*tabs->widget(i), order);
  } else if (auto* pages = qobject_cast<QStackedWidget*>(&widget)) {
    for (int i = 0; i < pages->count(); ++i) AddInReadingOrder(*pages->widget(i), order);
  } else if (widget.layout()) {
    AddInReadingOrder(*widget.layout(), order);
  }
}

QStringList CheckTabOrder(QDialog& dialog, const Widgets& widgets) {
  const auto tab_stop = [&](QWidget* widget) {
    return widgets.contains(widget) && widget != &dialog && (widget->focusPolicy() & Qt::TabFocus);
  };
  Widgets reading, tabbing;
  AddInReadingOrder(dialog, reading);
  reading.removeIf([&](QWidget* widget) { return !tab_stop(widget); });
  for (QWidget* next = dialog.nextInFocusChain(); next != &dialog; next = next->nextInFocusChain())
    if (tab_stop(next)) tabbing << next;
  for (qsizetype i = 0; i < std::min(reading.size(), tabbing.size()); ++i) {
    if (reading[i] == tabbing[i]) continue;
    return {QStringLiteral("tab comes to %1 where %2 is read next")
                .arg(tabbing[i]->objectName(), reading[i]->objectName())};
  }
  return {};
}

bool HasName(const QWidget& widget, const Widgets& widgets) {
  if (!widget.accessibleName().isEmpty()) return true;
  return std::any_of(widgets.begin(), widgets.end(), [&](const QWidget* other) {
    const auto* label = qobject_cast<const QLabel*>(other);
    return label && label->buddy() == &widget && label->parentWidget() == widget.parentWidget();
  });
}

QStringList CheckAccessibleNames(Portal& portal, const Widgets& widgets) {
  QStringList complaints;
  ControlTable table;
  portal.Declare(table);
  for (const auto& row : table.rows()) {
    const bool needs_name = std::visit(
        [](const auto* control) {
          using C = std::remove_cvref_t<decltype(*control)>;
          return std::is_same_v<C, TextBox> || std::is_same_v<C, ComboBox> ||
                 std::is_same_v<C, ListBox> || std::is_same_v<C, DTPicker> ||
                 std::is_same_v<C, Grid> || std::is_same_v<C, Graph> ||
                 std::is_same_v<C, RichTextBox>;
        },
        row->control);
    for (const QWidget* widget : widgets)
      if (needs_name && widget->objectName() == FromText(row->name) && !HasName(*widget, widgets))
        complaints << QStringLiteral("%1 has no accessible name").arg(widget->objectName());
  }
  return complaints;
}

// Widgets on two pages of one stack are never seen together.
bool SeenTogether(const QWidget* one, const QWidget* other) {
  for (; one; one = one->parentWidget()) {
    const auto* stack = qobject_cast<const QStackedWidget*>(one->parentWidget());
    if (stack && stack->isAncestorOf(other) && !one->isAncestorOf(other) && one != other)
      return false;
  }
  return true;
}

QStringList CheckMnemonics(const Widgets& widgets) {
  QStringList complaints;
  QList<std::pair<QString, QWidget*>> letters;
  const auto add = [&letters](const QString& text, QWidget* widget) {
    const QString letter = QKeySequence::mnemonic(text).toString();
    if (!letter.isEmpty()) letters << std::pair(letter, widget);
  };
  for (QWidget* widget : widgets) {
    const auto* tabs = qobject_cast<QTabWidget*>(widget);
    for (int i = 0; tabs && i < tabs->count(); ++i) add(tabs->tabText(i), widget);
    const auto* label = qobject_cast<QLabel*>(widget);
    if (label ? !label->buddy()
              : !qobject_cast<QAbstractButton*>(widget) && !qobject_cast<QGroupBox*>(widget))
      continue;
    add(TextOf(*widget), widget);
  }
  for (qsizetype i = 0; i < letters.size(); ++i)
    for (qsizetype j = i + 1; j < letters.size(); ++j)
      if (letters[i].first == letters[j].first &&
          SeenTogether(letters[i].second, letters[j].second))
        complaints << QStringLiteral("%1 and %2 share %3")
                          .arg(letters[i].second->objectName(), letters[j].second->objectName(),
                               letters[i].first);
  return complaints;
}

QStringList CheckLayouts(const Widgets& widgets) {
  QStringList complaints;
  for (const QWidget* widget : widgets) {
    const bool lays_out_itself =
        qobject_cast<const QTabWidget*>(widget) || qobject_cast<const QStackedWidget*>(widget) ||
        qobject_cast<const QScrollArea*>(widget) || qobject_cast<const QMenuBar*>(widget) ||
        qobject_cast<const QMenu*>(widget);
    const bool holds_others =
        std::any_of(widgets.begin(), widgets.end(), [widget](const QWidget* other) {
          return other->parentWidget() == widget && !qobject_cast<const QMenu*>(other);
        });
    if (holds_others && !lays_out_itself && !widget->layout())
      complaints << QStringLiteral("%1 has no layout").arg(widget->objectName());
  }
  return complaints;
}

}  // namespace

QStringList CheckPortalForm(Portal& portal, const QString& form_file) {
  QDialog bare;
  const LoadedForm form = Forms().Load(form_file, bare);
  const Widgets widgets = FormWidgets(form);
  QStringList complaints = CheckCaptions(portal, form) + CheckTabOrder(bare, widgets) +
                           CheckAccessibleNames(portal, widgets) + CheckMnemonics(widgets) +
                           CheckLayouts(widgets);
  return complaints + PortalDialog(portal, form_file).Complaints();
}

}  // namespace tallyroll
