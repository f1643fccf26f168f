// SPDX-License-Identifier: GPL-3.0-or-later
// The students that letters and labels are for. The choice knows each by ID and name and its class
// by the file: a deletion, another order or another class never makes it mean somebody else.
#pragma once

#include <vector>

#include "store/records.h"

namespace tallyroll {

// The choice as Students indices of the class in work, in their order as it is now. Empty when the
// choice was made in another class.
std::vector<i16> ChosenStudents();

// Makes these the choice, in the class in work.
void ChooseStudents(const std::vector<i16>& places);

void ForgetChosenStudents();

}  // namespace tallyroll
