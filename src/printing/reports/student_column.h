// SPDX-License-Identifier: GPL-3.0-or-later
// The first column of the wide tables: name, ID or both, as the teacher chose.
#pragma once

#include <string>
#include <string_view>

#include "store/records.h"

namespace tallyroll {

// "NAME", "  ID" or "NAME and ID".
std::string_view StudentColumnHead();
// Where the table's next column begins, from 0.
int BehindStudentColumn();
// The student's name, ID, or the ID, two blanks and the name.
std::string StudentColumnText(const Student& student);

}  // namespace tallyroll
