// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tallyroll {

// Runs tallyroll-cli: 0 done, 1 a file or a request was refused, 2 the command line is wrong.
int RunCommandLine(int argc, char** argv);

}  // namespace tallyroll
