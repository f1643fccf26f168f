// SPDX-License-Identifier: GPL-3.0-or-later
// How a student's name is written in the class grid and in lists.
#pragma once

#include <string>

#include "store/records.h"

namespace tallyroll {

// "Ng, Ada": both names trimmed.
std::string PlainName(const Student& student);
// " 1 Ng, Ada": the row number with its sign column before the plain name.
std::string NumberedName(int number, const Student& student);
// The line of a pick list by NameMode: name and id parted by a tab in the mode's order, or the one
// column that the mode has.
std::string StudentListLine(const Student& student);

}  // namespace tallyroll
