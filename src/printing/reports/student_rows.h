// SPDX-License-Identifier: GPL-3.0-or-later
// A student's grades side by side: rows as wide as the page, each a line of codes and a line of
// marks.
#pragma once

#include "printing/reports/report_parts.h"

namespace tallyroll {

// A grade stands in a row while a whole column is left. Found once for a report, in its layout
// pass, and kept in WrapFirst and WrapLast for all students.
void FindStudentRows();

// The name, then as many of the rows. Each row adds 2 to BlockLines.
void PrintStudentRows(PrintTarget& target, int rows);
void WriteStudentRows(TextReport& text);

}  // namespace tallyroll
