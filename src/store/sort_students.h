// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/records.h"

namespace tallyroll {

// Sorts the students of the current class by NameMode: by name below 73, otherwise by id.
// The comparison is of raw bytes; the order of equal keys is not kept.
void SortStudents();
void SortStudents(Class& c);

}  // namespace tallyroll
