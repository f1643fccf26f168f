// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>

namespace tallyroll {

// Runs tallyroll-cli: 0 done, 1 a file or a request was refused, 2 the command line is wrong.
// On 1 and 2 one line on `err` says why, and `out` stays empty.
int RunCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out,
                   std::ostream& err);

// The same on the standard streams.
int RunCommandLine(int argc, const char* const* argv);

}  // namespace tallyroll
