// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of weights and points on paper: one pass and no page table.
#pragma once

#include "platform/table_printer.h"

namespace tallyroll {

// Asks for the title and prints the table on the printer in use.
void PrintWeights(const PrintedTable& table);

}  // namespace tallyroll
