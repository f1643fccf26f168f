// SPDX-License-Identifier: GPL-3.0-or-later
// What a Portal says when the clipboard does not hold what it can take.
#pragma once

namespace tallyroll {

// It holds something else than what the Portal can take.
void TellOtherClipboard();
// It holds the right thing, but not whole.
void TellUnreadableClipboard();

}  // namespace tallyroll
