// SPDX-License-Identifier: GPL-3.0-or-later
// What closes a report on the grades of one student: attendance, comment, average, signature.
#pragma once

#include "printing/page/sections.h"
#include "printing/reports/report_parts.h"

namespace tallyroll {

// How many lines are kept free for the comment below each row of the report.
int LinesOfComment(const PrintTarget& target);

// It stays together on a page, or where no page can hold it goes on between lines of the comment,
// which are its rows.
Section StudentTailSection(ReportPass& pass);
void WriteStudentTail(TextReport& text);

}  // namespace tallyroll
