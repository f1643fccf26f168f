// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader learns of a grid: a table, and its cells when it asks for them.
#pragma once

class QString;

namespace tallyroll {

class GridWidget;

void InstallGridAccessibility();
// Adds words to the current cell, which a reader that stands there speaks; empty takes them back.
void TellAtCurrentCell(GridWidget& grid, const QString& words);

}  // namespace tallyroll
