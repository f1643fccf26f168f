// SPDX-License-Identifier: GPL-3.0-or-later
// A student's grades side by side: rows as wide as the page, each a line of codes and a line of
// marks.
#pragma once

#include "printing/report_parts.h"

namespace tallyroll {

// The name, then the rows. They are found once for a report, in its layout pass, and kept in the
// page table for all students. Each row adds 2 to BlockLines.
void PrintStudentRows(ReportPass& pass);
void WriteStudentRows(TextReport& text);

}  // namespace tallyroll
