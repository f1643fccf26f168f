// SPDX-License-Identifier: GPL-3.0-or-later
// A window as the Tab key and Alt with a letter meet it.
#pragma once

#include <QStringList>
#include <QWidget>

namespace tallyroll {

// What is wrong with a round by the Tab key through what can be reached now, beginning where the
// focus is: controls that are left out, that come twice, or before what is read first.
QStringList TabFaults(QWidget& window);

// Letters that two of the window's captions share, as "Save and Skip share Alt+S".
QStringList MnemonicFaults(const QWidget& window);

}  // namespace tallyroll
