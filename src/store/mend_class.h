// SPDX-License-Identifier: GPL-3.0-or-later
// Makes a class that was read safe to work on, whatever its file said.
#pragma once

#include <cstddef>

#include "store/records.h"

namespace tallyroll {

// Every routine of the program counts on lists that reach as far as their count says. So lists
// that are shorter are padded with the values of a new student, and NumCharts is lowered to the
// charts that have a size; lists that are longer stay, and so do DailyMarks that were never
// dimensioned, as the text import leaves them. A RoundScale that is no scale becomes 0, and a
// negative name width 0.
//
// A file of a few bytes could ask for gigabytes of padding. Beyond a multiple of `file_size` no
// student is padded any more: the rest are dropped, and the answer is 57 instead of 0.
int MendClass(Class& c, std::size_t file_size);

}  // namespace tallyroll
