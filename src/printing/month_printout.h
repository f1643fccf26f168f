// SPDX-License-Identifier: GPL-3.0-or-later
// One month of daily attendance on paper, asked for where it is entered.
#pragma once

namespace tallyroll {

// Asks for the title and prints the month of that day on the printer in use.
void PrintAttendanceMonth(double day);

}  // namespace tallyroll
