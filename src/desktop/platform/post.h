// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tallyroll {

// Mail over encrypted connections, where the program was built with it, and work in the background.
void PreparePost();

}  // namespace tallyroll
