// SPDX-License-Identifier: GPL-3.0-or-later
// Icons in the colours of a palette.
#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

namespace tallyroll {

// The icon of that name in the colours of the palette, greyed for what is disabled. Null when there
// is none of that name.
QIcon PaletteIcon(const QString& name, const QPalette& palette);

// The same in the colours that the program has just then, so that it need not be made anew when
// they change.
QIcon ThemeIcon(const QString& name);

}  // namespace tallyroll
