// SPDX-License-Identifier: GPL-3.0-or-later
// The shell's part of the program's state.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "shell/form1.h"
#include "shell/frame_screen.h"
#include "shell/mdi_form1.h"

namespace tallyroll {

extern int
    PendingAction;  // what the next class window does on load; from the menu handler to the load
extern std::string RecentPick;  // the path chosen from mnuFileList or the command line
// By slot, from open to close. Slot 0, which is never handed out, holds a window that loads and has
// no slot yet.
extern std::array<std::unique_ptr<Form1>, kClassSlots> ClassWindows;
extern std::unique_ptr<MDIForm1> FrameForm;  // from start to end of the program
extern FrameScreen* Screen;                  // never null

// Puts everything above to its start value.
void ResetShell();

}  // namespace tallyroll
