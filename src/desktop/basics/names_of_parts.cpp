// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/basics/names_of_parts.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>

namespace tallyroll {
namespace {

// The field to type into, of a choice or a date; null where nothing is typed.
QLineEdit* FieldWithin(QWidget& control) {
  if (auto* choice = qobject_cast<QComboBox*>(&control)) return choice->lineEdit();
  const bool spins = qobject_cast<QAbstractSpinBox*>(&control) != nullptr;
  return spins ? control.findChild<QLineEdit*>() : nullptr;
}

void NameField(QWidget& control, const QString& name) {
  QLineEdit* field = FieldWithin(control);
  if (field && field->accessibleName().isEmpty()) field->setAccessibleName(name);
}

// A control takes its name from the label beside it by itself; a list does not, nor one whose label
// stands in another part of the window.
void NameByLabel(const QLabel& label) {
  QWidget* control = label.buddy();
  if (!control) return;
  const QString name = label.text().remove(QLatin1Char('&'));
  const bool is_list = qobject_cast<QAbstractItemView*>(control) != nullptr;
  const bool apart = label.parentWidget() != control->parentWidget();
  if ((is_list || apart) && control->accessibleName().isEmpty()) control->setAccessibleName(name);
  NameField(*control, name);
}

void NameByItself(QWidget& control) {
  if (auto* tabs = qobject_cast<QTabWidget*>(&control))
    tabs->tabBar()->setAccessibleName(tabs->accessibleName().isEmpty() ? QObject::tr("Pages")
                                                                       : tabs->accessibleName());
  NameField(control, control.accessibleName());
}

// A choice is called by what is chosen. Where no label stands beside it, what it is for is told
// too.
void DescribeChoice(QWidget& control) {
  const bool is_choice = qobject_cast<QComboBox*>(&control) != nullptr;
  if (is_choice && control.accessibleDescription().isEmpty())
    control.setAccessibleDescription(control.accessibleName());
}

}  // namespace

void NameParts(const QObjectList& objects) {
  for (QObject* object : objects)
    if (auto* widget = qobject_cast<QWidget*>(object)) NameByItself(*widget);
  for (QObject* object : objects)
    if (const auto* label = qobject_cast<const QLabel*>(object)) NameByLabel(*label);
  for (QObject* object : objects)
    if (auto* widget = qobject_cast<QWidget*>(object)) DescribeChoice(*widget);
}

}  // namespace tallyroll
