// SPDX-License-Identifier: GPL-3.0-or-later
// tallyroll-cli is linked without the libraries that take longer to load than the rest of the
// program to run. A command line that needs one is handed on, word for word, to the same program
// with it, which stands beside it or in the folder of the package.
#pragma once

namespace tallyroll {

// Comes back only when there is no such program.
void RunElsewhere(const char* program);

}  // namespace tallyroll
