// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tallyroll {

// Puts every named global of the program to its start value. Tests begin with it.
void ResetProgram();

}  // namespace tallyroll
