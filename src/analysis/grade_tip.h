// SPDX-License-Identifier: GPL-3.0-or-later
// What the head of a grade's column tells at length.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

// The name of the type with that code; empty when no type has it.
std::string TypeNameOf(std::string_view typecode);

// Title, type, date, maximum and average of a grade of the current class, a line each.
std::string TipOfGrade(int grade);

}  // namespace tallyroll
