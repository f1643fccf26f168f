// SPDX-License-Identifier: GPL-3.0-or-later
// Reports as HTML pages: the text in a fixed font, or true tables for the roll book and the months.
#pragma once

#include <string>

namespace tallyroll {

// The report of Job.ReportCode, entitled by the class file's name. Empty when it could not be made.
std::string ReportHtml();
// Writes it. Returns 0 or the run-time error number, which was told.
int SaveReportHtml(const std::string& path);

}  // namespace tallyroll
