// SPDX-License-Identifier: GPL-3.0-or-later
// What a class derives from its records.
#pragma once

#include "store/records.h"

namespace tallyroll {

// Makes anew what a class derives from its records and keeps: the order of its students and, under
// Skip Rounding, the scale made of its letter values. Reading a class ends in it, and so does every
// Portal, through showform3; no Portal has to remember what its change moves. Figures that only
// averages read, such as the points possible, are not kept at all.
void MakeDerivedValues(Class& c);

}  // namespace tallyroll
