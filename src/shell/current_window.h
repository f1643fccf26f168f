// SPDX-License-Identifier: GPL-3.0-or-later
// The class windows: the one in work, and all of them in the Window menu.
#pragma once

#include "platform/class_window.h"

namespace tallyroll {

// Passes each call on to the class window of CurrentClass, whichever that is at the time. Without
// one, what is told to the status bar goes to the frame's, and the other calls do nothing.
ClassWindowCalls& CurrentWindow();

// Writes the open classes to the entries mnuWindowList0 to 4 of every window, its own one checked.
void ListOpenWindows();

// Brings the class of that place in the list to the front.
void BringListedWindow(int place);

}  // namespace tallyroll
