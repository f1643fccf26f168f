// SPDX-License-Identifier: GPL-3.0-or-later
// Address labels, three across.
#pragma once

#include <string>
#include <vector>

#include "platform/print_target.h"
#include "store/records.h"

namespace tallyroll {

enum class LabelTo { kStudent, kParent };

// Name, address, and city with state and zip; an empty line is left out. In the code page.
std::vector<std::string> LabelLines(const Student& student, LabelTo to);

// Prints a label for each student of the class in work and ends the job. False when it was
// cancelled (the job is dropped) or came to nothing.
bool PrintLabels(PrintTarget& printer, const std::vector<i16>& students, LabelTo to);

}  // namespace tallyroll
