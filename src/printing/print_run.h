// SPDX-License-Identifier: GPL-3.0-or-later
// A run from the choice of a report to its pages, on whatever they go to.
#pragma once

#include <functional>

#include "platform/surroundings.h"
#include "printing/page/print_job.h"

namespace tallyroll {

// Whether the report of Job.ReportCode lies across the sheet, however the printer is set up.
bool PrintsLandscape();

// Gives a target the print font and the margins, as the report of Job.ReportCode wants them.
void PrepareTarget(PrintTarget& target);

// Lays the report of Job.ReportCode out, once for each of Choice.students where it is on one
// student, and fills the page table. False when the teacher cancelled or was told why it cannot be.
// That a report ends early is told.
bool LayOutReport();

// Draws pages of the page table once on a prepared printer or PDF, and ends the job. `progress` is
// told of each page before it is drawn. False when it was cancelled: the job is dropped.
bool PrintPages(PrintTarget& printer, const PrintRange& range,
                const std::function<void(int page)>& progress);

}  // namespace tallyroll
