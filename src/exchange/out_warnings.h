// SPDX-License-Identifier: GPL-3.0-or-later
// What another system would drop or misread of a table, and how it is mended.
#pragma once

#include <vector>

#include "exchange/out_table.h"

namespace tallyroll {

// Each with its remedy, where there is one.
std::vector<OutWarning> WarningsOf(ExchangeFormat format, const ForeignTable& table);
// Those that are to be mended.
void Mend(ExchangeFormat format, const std::vector<OutWarning>& warnings, ForeignTable& table);

}  // namespace tallyroll
