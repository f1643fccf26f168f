// SPDX-License-Identifier: GPL-3.0-or-later
// What all reports share on paper: the head of the first page, the foot of each page with its entry
// in the page table, page breaks, and the rule by which a student's block fits on a page.
#pragma once

#include <string_view>

#include "printing/page/print_job.h"

namespace tallyroll {

// The head of a report; pages after the first begin with an empty line alone.
void PageHeader(ReportPass& pass, std::string_view title);
// The same for a report on one student, which has its head where the student begins, whatever the
// page's number in the run.
void StudentHeader(ReportPass& pass, std::string_view title, bool student_begins);

// The foot. In the layout pass it enters the page: `position` is the row that did not fit, so it is
// one past the last row printed. Where `restart` is true the page begins with row 1 again, and
// restart becomes false.
void PageFooter(ReportPass& pass, int position, bool& restart);
void PageFooter(ReportPass& pass, int position);

void NewPageOn(PrintTarget& target);
// In the layout pass: a new page, begun as it will be drawn.
void BeginPage(PrintTarget& target);
// The same behind the foot of the page before.
void BreakPage(ReportPass& pass, int position);

// Whether `lines` more lines of the current font would pass the page's bottom.
bool WouldPassBottom(const PrintTarget& target, int lines);
// Whether behind `lines` more lines and an empty one the foot would leave the sheet.
bool WouldPushFootOff(const PrintTarget& target, int lines);
// Tells that the report ends with CurrentStudent.
void NoteTooTall();

// Before a student's block, whose first row is `position`, in the layout pass: breaks the page when
// the block, judged by the lines of the one before and the length of the comment, does not fit. A
// block taller than a page ends the layout with that student, which the notice tells.
void FitBlock(ReportPass& pass, int position);

// "COMMENTS: " and the comment of CurrentStudent, wrapped at words into lines of the current font.
std::vector<std::string> WrappedComment(const PrintTarget& target);
void WrapComments(PrintTarget& target);

// A rule across the page at the pen.
void Rule(PrintTarget& target);

// Lines of the current font from below the head of a report to the bottom of its first page.
int LinesBelowHead(const PrintTarget& target);

// Ends a pass: thrown by FitBlock for a block taller than a page, behind the first page where that
// alone is wanted, and by writers that cannot go on, with what the teacher is told. What was laid
// out stays where there is no reason.
struct ReportEnds {
  std::string reason = {};
};

}  // namespace tallyroll
