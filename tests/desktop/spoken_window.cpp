// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/spoken_window.h"

#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QComboBox>
#include <QLabel>
#include <QMdiSubWindow>
#include <QTextBrowser>
#include <algorithm>

#include "desktop/grid/grid_widget.h"

namespace tallyroll {
namespace {

using Role = QAccessible::Role;

// Two letters at least: "+", "..." and "1" say nothing.
bool HasWord(const QString& name) {
  return std::count_if(name.begin(), name.end(), [](QChar c) { return c.isLetter(); }) >= 2;
}

bool IsKindOfControl(Role role) {
  constexpr Role kKinds[] = {
      QAccessible::Button,       QAccessible::CheckBox,    QAccessible::RadioButton,
      QAccessible::EditableText, QAccessible::ComboBox,    QAccessible::SpinBox,
      QAccessible::List,         QAccessible::Table,       QAccessible::Tree,
      QAccessible::PageTabList,  QAccessible::PageTab,     QAccessible::Chart,
      QAccessible::Document,     QAccessible::ButtonMenu,  QAccessible::ButtonDropDown,
      QAccessible::Slider,       QAccessible::ProgressBar, QAccessible::MenuItem};
  return std::find(std::begin(kKinds), std::end(kKinds), role) != std::end(kKinds);
}

QString PlaceOf(const QAccessibleInterface& node) {
  const QObject* object = node.object();
  const QString name = object ? object->objectName() : QString();
  return name.isEmpty() && object ? QLatin1String(object->metaObject()->className()) : name;
}

// What tells what the control is for. A choice is called by what is chosen: beside that it needs a
// label, or a description.
QString NameOf(const QAccessibleInterface& node) {
  const auto* choice = qobject_cast<const QComboBox*>(node.object());
  if (!choice) return node.text(QAccessible::Name);
  for (const auto* label :
       choice->parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
    if (label->buddy() == choice) return label->text();
  return node.text(QAccessible::Description);
}

// A page to read, which the toolkit calls a static text whatever stands in it.
bool IsPage(const QAccessibleInterface& node) {
  return qobject_cast<const QTextBrowser*>(node.object()) != nullptr;
}

// What a click alone reaches is text to be copied; a window holds what is reached.
bool IsReached(const QAccessibleInterface& node) {
  const auto* widget = qobject_cast<const QWidget*>(node.object());
  if (node.state().disabled || !node.state().focusable) return false;
  return !widget || ((widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() &&
                     !qobject_cast<const QMdiSubWindow*>(widget));
}

void CheckControl(const QAccessibleInterface& node, QStringList& faults) {
  const QString name = NameOf(node);
  if (!HasWord(name)) faults << QStringLiteral("%1 is called \"%2\"").arg(PlaceOf(node), name);
  if (!IsKindOfControl(node.role()) && !IsPage(node))
    faults << QStringLiteral("%1 is of the kind %2").arg(PlaceOf(node)).arg(int(node.role()));
}

// Each column of the first rows, and each cell that stands out.
void CheckTable(QAccessibleInterface& node, QStringList& faults) {
  const auto* widget = qobject_cast<const GridWidget*>(node.object());
  QAccessibleTableInterface* table = node.tableInterface();
  if (!widget || !widget->grid() || !table) return;
  const Grid& grid = *widget->grid();
  if (table->rowCount() != grid.Rows() || table->columnCount() != grid.Cols())
    faults << PlaceOf(node) + QStringLiteral(" tells other dimensions");
  const bool has_rows = grid.Rows() > grid.FixedRows;
  if (!has_rows && !HasWord(node.text(QAccessible::Description)))
    faults << PlaceOf(node) + QStringLiteral(" is empty and does not say what will stand there");
  for (int row = grid.FixedRows; row < grid.Rows(); ++row)
    for (int col = 0; col < grid.Cols(); ++col) {
      const CellNote note = NoteOf(grid.Notes, row, col);
      const CellStyle style = grid.Style(row, col);
      const bool in_work = style == CellStyle::kInWork && (row != grid.Row || col != grid.Col);
      const bool stands_out = note.mark != CellMark::kNone || in_work ||
                              style == CellStyle::kFailing || style == CellStyle::kShaded;
      const QAccessibleInterface* cell = table->cellAt(row, col);
      if (stands_out && !HasWord(cell->text(QAccessible::Description)))
        faults << QStringLiteral("%1: \"%2\" in row %3 looks otherwise and does not say why")
                      .arg(PlaceOf(node), cell->text(QAccessible::Name))
                      .arg(row);
    }
}

void CheckHeads(QAccessibleInterface& node, QStringList& faults) {
  const auto* widget = qobject_cast<const GridWidget*>(node.object());
  QAccessibleTableInterface* table = node.tableInterface();
  if (!widget || !widget->grid() || !table) return;
  const Grid& grid = *widget->grid();
  if (grid.FixedRows == 0 || grid.Rows() <= grid.FixedRows) return;
  for (int col = 0; col < grid.Cols(); ++col) {
    bool has_text = false;
    for (int row = grid.FixedRows; row < grid.Rows() && !has_text; ++row)
      has_text = !table->cellAt(row, col)->text(QAccessible::Name).isEmpty();
    if (has_text && table->columnDescription(col).isEmpty())
      faults << QStringLiteral("%1: column %2 has no name").arg(PlaceOf(node)).arg(col);
  }
}

void CheckLines(const QAccessibleInterface& list, QStringList& faults) {
  for (int i = 0; i < list.childCount(); ++i) {
    const QAccessibleInterface* line = list.child(i);
    if (line && line->role() == QAccessible::ListItem &&
        line->text(QAccessible::Name).trimmed().isEmpty())
      faults << QStringLiteral("%1: line %2 is empty").arg(PlaceOf(list)).arg(i);
  }
}

// What stands inside is told by the control itself.
bool IsWhole(Role role) {
  return role == QAccessible::Table || role == QAccessible::List || role == QAccessible::Tree ||
         role == QAccessible::ComboBox || role == QAccessible::SpinBox ||
         role == QAccessible::Document;
}

void Walk(QAccessibleInterface* node, QStringList& faults) {
  if (!node || !node->isValid() || node->state().invisible) return;
  if (IsReached(*node)) CheckControl(*node, faults);
  if (node->role() == QAccessible::Table) {
    CheckTable(*node, faults);
    CheckHeads(*node, faults);
  }
  if (node->role() == QAccessible::List) CheckLines(*node, faults);
  if (IsWhole(node->role())) return;
  for (int i = 0; i < node->childCount(); ++i) {
    QAccessibleInterface* child = node->child(i);
    const bool other_window = child && qobject_cast<const QWidget*>(child->object()) &&
                              static_cast<const QWidget*>(child->object())->isWindow();
    if (!other_window) Walk(child, faults);
  }
}

QString Words(QString text) {
  text.remove(QLatin1Char('&'));
  while (text.endsWith(QLatin1Char(':'))) text.chop(1);
  return text.simplified();
}

// By the same words, or by words that hold them: "Month of the first day" for "Month".
void CheckLabels(const QWidget& window, QStringList& faults) {
  for (const auto* label : window.findChildren<QLabel*>()) {
    QWidget* field = label->isVisible() ? label->buddy() : nullptr;
    if (!field || !field->isVisible()) continue;
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(field);
    const QString name = spoken ? Words(spoken->text(QAccessible::Name)) : QString();
    const bool related = label->parentWidget() == field->parentWidget();
    if (!related && !name.contains(Words(label->text()), Qt::CaseInsensitive))
      faults << QStringLiteral("the label \"%1\" does not name %2, which is \"%3\"")
                    .arg(label->text(), field->objectName(), name);
  }
}

}  // namespace

QStringList SpokenFaults(QWidget& window) {
  QStringList faults;
  Walk(QAccessible::queryAccessibleInterface(&window), faults);
  CheckLabels(window, faults);
  return faults;
}

QStringList FocusFaults(const QWidget& window) {
  QWidget* focus = window.focusWidget();
  if (!focus) return {QStringLiteral("nothing has the focus")};
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(focus);
  if (spoken && HasWord(NameOf(*spoken))) return {};
  return {QStringLiteral("the focus is on %1, which has no name").arg(focus->objectName())};
}

}  // namespace tallyroll
