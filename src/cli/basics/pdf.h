// SPDX-License-Identifier: GPL-3.0-or-later
// Reports as PDF files, pictures as PDF and PNG. Each program has one of three implementations:
// pdf.cpp draws it, pdf_elsewhere.cpp has another program draw it, no_pdf.cpp of a build without Qt
// refuses.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/print_target.h"

namespace tallyroll {

struct PdfOutcome {
  std::string refusal;  // why there is no report
  int error = 0;        // why there is no file, as a run-time error number
};

// Where another program draws, it takes over here: before a password was read that cannot be read
// twice, or a run was begun.
void BecomeProgramThatDraws();

// Lays the report of Job.ReportCode out and writes its pages. Where the report itself ended the
// run, Job.PrintFlag tells.
PdfOutcome WritePdf(const std::string& path, const std::string& title);

// Sheets that `print` draws; it ends the job itself.
PdfOutcome WritePdfJob(const std::string& path, const std::string& title,
                       const std::function<void(PrintTarget&)>& print);
// A picture on a sheet of its own, an inch from its corner.
PdfOutcome WritePdfPage(const std::string& path, const std::string& title,
                        const std::function<void(PrintTarget&)>& draw, bool landscape = false);
// A picture as the bytes of a PNG file, its size in twips; empty without Qt.
std::string PngOf(double width, double height, int dots_per_inch,
                  const std::function<void(PrintTarget&)>& draw);

// The surface on which the command line lays reports out.
std::unique_ptr<PrintTarget> MakePaperBox(bool landscape);

}  // namespace tallyroll
