// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/mdi_form1.h"
#include "shell/menu.h"

namespace tallyroll {

// The frame's own small menu.
Menu MakeFrameMenu(MDIForm1& frame);

}  // namespace tallyroll
