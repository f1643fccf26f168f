// SPDX-License-Identifier: GPL-3.0-or-later
// The way from any screen on a student to the explanation of the average.
#pragma once

#include "store/program_state.h"

namespace tallyroll {

// With this OpenState the Explain Average Portal begins with the student that CurrentStudent
// counts.
inline constexpr int kExplainStudent = 133;

// Shows the Portal for a student; 0 is none, which the teacher is told. CurrentStudent stays.
void ShowExplanation(i16 student);

}  // namespace tallyroll
