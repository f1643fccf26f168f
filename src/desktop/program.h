// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

class QApplication;

namespace tallyroll {

// Shows the frame, opens the class file of the command line if there is one, and runs until the
// teacher leaves. Returns the exit status.
int RunProgram(QApplication& application, bool dark, const std::string& file);

}  // namespace tallyroll
