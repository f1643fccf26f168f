// SPDX-License-Identifier: GPL-3.0-or-later
// Where the teacher chooses how the program looks.
#pragma once

class QMenu;
class QWidget;

namespace tallyroll {

// Adds "Appearance" at the end of the menu: light or dark, and how much stands on the screen.
void AddAppearanceMenu(QMenu& menu);

// How much stands on the screen, alone.
QMenu* MakeDensityMenu(QWidget* parent);

}  // namespace tallyroll
