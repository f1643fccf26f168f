// SPDX-License-Identifier: GPL-3.0-or-later
// The grades of the current class in another order than they stand. Ties keep the order of the
// class.
#pragma once

#include <vector>

namespace tallyroll {

std::vector<int> GradesAsTheyStand();
// A date that cannot be read stands before all others.
void SortByDate(std::vector<int>& grades);
// In the order of the grade types; a code of no type comes last.
void SortByType(std::vector<int>& grades);

}  // namespace tallyroll
