// SPDX-License-Identifier: GPL-3.0-or-later
// The roll book's columns in the order that the teacher chose. The report on paper, as text and as
// HTML share them.
#pragma once

#include <string>
#include <vector>

namespace tallyroll {

// Instruments indices.
std::vector<int> RollBookGrades();

// A grade's date without its year: cut at the last "/", or at the last "." where there is none, or
// after three characters where there is neither.
std::string DateWithoutYear(int grade);
// The same for a table whose cells are as wide as they must be: a date with neither stays whole.
std::string WholeDateWithoutYear(int grade);

}  // namespace tallyroll
