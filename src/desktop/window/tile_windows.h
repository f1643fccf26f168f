// SPDX-License-Identifier: GPL-3.0-or-later
// Sets the windows of an area side by side or one below another.
#pragma once

#include <Qt>

class QMdiArea;

namespace tallyroll {

// Qt::Horizontal puts them side by side, Qt::Vertical one below another; together they fill the
// area, in the order in which they were opened. Minimised windows stay as they are.
void TileWindows(QMdiArea& area, Qt::Orientation direction);

}  // namespace tallyroll
