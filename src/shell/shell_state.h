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

extern int PendingAction;       // what the next class window does on load; from the menu handler to the load
extern std::string RecentPick;  // the path chosen from mnuFileList or the command line
extern std::array<std::unique_ptr<Form1>, kClassSlots> ClassWindows;  // by slot, from open to close
extern std::unique_ptr<MDIForm1> Frame;     // from start to end of the program
extern FrameScreen* Screen;                 // never null

}  // namespace tallyroll
