// SPDX-License-Identifier: GPL-3.0-or-later
// What the button that leaves a Portal does with the teacher's work, told while the pointer rests
// on it.
#pragma once

#include <QString>

class QDialog;

namespace tallyroll {

// Empty for a control that has none to tell.
QString ExitTipOf(const QString& portal, const QString& control);

// Gives the buttons of a Portal's window their tips.
void TellWhatExitDoes(QDialog& dialog, const QString& portal);

}  // namespace tallyroll
