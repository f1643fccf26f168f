// SPDX-License-Identifier: GPL-3.0-or-later
// What the lists of the word processor's toolbar offer.
#pragma once

#include "platform/controls.h"

namespace tallyroll {

void FillLookLists(ComboBox& fontname, ComboBox& fontsize, ComboBox& zoom);

}  // namespace tallyroll
