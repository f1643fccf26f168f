// SPDX-License-Identifier: GPL-3.0-or-later
// The month report of daily attendance, for the Portal on which it is entered.
#pragma once

namespace tallyroll {

// Prints the month of that day, handed over by the shell: the Portal knows nothing of printing.
using MonthPrinter = void (*)(double day);
extern MonthPrinter PrintMonth;

}  // namespace tallyroll
