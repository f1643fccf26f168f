// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit knows no announcements, but readers speak a description that changes at the focus.
#include "desktop/portal/telling_label.h"

#include <QAccessible>
#include <QListWidget>
#include <QTimer>

#include "desktop/grid/grid_accessibility.h"
#include "desktop/grid/grid_widget.h"

namespace tallyroll {
namespace {

void Note(QAccessibleInterface* what, QAccessible::Event change) {
  if (!what || !what->isValid()) return;
  QAccessibleEvent event(what, change);
  QAccessible::updateAccessibility(&event);
}

// What of the widget the reader stands on: a cell, a line, or all of it.
void Describe(QWidget& widget, const QString& text) {
  if (auto* grid = qobject_cast<GridWidget*>(&widget)) return TellAtCurrentCell(*grid, text);
  auto* list = qobject_cast<QListWidget*>(&widget);
  if (!list || !list->currentItem()) return widget.setAccessibleDescription(text);
  if (!list->accessibleDescription().isEmpty()) list->setAccessibleDescription({});
  const QSignalBlocker silence(list);
  for (int row = 0; row < list->count(); ++row)
    list->item(row)->setData(Qt::AccessibleDescriptionRole,
                             row == list->currentRow() ? text : QString());
  QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(list);
  Note(whole ? whole->child(list->currentRow()) : nullptr, QAccessible::DescriptionChanged);
}

}  // namespace

TellingLabel::TellingLabel(QWidget* parent) : ElidedLabel(parent) {
  setSizePolicy({QSizePolicy::Preferred, QSizePolicy::Preferred, QSizePolicy::Label});
}

void TellingLabel::Tell(const QString& text) {
  setText(text);
  TakeBack();
  if (!text.isEmpty()) QTimer::singleShot(0, this, &TellingLabel::TellAtFocus);
}

void TellingLabel::TellAtFocus() {
  QWidget* focus = window()->focusWidget();
  if (!focus || text().isEmpty()) return;
  told_at_ = focus;
  Describe(*focus, text());
  Note(QAccessible::queryAccessibleInterface(this), QAccessible::Alert);
}

// What was told is not true for long.
void TellingLabel::TakeBack() {
  if (told_at_) Describe(*told_at_, {});
  told_at_ = nullptr;
}

}  // namespace tallyroll
