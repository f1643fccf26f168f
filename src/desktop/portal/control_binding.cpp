// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/control_binding.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextEdit>
#include <QWidget>

#include "desktop/grid/grid_widget.h"
#include "desktop/portal/chart_widget.h"
#include "desktop/portal/scrolling_body.h"

namespace tallyroll {
namespace {

void ShowVisible(QWidget& widget, bool visible) {
  // The pages of a stack are shown by the stack.
  if (qobject_cast<QStackedWidget*>(widget.parentWidget())) return;
  // A pane may be hidden for want of room alone.
  const bool spare = qobject_cast<SparePane*>(&widget) != nullptr;
  if (spare || widget.isHidden() == visible) widget.setVisible(visible);
}

template <typename... W>
bool IsOneOf(const QObject& object) {
  return (qobject_cast<const W*>(&object) || ...);
}

}  // namespace

QWidget* ControlBinding::widget() const {
  return qobject_cast<QWidget*>(target_);
}

void ControlBinding::Show() {
  ShowValue();
  if (auto* action = qobject_cast<QAction*>(target_)) {
    action->setEnabled(control().Enabled);
    action->setVisible(control().Visible);
    return;
  }
  QWidget& shown = *widget();
  // The control's own switch, not that of the frame around it.
  if (shown.testAttribute(Qt::WA_ForceDisabled) == control().Enabled)
    shown.setEnabled(control().Enabled);
  ShowVisible(shown, control().Visible && TakesRoom());
}

std::unique_ptr<ControlBinding> Bind(ControlRow& row, QObject& target, BindingOwner& owner) {
  return std::visit([&](auto* control) { return BindControl(*control, row, target, owner); },
                    row.control);
}

bool IsInput(const QObject& object) {
  if (const auto* action = qobject_cast<const QAction*>(&object))
    return !action->menu() && !action->isSeparator();
  if (const auto* group = qobject_cast<const QGroupBox*>(&object)) return group->isCheckable();
  return IsOneOf<QAbstractButton, QAbstractItemView, QAbstractSlider, QAbstractSpinBox, QComboBox,
                 QDialogButtonBox, QLineEdit, QPlainTextEdit, QTextEdit, QTabWidget, GridWidget,
                 ChartWidget>(object);
}

}  // namespace tallyroll
