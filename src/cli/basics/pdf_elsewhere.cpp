// SPDX-License-Identifier: GPL-3.0-or-later
// PDF needs Qt, whose forty libraries take ten times as long to load as the rest of the program to
// run: tallyroll-pdf draws it.
#include "cli/basics/pdf.h"
#include "cli/basics/program_elsewhere.h"

namespace tallyroll {

void BecomeProgramThatDraws() {
  RunElsewhere("tallyroll-pdf");
}

PdfOutcome WritePdf(const std::string& /*path*/, const std::string& /*title*/) {
  BecomeProgramThatDraws();
  return {"PDF is not available here"};
}

PdfOutcome WritePdfJob(const std::string& path, const std::string& title,
                       const std::function<void(PrintTarget&)>& /*print*/) {
  return WritePdf(path, title);
}

PdfOutcome WritePdfPage(const std::string& path, const std::string& title,
                        const std::function<void(PrintTarget&)>& /*draw*/, bool /*landscape*/) {
  return WritePdf(path, title);
}

std::string PngOf(double /*width*/, double /*height*/, int /*dots_per_inch*/,
                  const std::function<void(PrintTarget&)>& /*draw*/) {
  BecomeProgramThatDraws();
  return {};
}

std::unique_ptr<PrintTarget> MakePaperBox(bool /*landscape*/) {
  return nullptr;
}

}  // namespace tallyroll
