// SPDX-License-Identifier: GPL-3.0-or-later
// What all reports share on paper: the head of the first page, the foot of each page with its entry
// in the page table, page breaks, and the rule by which a student's block fits on a page.
#pragma once

#include <string_view>

#include "printing/print_job.h"

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

// Before a student's block in the layout pass: breaks the page when the block, judged by the lines
// of the one before and the length of the comment, does not fit. A block taller than a page ends
// the layout with that student.
void FitBlock(ReportPass& pass);

// "COMMENTS: " and the comment of CurrentStudent, wrapped at words into lines of the current font.
std::vector<std::string> WrappedComment(const PrintTarget& target);
void WrapComments(PrintTarget& target);

// A rule across the page at the pen.
void Rule(PrintTarget& target);

// Paper under the names that TextReport has, so that one walk over the data serves both.
struct PaperSheet {
  PrintTarget& target;

  void Put(std::string_view text) { target.PrintOpen(text); }
  void Tab(int column) { target.Tab(column); }
  void End(std::string_view text = {}) { target.Print(text); }
};

// Ends a pass: thrown by FitBlock for a block taller than a page, and by writers that cannot go on,
// with what the teacher is told. RunReport catches it.
struct ReportEnds {
  std::string reason = {};
};

}  // namespace tallyroll
