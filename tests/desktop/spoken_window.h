// SPDX-License-Identifier: GPL-3.0-or-later
// A window as a screen reader meets it.
#pragma once

#include <QStringList>
#include <QWidget>

namespace tallyroll {

// What a reader would stumble over, one line each; none of a window in order: a control without a
// name or with a mere sign for one, of no known kind, a label that does not name its field, a table
// without dimensions or heads, a cell whose look is not told, an empty line of a list.
QStringList SpokenFaults(QWidget& window);

// A window that has the focus nowhere, or on something without a name.
QStringList FocusFaults(const QWidget& window);

}  // namespace tallyroll
