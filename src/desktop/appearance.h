// SPDX-License-Identifier: GPL-3.0-or-later
// How the program looks: its style, its dark palette and its icons.
#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

class QApplication;

namespace tallyroll {

// One style everywhere. The palette is the system's unless `dark` asks for our own dark one.
void SetAppearance(QApplication& application, bool dark);

QPalette DarkPalette();

// The icon of that name in the colours of the palette, greyed for what is disabled.
QIcon PaletteIcon(const QString& name, const QPalette& palette);

}  // namespace tallyroll
