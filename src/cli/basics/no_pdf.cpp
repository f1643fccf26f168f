// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/pdf.h"

namespace tallyroll {

void BecomeProgramThatDraws() {}

PdfOutcome WritePdf(const std::string& /*path*/, const std::string& /*title*/) {
  return {"PDF is not available here"};
}

PdfOutcome WritePdfJob(const std::string& /*path*/, const std::string& /*title*/,
                       const std::function<void(PrintTarget&)>& /*print*/) {
  return {"PDF is not available here"};
}

PdfOutcome WritePdfPage(const std::string& /*path*/, const std::string& /*title*/,
                        const std::function<void(PrintTarget&)>& /*draw*/, bool /*landscape*/) {
  return {"PDF is not available here"};
}

std::string PngOf(double /*width*/, double /*height*/, int /*dots_per_inch*/,
                  const std::function<void(PrintTarget&)>& /*draw*/) {
  return {};
}

std::unique_ptr<PrintTarget> MakePaperBox(bool /*landscape*/) {
  return nullptr;
}

}  // namespace tallyroll
