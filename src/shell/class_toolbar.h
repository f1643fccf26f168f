// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "shell/form1.h"

namespace tallyroll {

// The places of Toolbar2, from the left. The file buttons are parted from the others by a gap,
// which takes place 4.
std::vector<ToolButton> MakeClassToolbar(Form1& window);

}  // namespace tallyroll
