// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that Find can lead to at this moment.
#pragma once

#include <vector>

#include "find/find_entries.h"

namespace tallyroll {

std::vector<FindEntry> ProgramFindEntries();

}  // namespace tallyroll
