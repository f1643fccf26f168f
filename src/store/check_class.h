// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "store/records.h"

namespace tallyroll {

// What in a class does not fit together, a line each: "Students[3].Marks has 4 items,
// NumInstruments is 5". Counts against lists, texts that no class file can hold, an unknown Magic.
// Empty for a class that every routine can work on. DailyMarks that were never dimensioned are no
// fault: a student added by text import has none until attendance is set up again.
std::vector<std::string> BrokenInvariants(const Class& c);

}  // namespace tallyroll
