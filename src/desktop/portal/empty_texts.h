// SPDX-License-Identifier: GPL-3.0-or-later
// What an empty list or grid of a Portal says: in one sentence, what will stand there.
#pragma once

#include <QString>

class QListWidget;

namespace tallyroll {

// Empty for a control that has none.
QString EmptyTextOf(const QString& portal, const QString& control);

// Shows it in the middle of a list for as long as that has no line.
void ShowWhileEmpty(QListWidget& list, const QString& text);

}  // namespace tallyroll
