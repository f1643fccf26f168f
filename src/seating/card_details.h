// SPDX-License-Identifier: GPL-3.0-or-later
// The second line of a student's card.
#pragma once

#include <string>

namespace tallyroll {

// The ID where the card shows the name, or the name where it shows the ID; with `more` how often
// the student was absent and the mark of the last grade.
std::string CardDetails(int student, bool more);

}  // namespace tallyroll
