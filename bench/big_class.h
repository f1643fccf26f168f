// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/records.h"

namespace tallyroll {

// A class of that size with names, contact data and marks as a real one has them.
Class BigClass(int students, int grades, int days);

// A class with one grade and a code of daily attendance on every seventh day.
Class BigAttendedClass(int students, int days);

// BigClass without days, with five types of grades, settled for a method with weights that sum to
// 100: under the methods 0 and 1 the lowest grade of each type is dropped.
Class BigAveragedClass(int students, int grades, int method);

}  // namespace tallyroll
