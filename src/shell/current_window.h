// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/class_window.h"

namespace tallyroll {

// Passes each call on to the class window of CurrentClass, whichever that is at the time. Without
// one, what is told to the status bar goes to the frame's, and the other calls do nothing.
ClassWindowCalls& CurrentWindow();

}  // namespace tallyroll
