// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <random>
#include <string>

#include "store/records.h"

namespace tallyroll {

// A class with every field of the class file in use: counts from 0 up, empty and never dimensioned
// lists, every character of the code page, now and then the longest text that fits. It keeps the
// invariants, and Magic is "ty8".
Class RandomClass(std::mt19937& random);

// Whether the class file of both would tell the same class. Compares number by number, NaN equal
// to NaN of the same bits.
bool SameOnDisk(const Class& a, const Class& b);

}  // namespace tallyroll
