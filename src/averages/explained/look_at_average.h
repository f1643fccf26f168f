// SPDX-License-Identifier: GPL-3.0-or-later
// The average of a student for screens that only look.
#pragma once

#include "averages/rounding.h"

namespace tallyroll {

// AverageStudent for a student of the class in work, without a trace: Marks[0], TypeWeights,
// ExactAverage and CurrentStudent are afterwards what they were. Any student may be asked for at
// any time, also while a Portal is at work.
AverageError LookAtAverage(i16 student, StudentAverage& average);

// Whether a mark of the student counts yet. The average of one without any is a 0 that nobody
// earned.
bool HasMarkThatCounts(const Student& student);

}  // namespace tallyroll
