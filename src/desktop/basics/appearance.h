// SPDX-License-Identifier: GPL-3.0-or-later
// How the program looks: its style and its dark palette.
#pragma once

#include <QPalette>

class QApplication;

namespace tallyroll {

// One style everywhere. The palette is the system's unless `dark` asks for our own dark one.
void SetAppearance(QApplication& application, bool dark);

QPalette DarkPalette();

}  // namespace tallyroll
