// SPDX-License-Identifier: GPL-3.0-or-later
// The table behind the students that explains the codes: every grade of the class, then the types.
#pragma once

#include "printing/page/sections.h"
#include "printing/reports/report_parts.h"

namespace tallyroll {

Section CodeDetailsSection(PrintTarget& target);
void WriteCodeDetails(TextReport& text);

}  // namespace tallyroll
