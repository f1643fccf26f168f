// SPDX-License-Identifier: GPL-3.0-or-later
// The laid out report as a PDF file. Each program has one of three implementations: pdf.cpp draws it,
// pdf_elsewhere.cpp has another program draw it, no_pdf.cpp of a build without Qt refuses.
#pragma once

#include <memory>
#include <string>

#include "platform/print_target.h"

namespace tallyroll {

struct PdfOutcome {
  std::string refusal;  // why there is no report
  int error = 0;        // why there is no file, as a run-time error number
};

// Lays the report of Job.ReportCode out and writes its pages. Where the report itself ended the
// run, Job.PrintFlag tells.
PdfOutcome WritePdf(const std::string& path, const std::string& title);

// The surface on which the command line lays reports out.
std::unique_ptr<PrintTarget> MakePaperBox(bool landscape);

}  // namespace tallyroll
