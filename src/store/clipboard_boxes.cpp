// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/clipboard_boxes.h"

#include "platform/surroundings.h"

namespace tallyroll {

void TellOtherClipboard() {
  ShowMessage(
      "There are no appropriate fields to be found on the clipboard. The data on the clipboard may "
      "not be the right type for inserting in the current module.  You need to go back to a "
      "compatible module, then copy the information to the clipboard and try again.");
}

void TellUnreadableClipboard() {
  ShowMessage("Can not read from Clipboard.");
}

}  // namespace tallyroll
